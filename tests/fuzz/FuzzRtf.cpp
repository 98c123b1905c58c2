#include "fuzz/Fuzz.h"

#include "platform/Erreur.h"
#include "platform/LecteurRtf.h"

// Rich text from any program: the text is never longer than what its file can say.
void Essaie(const QByteArray &octets)
{
    qsizetype longueur = 0;
    try {
        for (const MorceauRtf &morceau : LitRtf(octets))
            longueur += morceau.texte.size();
    } catch (const Erreur &) {
        return;
    }
    EXIGE(longueur <= 2 * octets.size());
}
