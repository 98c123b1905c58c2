#include "platform/fichiers/FichierTenu.h"

#include "platform/base/Reprise.h"

#include <sys/file.h>

FichierTenu::FichierTenu(const QString &chemin, Absent absent)
    : m_fichier(chemin)
    , m_tenu(m_fichier.open(QIODevice::ReadWrite | QIODevice::Unbuffered |
                            (absent == Absent::Reste ? QIODevice::ExistingOnly : QIODevice::NotOpen)) &&
             Reprise([this] { return flock(m_fichier.handle(), LOCK_EX | LOCK_NB); }) == 0 && QFile::exists(chemin))
{
}
