#include "platform/serie/DecodeurMarques.h"

namespace {
constexpr char Annonce = '\xFF';
}

DecodeurMarques::Resultat DecodeurMarques::Decode(const QByteArray &lus)
{
    Resultat resultat;
    resultat.octets.reserve(lus.size());
    for (const char octet : lus) {
        switch (m_attente) {
        case Attente::Caractere:
            if (octet == Annonce)
                m_attente = Attente::Genre;
            else
                resultat.octets.append(octet);
            break;
        case Attente::Genre:
            if (octet == '\0') {
                m_attente = Attente::Marque;
                break;
            }
            // No mark: a driver that does not double the character 0xFF. Nothing is lost.
            resultat.octets.append(Annonce);
            m_attente = Attente::Caractere;
            if (octet != Annonce)
                resultat.octets.append(octet);
            break;
        case Attente::Marque:
            resultat.marques.append(resultat.octets.size());
            resultat.octets.append(octet);
            m_attente = Attente::Caractere;
            break;
        }
    }
    return resultat;
}

LectureLigne QualifieMarques(const DecodeurMarques::Resultat &resultat, SensMarques sens, CompteursLigne &comptes)
{
    LectureLigne lecture;
    lecture.octets = resultat.octets;
    lecture.erreur = !resultat.marques.isEmpty();
    qsizetype retires = 0;
    for (const qsizetype brute : resultat.marques) {
        const qsizetype position = brute - retires;
        if (sens.pause && lecture.octets.at(position) == '\0') {
            lecture.octets.remove(position, 1);
            ++retires;
            ++comptes.pauses;
        } else if (sens.parite) {
            lecture.fausses.append(position);
            ++comptes.parite;
        } else {
            ++comptes.trame;
        }
    }
    return lecture;
}
