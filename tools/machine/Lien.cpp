#include "machine/Lien.h"

#include <QFile>

#include <unistd.h>

namespace fs = std::filesystem;

namespace {
fs::path CheminNatif(const QString &chemin)
{
    return QFile::encodeName(chemin).toStdString();
}
} // namespace

Lien::Lien(const QString &chemin, const QString &cible)
    : m_chemin(CheminNatif(chemin))
    , m_cible(CheminNatif(cible))
{
    const fs::file_status avant = fs::symlink_status(m_chemin);
    if (fs::exists(avant) && !fs::is_symlink(avant))
        throw fs::filesystem_error("not a link", m_chemin, std::make_error_code(std::errc::file_exists));
    if (m_chemin.has_parent_path())
        fs::create_directories(m_chemin.parent_path());
    // The new link is made under another name and renamed: a program that opens the port meanwhile finds the old link
    // or the new one.
    const fs::path neuf = m_chemin.string() + "." + std::to_string(getpid());
    fs::remove(neuf);
    fs::create_symlink(m_cible, neuf);
    fs::rename(neuf, m_chemin);
}

Lien::~Lien()
{
    std::error_code sansErreur;
    if (fs::read_symlink(m_chemin, sansErreur) == m_cible)
        fs::remove(m_chemin, sansErreur);
}
