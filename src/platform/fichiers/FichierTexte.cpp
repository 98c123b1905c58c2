#include "platform/fichiers/FichierTexte.h"

#include "platform/base/Erreur.h"
#include "platform/base/Journal.h"
#include "platform/base/PageCode1252.h"
#include "platform/base/Reprise.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <new>

#include <fcntl.h>
#include <unistd.h>

namespace {

// QFile does not distinguish a full disk from a broken one, nor a missing file from an unreadable one, and reports no
// error for a partial write. So errno is cleared before each call and read when the call has failed.

void Ouvre(QFile &fichier, QIODevice::OpenMode mode)
{
    errno = 0;
    if (!fichier.open(mode))
        throw ErreurDeFichier(errno);
}

/// Checks that the disk has room for a file with content to grow to taille bytes, while that content is still
/// untouched. Raises DisqueSature, or ErreurFichier for a size that the file system does not allow. A file system that
/// cannot tell passes.
void ExigePlace(const QString &chemin, qint64 taille)
{
    QFile fichier(chemin);
    const qint64 presente = fichier.size();
    if (presente == 0 || taille <= presente || !FichierExiste(chemin) ||
        !fichier.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return;
    const int cause = posix_fallocate(fichier.handle(), presente, taille - presente);
    fichier.resize(presente);
    if (cause == ENOSPC || cause == EDQUOT || cause == EFBIG)
        throw ErreurDeFichier(cause);
}

void Ecrit(QFile &fichier, const QByteArray &octets)
{
    errno = 0;
    if (fichier.write(octets) != octets.size())
        throw ErreurDeFichier(errno);
    // The system buffers what is written. Only here does it report that a USB stick was pulled out meanwhile.
    const int cause = Reprise([&fichier] { return fsync(fichier.handle()); }) < 0 ? errno : 0;
    if (cause != 0 && cause != EINVAL && cause != EROFS) // EINVAL, EROFS: a device, which cannot be synchronised
        throw ErreurDeFichier(cause);
    // A network drive may find out only here that it has no room.
    errno = 0;
    fichier.close();
    if (fichier.error() != QFileDevice::NoError)
        throw ErreurDeFichier(errno);
}

} // namespace

QByteArray LitOctets(const QString &chemin, qint64 tailleMax)
try {
    qCInfo(JournalFichiers) << "reads" << chemin;
    QFile fichier(chemin);
    // Only plain files are read: a device or a pipe may never end.
    if (QFileInfo::exists(chemin) && !QFileInfo(chemin).isFile())
        throw Erreur(Erreur::ErreurFichier, chemin);
    Ouvre(fichier, QIODevice::ReadOnly);
    if (fichier.size() > tailleMax)
        throw Erreur(Erreur::MemoireInsuffisante, chemin);
    errno = 0;
    QByteArray octets = fichier.readAll();
    if (fichier.error() != QFileDevice::NoError)
        throw ErreurDeFichier(errno);
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
    QFile fichier(chemin);
    Ouvre(fichier, QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered);
    try {
        Ecrit(fichier, octets);
    } catch (const Erreur &) {
        if (coupe == FichierCoupe::Part && FichierExiste(chemin)) // never a device
            QFile::remove(QFileInfo(chemin).canonicalFilePath());
        throw;
    }
}

void AjouteFichierTexte(const QString &chemin, const QString &texte)
{
    qCInfo(JournalFichiers) << "adds" << texte.size() << "bytes to" << chemin;
    QFile fichier(chemin);
    Ouvre(fichier, QIODevice::Append | QIODevice::ExistingOnly | QIODevice::Unbuffered);
    const qint64 presente = fichier.size();
    try {
        Ecrit(fichier, OctetsEn1252(texte));
    } catch (const Erreur &) {
        QFile::resize(chemin, presente); // cuts off the partial write; fails harmlessly for a missing file or a device
        throw;
    }
}

bool FichierExiste(const QString &chemin)
{
    return QFileInfo(chemin).isFile();
}
