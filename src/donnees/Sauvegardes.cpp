#include "donnees/Sauvegardes.h"

#include "donnees/Chemins.h"
#include "donnees/EtatDocument.h"
#include "platform/base/Erreur.h"
#include "platform/fichiers/Dossiers.h"
#include "platform/fichiers/FichierDisque.h"
#include "platform/fichiers/FichierTexte.h"

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>

namespace {

constexpr int NombreMax = 100;
constexpr qint64 TailleMax = 200'000'000; ///< bytes of all that is kept

std::function<void(const Erreur &)> ecouteur;

/// Bytes that the name of a program may have. With date and rank it then still fits into a file name.
constexpr int LongueurNom = 220;

struct NomCoupe
{
    QString racine;
    QString fin; ///< the ending, with its point
};

NomCoupe Coupe(const QString &nom)
{
    constexpr int FinLaPlusLongue = 12;
    const qsizetype point = nom.lastIndexOf(u'.');
    const bool avecFin = point > 0 && nom.size() - point <= FinLaPlusLongue;
    return {avecFin ? nom.left(point) : nom, avecFin ? nom.mid(point) : QString()};
}

/// Matches the date in the name of a kept file, and the ending behind it.
const QRegularExpression &FormeDate()
{
    static const QRegularExpression forme(QStringLiteral(R"(_\d{4}-\d\d-\d\d_\d{6}(?: \(\d+\))?(\.[^.]*)?$)"));
    return forme;
}

/// The name of the file at chemin without its folder. In a name without a folder, as the operator has typed it, the
/// signs that no file name may have become "_".
QString NomPermis(const QString &chemin)
{
    static const QRegularExpression interdits(QStringLiteral(R"([\\/:*?"<>|\x00-\x1f])"));
    return QDir::isAbsolutePath(chemin) ? NomSeul(chemin) : QString(chemin).replace(interdits, QStringLiteral("_"));
}

/// The name of the file at chemin without its folder, shortened when it is too long. A file of this folder loses the
/// date in its name, since it gets a new one.
QString NomCourt(const QString &chemin)
{
    QString nom = NomPermis(chemin);
    if (EstGarde(chemin))
        nom.replace(FormeDate(), QStringLiteral("\\1"));
    auto [racine, fin] = Coupe(nom);
    while (QFile::encodeName(racine + fin).size() > LongueurNom)
        racine.chop(1);
    return racine + fin;
}

/// Creates an empty file under the first free name made of nom and date, so that no other copy of the program takes the
/// same name. Gives its path.
QString Reserve(const QString &nom, const QDateTime &date)
{
    const auto &[racine, fin] = Coupe(nom);
    const QString dossier = DossierSauvegardes();
    AssureDossier(dossier);
    for (int rang = 1;; ++rang) {
        const QString suite = rang == 1 ? QString() : QStringLiteral(" (%1)").arg(rang);
        QString chemin =
            AjouteAntislash(dossier) + racine + date.toString(QStringLiteral("_yyyy-MM-dd_HHmmss")) + suite + fin;
        try {
            const FichierDisque reserve(chemin, FichierDisque::Usage::Cree);
            return chemin;
        } catch (const Erreur &) {
            if (!QFile::exists(chemin))
                throw;
        }
    }
}

/// Removes the oldest files beyond NombreMax files or TailleMax bytes. derniere, the file kept last, stays even if the
/// clock of this PC makes it look old. The open file and files that the operator has put here himself stay too.
void Limite(const QString &derniere)
{
    int nombre = 1;
    qint64 taille = QFileInfo(derniere).size();
    const QFileInfoList fichiers =
        QDir(DossierSauvegardes()).entryInfoList(QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDir::Time);
    for (const QFileInfo &fichier : fichiers) {
        if (fichier.fileName() == NomSeul(derniere) || !FormeDate().match(fichier.fileName()).hasMatch())
            continue;
        taille += fichier.size();
        const bool deTrop = ++nombre > NombreMax || taille > TailleMax;
        if (deTrop && fichier != QFileInfo(Document.NomFichier))
            QFile::remove(fichier.filePath());
    }
}

/// Keeps something under the name nom and gives its path; "" when it failed. taille: bytes; ecrit: writes it to the
/// path that it is given.
template <typename Ecriture>
QString Garde(const QString &nom, qint64 taille, Ecriture ecrit)
{
    QString chemin;
    try {
        if (taille > TailleMax)
            throw Erreur(Erreur::MemoireInsuffisante, nom);
        chemin = Reserve(NomCourt(nom), QDateTime::currentDateTime());
        ecrit(chemin);
        Limite(chemin);
        return chemin;
    } catch (const Erreur &erreur) {
        if (!chemin.isEmpty())
            QFile::remove(chemin);
        DitEchecSauvegarde(erreur);
        return {};
    }
}

} // namespace

QString DossierSauvegardes()
{
    return AjouteAntislash(DossierApplication()) + QStringLiteral("Sauvegardes");
}

bool EstGarde(const QString &chemin)
{
    return QDir(QFileInfo(chemin).path()) == QDir(DossierSauvegardes());
}

QString NomDOrigine(const QString &chemin)
{
    return NomCourt(chemin);
}

QString NomPourTexte(const QString &nom)
{
    if (nom.isEmpty())
        return QStringLiteral("Sans nom.iso");
    const bool enrichi = nom.right(3).toUpper() == QLatin1String("RTF");
    return enrichi ? NomCourt(nom) + QStringLiteral(".txt") : NomCourt(nom);
}

QString GardeTexte(const QString &nom, const QString &texte)
{
    return Garde(NomPourTexte(nom), texte.size(), [&](const QString &chemin) { EcritFichierTexte(chemin, texte); });
}

QString GardeCopie(const QString &chemin)
{
    const qint64 taille = FichierExiste(chemin) ? QFileInfo(chemin).size() : 0;
    if (taille == 0)
        return {};
    return Garde(chemin, taille, [&](const QString &copie) { EcritFichierTexte(copie, LitFichierTexte(chemin)); });
}

QString GardeTelQuel(const QString &chemin, const QString &nom)
{
    QString place;
    try {
        place = Reserve(NomPourTexte(nom), QFileInfo(chemin).lastModified());
    } catch (const Erreur &erreur) {
        DitEchecSauvegarde(erreur);
        return chemin;
    }
    try {
        RemplaceFichier(chemin, place);
        return place;
    } catch (const Erreur &) {
        QFile::remove(place);
        return chemin;
    }
}

void EcouteSauvegardes(std::function<void(const Erreur &)> echec)
{
    ecouteur = std::move(echec);
}

void DitEchecSauvegarde(const Erreur &cause)
{
    if (ecouteur)
        ecouteur(cause);
}
