#include "platform/fichiers/FichierDisque.h"

#include "platform/base/Erreur.h"
#include "platform/base/Reprise.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

// QFile does not distinguish a full disk from a broken one, nor a missing file from an unreadable one, and reports no
// error for a partial write. So errno is cleared before each call and read when the call has failed.

namespace {

QIODevice::OpenMode Mode(FichierDisque::Usage usage)
{
    switch (usage) {
    case FichierDisque::Usage::Lit:
        return QIODevice::ReadOnly;
    case FichierDisque::Usage::Ecrit:
        return QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered;
    case FichierDisque::Usage::Ajoute:
        return QIODevice::Append | QIODevice::ExistingOnly | QIODevice::Unbuffered;
    case FichierDisque::Usage::Cree:
        return QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered;
    }
    return QIODevice::NotOpen;
}

} // namespace

struct FichierDisque::Systeme
{
    QFile fichier;
};

FichierDisque::FichierDisque(const QString &chemin, Usage usage)
    : m_systeme(std::make_unique<Systeme>())
{
    m_systeme->fichier.setFileName(chemin);
    errno = 0;
    if (!m_systeme->fichier.open(Mode(usage)))
        throw ErreurDeFichier(errno);
}

FichierDisque::~FichierDisque() = default;

qint64 FichierDisque::Taille() const
{
    return m_systeme->fichier.size();
}

QByteArray FichierDisque::LitTout()
{
    errno = 0;
    QByteArray octets = m_systeme->fichier.readAll();
    if (m_systeme->fichier.error() != QFileDevice::NoError)
        throw ErreurDeFichier(errno);
    return octets;
}

void FichierDisque::EcritEtFerme(const QByteArray &octets)
{
    QFile &fichier = m_systeme->fichier;
    const auto fermeture = qScopeGuard([&fichier] { fichier.close(); });
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

/// Reserves the room behind the end of the file, where the writing then finds it.
void ExigePlace(const QString &chemin, qint64 taille)
{
    QFile fichier(chemin);
    const qint64 presente = fichier.size();
    if (presente == 0 || taille <= presente || !QFileInfo(chemin).isFile() ||
        !fichier.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return;
    const int cause = posix_fallocate(fichier.handle(), presente, taille - presente);
    fichier.resize(presente);
    if (cause == ENOSPC || cause == EDQUOT || cause == EFBIG)
        throw ErreurDeFichier(cause);
}

void RemplaceFichier(const QString &ancien, const QString &nouveau)
{
    if (rename(QFile::encodeName(ancien).constData(), QFile::encodeName(nouveau).constData()) != 0)
        throw ErreurDeFichier(errno);
}
