#include "platform/controles/posix/VolumesPosix.h"

#include "platform/controles/Volumes.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>

namespace {

const QString Table = QStringLiteral("/proc/self/mountinfo");

/// Decodes a path of the table, where a blank, a tab, a line end or a "\" is written as "\" and three octal digits.
QString CheminDeTable(const QByteArray &ecrit)
{
    constexpr int chiffres = 3;
    QByteArray chemin;
    for (qsizetype i = 0; i < ecrit.size(); ++i) {
        bool octal = false;
        const int code = ecrit[i] == '\\' ? ecrit.mid(i + 1, chiffres).toInt(&octal, 8) : 0;
        chemin += octal ? static_cast<char>(code) : ecrit[i];
        i += octal ? chiffres : 0;
    }
    return QFile::decodeName(chemin);
}

} // namespace

QStringList VolumesDeTable(const QByteArray &table, const QString &utilisateur)
{
    constexpr int champ = 4; // index of the mount point in a line of the table
    const QStringList dossiers = {QStringLiteral("/media"), QStringLiteral("/media/") + utilisateur,
                                  QStringLiteral("/run/media/") + utilisateur, QStringLiteral("/mnt")};
    QStringList volumes;
    const auto lignes = table.split('\n');
    for (const QByteArray &ligne : lignes) {
        const QString chemin = CheminDeTable(ligne.split(' ').value(champ));
        if (dossiers.contains(QFileInfo(chemin).path()) && !dossiers.contains(chemin))
            volumes << chemin;
    }
    volumes.sort();
    volumes.removeDuplicates();
    return volumes;
}

QStringList Volumes()
{
    QFile table(Table);
    if (!table.open(QIODevice::ReadOnly))
        return {};
    return VolumesDeTable(table.readAll(), qEnvironmentVariable("USER", QDir::home().dirName()));
}

struct GuetteurVolumes::Systeme
{
    QFile table{Table}; // open as long as it is watched
};

GuetteurVolumes::GuetteurVolumes()
    : m_systeme(std::make_unique<Systeme>())
{
    if (!m_systeme->table.open(QIODevice::ReadOnly))
        return;
    // The system reports each change of the open table as an exceptional condition.
    auto *const signal = new QSocketNotifier(m_systeme->table.handle(), QSocketNotifier::Exception, this);
    connect(signal, &QSocketNotifier::activated, this, &GuetteurVolumes::Change);
}

GuetteurVolumes::~GuetteurVolumes() = default;
