#include "platform/fichiers/FichierTenu.h"

#include "platform/base/Reprise.h"

#include <QFile>

#include <sys/file.h>

struct FichierTenu::Systeme
{
    QFile fichier;
    bool tenu = false;
};

FichierTenu::FichierTenu(const QString &chemin, Absent absent)
    : m_systeme(std::make_unique<Systeme>())
{
    QFile &fichier = m_systeme->fichier;
    fichier.setFileName(chemin);
    m_systeme->tenu = fichier.open(QIODevice::ReadWrite | QIODevice::Unbuffered |
                                   (absent == Absent::Reste ? QIODevice::ExistingOnly : QIODevice::NotOpen)) &&
                      Reprise([&fichier] { return flock(fichier.handle(), LOCK_EX | LOCK_NB); }) == 0 &&
                      QFile::exists(chemin);
}

FichierTenu::~FichierTenu() = default;

bool FichierTenu::Tenu() const
{
    return m_systeme->tenu;
}

bool FichierTenu::SeRemplace()
{
    return true;
}
