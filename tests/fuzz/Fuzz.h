#pragma once

#include <QByteArray>
#include <QString>

/// Stops the fuzzer with a finding when something that must hold does not.
#define EXIGE(condition)                                                                                               \
    do {                                                                                                               \
        if (!(condition))                                                                                              \
            __builtin_trap();                                                                                          \
    } while (false)

/// Writes the bytes to a file of the fuzzer's own folder and gives its path.
QString Pose(const char *nom, const QByteArray &octets);

QByteArray Relit(const QString &chemin);

/// What a target does with the bytes of a stranger. Each target defines it.
void Essaie(const QByteArray &octets);
