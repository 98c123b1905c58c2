#include "platform/texte/LignesVolet.h"

#include "platform/texte/RichTextBox.h"

QString LignesDe(const RichTextBox &volet, int premiere, int nombre)
{
    QString texte;
    QTextBlock bloc = volet.document()->findBlockByNumber(premiere);
    for (int i = 0; i < nombre && bloc.isValid(); ++i) {
        texte += bloc.text();
        bloc = bloc.next();
        if (bloc.isValid())
            texte += TexteDe(volet.FinAvant(bloc));
    }
    return texte;
}
