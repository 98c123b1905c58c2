#pragma once

#include <QString>

// The settings that the program keeps from one run to the next, in two small files of the application folder:
// "Dorvanel.ini", with LangIndex as its last line, and "Dorvanel.CFG", with the reception folder of programs as its
// first. That folder is a field of ParamCom, of which this unit knows nothing, so the caller passes it.

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

/// Paths of "Dorvanel.ini" and "Dorvanel.CFG".
QString CheminIni();
QString CheminCfg();

/// Reads "Dorvanel.ini" into Reglages and LangIndex, field by field. Raises what LitFichierTexte and LecteurChamps
/// raise; the fields before the failure then hold the file's values.
void LitIni();

/// Writes "Dorvanel.ini", unless the file already holds the same. Raises what EcritFichierTexte raises.
void SauveIni();

/// Sets the values of a first run, which has no "Dorvanel.ini" yet. LangIndex stays: the operator is asked for it.
void IniParDefaut();

/// Reads "Dorvanel.CFG" into DosJauge, EditeurCN and dosRecep (the reception folder of programs). Raises as LitIni().
void LitCfg(QString &dosRecep);

/// Writes "Dorvanel.CFG". dosRecep: the reception folder of programs. Raises as SauveIni().
void SauveCfg(const QString &dosRecep);

/// Sets the values of a run without "Dorvanel.CFG". dosRecep: takes the reception folder of programs.
void CfgParDefaut(QString &dosRecep);
