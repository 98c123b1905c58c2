#include "platform/fichiers/FichierTexte.h"

#include "platform/base/Erreur.h"
#include "platform/base/Journal.h"
#include "platform/base/PageCode1252.h"
#include "platform/fichiers/FichierDisque.h"

#include <QFile>
#include <QFileInfo>

#include <new>

QByteArray LitOctets(const QString &chemin, qint64 tailleMax)
try {
    qCInfo(JournalFichiers) << "reads" << chemin;
    // Only plain files are read: a device or a pipe may never end.
    if (QFileInfo::exists(chemin) && !QFileInfo(chemin).isFile())
        throw Erreur(Erreur::ErreurFichier, chemin);
    FichierDisque fichier(chemin, FichierDisque::Usage::Lit);
    if (fichier.Taille() > tailleMax)
        throw Erreur(Erreur::MemoireInsuffisante, chemin);
    QByteArray octets = fichier.LitTout();
    qCInfo(JournalFichiers) << octets.size() << "bytes read";
    return octets;
} catch (const std::bad_alloc &) {
    throw Erreur(Erreur::MemoireInsuffisante, chemin);
}

QString LitFichierTexte(const QString &chemin, qint64 tailleMax)
try {
    return TexteDe1252(LitOctets(chemin, tailleMax));
} catch (const std::bad_alloc &) {
    throw Erreur(Erreur::MemoireInsuffisante, chemin);
}

void EcritFichierTexte(const QString &chemin, const QString &texte, FichierCoupe coupe)
{
    const QByteArray octets = OctetsEn1252(texte);
    qCInfo(JournalFichiers) << "writes" << octets.size() << "bytes to" << chemin;
    ExigePlace(chemin, octets.size());
    FichierDisque fichier(chemin, FichierDisque::Usage::Ecrit);
    try {
        fichier.EcritEtFerme(octets);
    } catch (const Erreur &) {
        if (coupe == FichierCoupe::Part && FichierExiste(chemin)) // never a device
            QFile::remove(QFileInfo(chemin).canonicalFilePath());
        throw;
    }
}

void AjouteFichierTexte(const QString &chemin, const QString &texte)
{
    qCInfo(JournalFichiers) << "adds" << texte.size() << "bytes to" << chemin;
    FichierDisque fichier(chemin, FichierDisque::Usage::Ajoute);
    const qint64 presente = fichier.Taille();
    try {
        fichier.EcritEtFerme(OctetsEn1252(texte));
    } catch (const Erreur &) {
        QFile::resize(chemin, presente); // cuts off the partial write; fails harmlessly for a missing file or a device
        throw;
    }
}

bool FichierExiste(const QString &chemin)
{
    return QFileInfo(chemin).isFile();
}
