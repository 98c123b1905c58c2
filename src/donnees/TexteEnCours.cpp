#include "donnees/TexteEnCours.h"

#include "donnees/Chemins.h"
#include "donnees/Sauvegardes.h"
#include "platform/base/Erreur.h"
#include "platform/fichiers/Dossiers.h"
#include "platform/fichiers/FichierDisque.h"
#include "platform/fichiers/FichierTenu.h"
#include "platform/fichiers/FichierTexte.h"

#include <QCoreApplication>
#include <QDir>
#include <QRandomGenerator>

#include <future>
#include <mutex>

namespace {

const QString Prefixe = QStringLiteral("En cours_");
constexpr qsizetype LongueurNumero = 8;

/// Shared by the two threads. Guarded by the lock.
struct
{
    std::mutex verrou;
    QString chemin; ///< file that holds the text, "" for none
    std::unique_ptr<FichierTenu> tenu;
    bool voulu = false; ///< the text is still to be kept
} place;

std::future<void> ecriture;

/// The number of this run in file names, "" before the first file.
QString numero;

QString Debut()
{
    if (numero.isEmpty())
        numero = QStringLiteral("%1").arg(QRandomGenerator::system()->generate(), LongueurNumero, 16, QLatin1Char('0'));
    return AjouteAntislash(DossierSauvegardes()) + Prefixe + numero;
}

void Pose(const QString &partiel, const QString &chemin, std::unique_ptr<FichierTenu> tenu)
{
    const std::lock_guard garde(place.verrou);
    if (!place.voulu) {
        QFile::remove(partiel);
        return;
    }
    if (!FichierTenu::SeRemplace())
        place.tenu.reset(); // and is held again a moment later, as the new one
    RemplaceFichier(partiel, chemin);
    if (!place.chemin.isEmpty() && place.chemin != chemin)
        QFile::remove(place.chemin); // the program has got another name meanwhile
    place.chemin = chemin;
    place.tenu = std::move(tenu);
}

/// Needs the lock.
void Oublie()
{
    place.voulu = false;
    place.chemin.clear();
    place.tenu.reset();
}

/// Runs on the writing thread. The text is written to a second file first, which replaces the old one when it is whole:
/// a crash in between loses nothing.
void Ecrit(const QString &debut, const QString &nom, const QString &texte)
{
    const QString partiel = debut + QStringLiteral(".partiel");
    try {
        AssureDossier(QFileInfo(partiel).path());
        auto tenu = std::make_unique<FichierTenu>(partiel, FichierTenu::Absent::EstCree);
        EcritFichierTexte(partiel, texte);
        Pose(partiel, debut + u'_' + nom, std::move(tenu));
    } catch (const Erreur &erreur) {
        QFile::remove(partiel);
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [erreur] { DitEchecSauvegarde(erreur); }, Qt::QueuedConnection);
    }
}

} // namespace

void EcritEnCours(const QString &nom, const QString &texte)
{
    if (EcritureEnRoute())
        return;
    {
        const std::lock_guard garde(place.verrou);
        place.voulu = true;
    }
    // std::async keeps the lambda until the next writing, so the lambda gives its text away.
    ecriture =
        std::async(std::launch::async, [debut = Debut(), nom = NomPourTexte(nom), texte = QString(texte)]() mutable {
            Ecrit(debut, nom, std::exchange(texte, {}));
        });
}

bool EcritureEnRoute()
{
    return ecriture.valid() && ecriture.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

void RetireEnCours()
{
    const std::lock_guard garde(place.verrou);
    if (!place.chemin.isEmpty())
        QFile::remove(place.chemin);
    Oublie();
}

void ClasseEnCours()
{
    QString chemin;
    {
        const std::lock_guard garde(place.verrou);
        chemin = place.chemin;
        Oublie();
    }
    if (!chemin.isEmpty())
        ClasseTexte(chemin);
}

void LaisseEnCours()
{
    const std::lock_guard garde(place.verrou);
    Oublie();
    numero.clear(); // otherwise the next text of the same name would overwrite it
}

void FinitEnCours()
{
    RetireEnCours();
    if (ecriture.valid())
        ecriture.wait();
}

QStringList TextesDAutrui()
{
    QStringList textes;
    const QFileInfoList fichiers =
        QDir(DossierSauvegardes())
            .entryInfoList({Prefixe + QString(LongueurNumero, u'?') + QStringLiteral("[._]*")}, QDir::Files,
                           QDir::Time);
    for (const QFileInfo &fichier : fichiers) {
        const bool entier = fichier.fileName().at(Prefixe.size() + LongueurNumero) == u'_';
        if (entier)
            textes << QDir::toNativeSeparators(fichier.filePath());
        else if (FichierTenu(fichier.filePath()).Tenu())
            QFile::remove(fichier.filePath());
    }
    return textes;
}

QString ClasseTexte(const QString &chemin)
{
    return GardeTelQuel(chemin, NomDuTexteEnCours(chemin));
}

QString NomDuTexteEnCours(const QString &chemin)
{
    return NomSeul(chemin).mid(Prefixe.size() + LongueurNumero + 1);
}
