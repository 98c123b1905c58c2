#include "platform/Erreur.h"

Erreur::Erreur(int numero, const QString &description)
    : m_numero(numero)
    , m_description(description)
    , m_octets(description.toUtf8())
{
}
