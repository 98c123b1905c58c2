#pragma once

#include <QString>

/// How the measures of the presetting bench become the gauge file of one machine. The fields stand in the order in
/// which a .mac file holds them, with the values of a new configuration; Integer fields are 16 bits there.
struct ConfigurationMac
{
    int TypeMachine = 0;                            ///< 0 lathe, 1 mill or machining centre
    int TypeTourelle = 0;                           ///< 0 back turret, 1 front turret; changes the dial's picture only
    double DiffPoches = 0;                          ///< lathe: added to the X of even correctors, mm, signed
    int TypeJauge = 0;                              ///< gauge file in 0 D parameters, 1 E parameters
    int ModeX = 0;                                  ///< the machine wants X as 0 radius, 1 diameter
    double JaugeMaxiX = 100;                        ///< an X above it gives an alarm, mm
    double JaugeMaxiZ = 200;                        ///< a length above it gives an alarm, mm
    int NbCorrecteurs = 32;                         ///< highest corrector number accepted, 0 to CapaciteJauges
    QString ExtJauge = QStringLiteral("JAU");       ///< extension of gauge files, no point, at most 3, upper case
    QString NumProgJauge = QStringLiteral("%7999"); ///< program number of E-parameter files, at most 5 characters
    int RazDynamique = 0;                           ///< E-parameter files reset the dynamic correctors: 0 yes, 1 no

    // The .mac file last chosen; not stored in it.
    QString NomCompletMac; ///< full path
    QString NomMac;        ///< that file's name without its folder

    bool EstTour() const { return TypeMachine == 0; }
    bool EnParametresE() const { return TypeJauge != 0; }
};

extern ConfigurationMac ParamMac; ///< the one machine configuration in force

/// nombre, limited to 0 to CapaciteJauges, the corrector numbers that Jauge can hold.
int CorrecteursTenus(int nombre);

/// Reads the .mac file at chemin into ParamMac: eleven values, each ended by a comma or a line end. A number of
/// correctors outside its range is limited to it. Raises what the file system raises, FinDeFichier, TypeIncompatible
/// for a value that is no number, and Depassement. The fields before the failure then hold the file's values and the
/// others their former ones.
void LitMac(const QString &chemin);

/// Creates or replaces the .mac file at chemin with ParamMac. A double quote in a text is written as an apostrophe,
/// since the format cannot hold one. A file that the disk cuts does not stay. Raises what EcritFichierTexte raises.
void EcritMac(const QString &chemin);
