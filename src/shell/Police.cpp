#include "shell/Police.h"

#include "platform/CommonDialog.h"
#include "platform/Erreur.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"

namespace {

/// What the dialog offers first.
void Offre(CommonDialog &dialogue, const RichTextBox &volet)
{
    dialogue.FontName = volet.SelFontName();
    dialogue.FontSize = volet.SelFontSize();
    dialogue.FontBold = volet.SelBold();
    dialogue.FontItalic = volet.SelItalic();
    dialogue.FontStrikeThru = volet.SelStrikeThru();
    dialogue.FontUnderline = volet.SelUnderline();
    dialogue.Color = volet.SelColor();
}

void Habille(RichTextBox &volet, const CommonDialog &dialogue)
{
    volet.setSelFontName(dialogue.FontName);
    volet.setSelFontSize(dialogue.FontSize);
    volet.setSelBold(dialogue.FontBold);
    volet.setSelItalic(dialogue.FontItalic);
    volet.setSelStrikeThru(dialogue.FontStrikeThru);
    volet.setSelUnderline(dialogue.FontUnderline);
    volet.setSelColor(dialogue.Color);
}

} // namespace

void Mnu_Police()
{
    CommonDialog &dialogue = *frmPrinc->CommonDialog1;
    RichTextBox &volet = *frmPrinc->Text1;
    try {
        dialogue.CancelError = true;
        TexteAnnuler = volet.Text();
        frmPrinc->Mnu_Annuler->setEnabled(true);
        volet.setSelStart(0);
        volet.setSelLength(static_cast<int>(TexteAnnuler.size()));
        Offre(dialogue, volet);
        dialogue.ShowFont();
        Habille(volet, dialogue);
        volet.setSelLength(0);
    } catch (const Erreur &) {
        dialogue.CancelError = false;
    }
}
