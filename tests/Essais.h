#pragma once

#include "platform/base/Erreur.h"

/// The number with which an operation fails, 0 when it succeeds.
template <typename Operation>
int NumeroErreur(Operation operation)
{
    try {
        operation();
    } catch (const Erreur &erreur) {
        return erreur.Numero();
    }
    return 0;
}

/// Every byte once, in order.
inline QByteArray TousLesOctets()
{
    QByteArray octets;
    for (int code = 0; code < 256; ++code)
        octets += static_cast<char>(code);
    return octets;
}
