#pragma once

#include <QString>

// The settings that the program carries from one run to the next, in two small files of the application folder:
// "Dorvanel.ini" (with LangIndex as its last line) and "Dorvanel.CFG" (with the reception folder of programs as its
// first). That folder is a field of ParamCom, which is built on the settings and not below them: so whoever reads the
// file hands it in.

struct ReglagesProgramme
{
    QString DosAppli;       ///< application folder, without final separator; set once at the start
    int OptDosDefaut = 0;   ///< 1: the open dialog starts in DosDefaut; 0: in the application folder
    QString DosDefaut;      ///< default folder of the open dialog
    int OptConfDefaut = 0;  ///< 1: the configuration FicConfDefaut is loaded at the start
    QString FicConfDefaut;  ///< full path of that .par file
    int OptExplorateur = 0; ///< 1: the explorer pane is opened at the start
    QString DosConf;        ///< folder offered by the open and save dialogs of .par files
    QString DosJauge;       ///< reception folder of tool gauges
    QString EditeurCN;      ///< path of the external editor
};

extern ReglagesProgramme Reglages; ///< the settings in force

/// Path of "Dorvanel.ini" / "Dorvanel.CFG".
QString CheminIni();
QString CheminCfg();

/// Reads "Dorvanel.ini" field by field into its variables. Raises what LitFichierTexte and LecteurChamps raise; the
/// fields ahead of the failure are then already in their variables.
void LitIni();

/// Writes "Dorvanel.ini" whole, unless it stands so already. Raises what EcritFichierTexte raises.
void SauveIni();

/// The values of a first run, which has no "Dorvanel.ini" yet. LangIndex stays: the operator is asked for it.
void IniParDefaut();

/// Reads "Dorvanel.CFG" into dosRecep (the reception folder of programs), DosJauge and EditeurCN. Raises as LitIni().
void LitCfg(QString &dosRecep);

/// Writes "Dorvanel.CFG" whole. dosRecep: the reception folder of programs. Raises as SauveIni().
void SauveCfg(const QString &dosRecep);

/// The values of a run without "Dorvanel.CFG".
void CfgParDefaut(QString &dosRecep);
