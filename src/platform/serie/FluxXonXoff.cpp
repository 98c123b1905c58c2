#include "platform/serie/FluxXonXoff.h"

#include "platform/serie/CaracteresFlux.h"

#include <algorithm>

void FluxXonXoff::Pose(bool actif)
{
    m_actif = actif;
    m_retenue = false;
}

LectureLigne FluxXonXoff::Entend(const LectureLigne &lecture)
{
    if (!m_actif)
        return lecture;
    LectureLigne entendue;
    entendue.erreur = lecture.erreur;
    for (qsizetype i = 0; i < lecture.octets.size(); ++i) {
        const char octet = lecture.octets.at(i);
        const bool fausse = std::binary_search(lecture.fausses.cbegin(), lecture.fausses.cend(), i);
        if (!fausse && (octet == Xon || octet == Xoff)) {
            m_retenue = octet == Xoff;
            continue;
        }
        if (fausse)
            entendue.fausses.append(entendue.octets.size());
        entendue.octets.append(octet);
    }
    return entendue;
}

std::optional<char> FluxXonXoff::ADire(qsizetype nombre, int taille) const
{
    if (m_freinee)
        return !m_actif || nombre * 4 <= taille ? std::optional(Xon) : std::nullopt;
    return m_actif && nombre * 4 >= qsizetype(taille) * 3 ? std::optional(Xoff) : std::nullopt;
}

void FluxXonXoff::Dit(char signal)
{
    m_freinee = signal == Xoff;
}
