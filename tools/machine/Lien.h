#pragma once

#include <QString>
#include <QtGlobal>

#include <filesystem>

/// A link with a fixed name, such as Ports/Com2, to the device of the machine. The destructor removes it.
class Lien
{
public:
    /// Makes the link and its folder. A link left by a machine that was killed is replaced; a file that is no link is
    /// never touched. Raises std::filesystem::filesystem_error.
    Lien(const QString &chemin, const QString &cible);
    /// Removes the link, unless another machine has replaced it.
    ~Lien();
    Q_DISABLE_COPY_MOVE(Lien)

private:
    std::filesystem::path m_chemin;
    std::filesystem::path m_cible;
};
