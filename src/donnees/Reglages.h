#pragma once

#include <QString>

// The settings that the program carries from one run to the next, in two small files of the application folder:
// "Dorvanel.ini" (with LangIndex as its last line) and "Dorvanel.CFG" (with the reception folder of programs as its
// first). That folder is a field of ParamCom, which is built on the settings and not below them: so whoever reads the
// file hands it in.

extern QString DosAppli;      ///< application folder, without final separator; set once at the start
extern int OptDosDefaut;      ///< 1: the open dialog starts in DosDefaut; 0: in the application folder
extern QString DosDefaut;     ///< default folder of the open dialog
extern int OptConfDefaut;     ///< 1: the configuration FicConfDefaut is loaded at the start
extern QString FicConfDefaut; ///< full path of that .par file
extern int OptExplorateur;    ///< 1: the explorer pane is opened at the start
extern QString DosConf;       ///< folder offered by the open and save dialogs of .par files
extern QString DosJauge;      ///< reception folder of tool gauges
extern QString EditeurCN;     ///< path of the external editor

/// Path of "Dorvanel.ini" / "Dorvanel.CFG".
QString CheminIni();
QString CheminCfg();

/// Reads "Dorvanel.ini" field by field into its variables. Raises what LitFichierTexte and LecteurChamps raise; the
/// fields ahead of the failure are then already in their variables.
void LisIni();

/// Writes "Dorvanel.ini" whole, unless it stands so already. Raises what EcritFichierTexte raises.
void SauveIni();

/// The values of a first run, which has no "Dorvanel.ini" yet. LangIndex stays: the operator is asked for it.
void IniParDefaut();

/// Reads "Dorvanel.CFG" into dosRecep (the reception folder of programs), DosJauge and EditeurCN. Raises as LisIni().
void LisCfg(QString &dosRecep);

/// Writes "Dorvanel.CFG" whole. dosRecep: the reception folder of programs. Raises as SauveIni().
void SauveCfg(const QString &dosRecep);

/// The values of a run without "Dorvanel.CFG".
void CfgParDefaut(QString &dosRecep);
