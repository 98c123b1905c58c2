#pragma once

#include <QString>
#include <QtGlobal>

#include <filesystem>

/// A link of a steady name to the device of the machine, such as Ports/Com2. Gone when this object goes.
class Lien
{
public:
    /// Makes the link, and the folder for it. A link that is already there, from a machine that was killed, is
    /// replaced; a file that is no link is never touched. Raises std::filesystem::filesystem_error.
    Lien(const QString &chemin, const QString &cible);
    /// Removes the link, unless another machine has taken the name over meanwhile.
    ~Lien();
    Q_DISABLE_COPY_MOVE(Lien)

private:
    std::filesystem::path m_chemin;
    std::filesystem::path m_cible;
};
