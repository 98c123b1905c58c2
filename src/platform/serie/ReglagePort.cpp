#include "platform/serie/ReglagePort.h"

#include "platform/base/Erreur.h"
#include "platform/serie/ErreurPort.h"

#include <QStringList>

#include <array>
#include <utility>

namespace {

constexpr int VitesseMin = 50;
constexpr int VitesseMax = 4'000'000;

constexpr std::array<std::pair<QLatin1String, Parite>, 5> Parites = {{
    {QLatin1String("n"), Parite::Aucune},
    {QLatin1String("o"), Parite::Impaire},
    {QLatin1String("e"), Parite::Paire},
    {QLatin1String("m"), Parite::Marque},
    {QLatin1String("s"), Parite::Espace},
}};

constexpr std::array<std::pair<QLatin1String, int>, 3> BitsArret = {{
    {QLatin1String("1"), 2},
    {QLatin1String("1.5"), 3},
    {QLatin1String("2"), 4},
}};

template <typename Table>
auto Cherche(const Table &table, const QString &valeur)
{
    for (const auto &[nom, sens] : table) {
        if (valeur.compare(nom, Qt::CaseInsensitive) == 0)
            return sens;
    }
    throw Erreur(ErreurPort::Reglage, QLatin1Char('"') + valeur + QLatin1Char('"'));
}

int LitEntier(const QString &valeur, int min, int max, int numeroErreur)
{
    bool lisible = false;
    const int entier = valeur.toInt(&lisible);
    if (!lisible || entier < min || entier > max)
        throw Erreur(numeroErreur, QLatin1Char('"') + valeur + QLatin1Char('"'));
    return entier;
}

} // namespace

double ReglagePort::BitsParCaractere() const
{
    const int bitParite = parite == Parite::Aucune ? 0 : 1;
    return 1 + bitsDonnees + bitParite + demiBitsArret / 2.0;
}

ReglagePort LitReglagePort(const QString &texte)
{
    QStringList champs = texte.split(QLatin1Char(','));
    for (QString &champ : champs)
        champ = champ.trimmed();
    champs.resize(qMax<qsizetype>(champs.size(), 4));

    ReglagePort reglage;
    reglage.vitesse = LitEntier(champs[0], VitesseMin, VitesseMax, ErreurPort::Vitesse);
    reglage.parite = Cherche(Parites, champs[1]);
    reglage.bitsDonnees = LitEntier(champs[2], 5, 8, ErreurPort::BitsDonnees);
    reglage.demiBitsArret = Cherche(BitsArret, champs[3]);

    const bool cinqBits = reglage.bitsDonnees == 5;
    if (champs.size() > 4 || (reglage.demiBitsArret == 3 && !cinqBits) || (reglage.demiBitsArret == 4 && cinqBits))
        throw Erreur(ErreurPort::Reglage, QLatin1Char('"') + texte + QLatin1Char('"'));
    return reglage;
}
