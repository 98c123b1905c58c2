#include "donnees/ParamMac.h"

#include "donnees/Jauge.h"
#include "platform/base/Erreur.h"
#include "platform/base/Nombres.h"
#include "platform/fichiers/FichierTexte.h"
#include "platform/fichiers/LecteurChamps.h"

#include <algorithm>
#include <cmath>

ConfigurationMac ParamMac;

namespace {

/// A configuration is eleven short lines; a file larger than this, in bytes, is none.
constexpr qint64 TailleMaxMac = qint64{64} * 1024;

/// Reads the next value. Raises TypeIncompatible when it is anything but a number.
double LitReel(LecteurChamps &champs)
{
    const QString valeur = champs.Chaine();
    bool estNombre = false;
    const double nombre = valeur.toDouble(&estNombre);
    if (!estNombre || !std::isfinite(nombre))
        throw Erreur(Erreur::TypeIncompatible, valeur);
    return nombre;
}

int LitEntier(LecteurChamps &champs)
{
    return EnEntier(LitReel(champs));
}

QString Ligne(const QString &valeur)
{
    return valeur + QStringLiteral("\r\n");
}

QString Ligne(int nombre)
{
    return Ligne(QString::number(nombre));
}

} // namespace

int CorrecteursTenus(int nombre)
{
    return std::clamp(nombre, 0, CapaciteJauges);
}

void LitMac(const QString &chemin)
{
    LecteurChamps champs(LitFichierTexte(chemin, TailleMaxMac));
    ParamMac.TypeMachine = LitEntier(champs);
    ParamMac.TypeTourelle = LitEntier(champs);
    ParamMac.DiffPoches = LitReel(champs);
    ParamMac.TypeJauge = LitEntier(champs);
    ParamMac.ModeX = LitEntier(champs);
    ParamMac.JaugeMaxiX = LitReel(champs);
    ParamMac.JaugeMaxiZ = LitReel(champs);
    ParamMac.NbCorrecteurs = CorrecteursTenus(LitEntier(champs));
    ParamMac.ExtJauge = champs.Chaine();
    ParamMac.NumProgJauge = champs.Chaine();
    ParamMac.RazDynamique = LitEntier(champs);
}

void EcritMac(const QString &chemin)
{
    const ConfigurationMac &p = ParamMac;
    EcritFichierTexte(chemin,
                      Ligne(p.TypeMachine) + Ligne(p.TypeTourelle) + Ligne(TexteDouble(p.DiffPoches)) +
                          Ligne(p.TypeJauge) + Ligne(p.ModeX) + Ligne(TexteDouble(p.JaugeMaxiX)) +
                          Ligne(TexteDouble(p.JaugeMaxiZ)) + Ligne(p.NbCorrecteurs) +
                          Ligne(ValeurEntreGuillemets(p.ExtJauge)) + Ligne(ValeurEntreGuillemets(p.NumProgJauge)) +
                          Ligne(p.RazDynamique),
                      FichierCoupe::Part);
}
