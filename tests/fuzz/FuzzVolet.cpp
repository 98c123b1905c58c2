#include "fuzz/Fuzz.h"

#include "platform/base/Erreur.h"
#include "platform/base/PageCode1252.h"
#include "platform/texte/RichTextBox.h"

// Any file is a text: what the pane gives back is what was loaded, to the byte. As rich text it may be refused, or is
// never longer than what its file can say.
void Essaie(const QByteArray &octets)
{
    static RichTextBox volet;
    const QString chemin = Pose("Etranger.iso", octets);
    volet.LoadFile(chemin, RichTextBox::TexteSimple);
    EXIGE(OctetsEn1252(volet.Text()) == octets);
    try {
        volet.LoadFile(chemin, RichTextBox::TexteRiche);
        EXIGE(volet.Text().size() <= 2 * octets.size());
    } catch (const Erreur &) {
        EXIGE(OctetsEn1252(volet.Text()) == octets);
    }
}
