#pragma once

#include <QStringList>

/// The result of Volumes() for a given table, in the form of /proc/self/mountinfo, and the user name utilisateur.
QStringList VolumesDeTable(const QByteArray &table, const QString &utilisateur);
