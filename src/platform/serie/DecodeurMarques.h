#pragma once

#include "platform/serie/LigneSerie.h"

/// Takes the system's in-band marks out of what was read: 0xFF 0x00 c stands for the character c that came with a
/// parity or framing error, or for a break where c is 0; 0xFF 0xFF stands for the character 0xFF. A mark may be split
/// between two readings.
class DecodeurMarques
{
public:
    struct Resultat
    {
        QByteArray octets;
        QList<qsizetype> marques; ///< positions in octets of the characters that were marked
    };

    Resultat Decode(const QByteArray &lus);
    /// Forgets the beginning of a split mark.
    void Oublie() { m_attente = Attente::Caractere; }

private:
    enum class Attente { Caractere, Genre, Marque };
    Attente m_attente = Attente::Caractere;
};

/// What a mark means, as far as the driver's counters tell.
struct SensMarques
{
    bool pause = false;  ///< a marked NUL is a break
    bool parite = false; ///< any other marked character has a parity error, and not a framing error
};

/// Interprets each mark by sens and counts it in comptes. Breaks are removed from the text, since a break is not a
/// character.
LectureLigne QualifieMarques(const DecodeurMarques::Resultat &resultat, SensMarques sens, CompteursLigne &comptes);
