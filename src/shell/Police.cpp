#include "shell/Police.h"

#include "platform/base/Erreur.h"
#include "platform/dialogues/CommonDialog.h"
#include "shell/FrmPrinc.h"
#include "shell/MenuEdition.h"

#include <limits>

namespace {

struct Aspect
{
    QString police;
    double taille; ///< points
    bool gras, italique, barre, souligne;
    QColor couleur;
};

/// The look of the selected text, as at its beginning.
Aspect AspectDe(const RichTextBox &volet)
{
    return {volet.SelFontName(),   volet.SelFontSize(),  volet.SelBold(), volet.SelItalic(),
            volet.SelStrikeThru(), volet.SelUnderline(), volet.SelColor()};
}

/// Sets what the dialog offers first.
void Offre(CommonDialog &dialogue, const Aspect &aspect)
{
    dialogue.FontName = aspect.police;
    dialogue.FontSize = aspect.taille;
    dialogue.FontBold = aspect.gras;
    dialogue.FontItalic = aspect.italique;
    dialogue.FontStrikeThru = aspect.barre;
    dialogue.FontUnderline = aspect.souligne;
    dialogue.Color = aspect.couleur;
}

Aspect Choix(const CommonDialog &dialogue)
{
    return {dialogue.FontName,       dialogue.FontSize,      dialogue.FontBold, dialogue.FontItalic,
            dialogue.FontStrikeThru, dialogue.FontUnderline, dialogue.Color};
}

void ChoisitTout(RichTextBox &volet)
{
    volet.setSelStart(0);
    volet.setSelLength(std::numeric_limits<int>::max());
}

/// Gives the selected text a look, and clears the selection.
void Habille(RichTextBox &volet, const Aspect &aspect)
{
    volet.setSelFontName(aspect.police);
    volet.setSelFontSize(aspect.taille);
    volet.setSelBold(aspect.gras);
    volet.setSelItalic(aspect.italique);
    volet.setSelStrikeThru(aspect.barre);
    volet.setSelUnderline(aspect.souligne);
    volet.setSelColor(aspect.couleur);
    volet.setSelLength(0);
}

void ReprendAspect(const Aspect &aspect)
{
    ChoisitTout(*frmPrinc->Text1);
    Habille(*frmPrinc->Text1, aspect);
}

} // namespace

void Mnu_Police()
{
    CommonDialog &dialogue = *frmPrinc->CommonDialog1;
    RichTextBox &volet = *frmPrinc->Text1;
    try {
        dialogue.CancelError = true;
        RetientPourAnnuler();
        ChoisitTout(volet);
        const Aspect avant = AspectDe(volet);
        Offre(dialogue, avant);
        dialogue.ShowFont();
        Habille(volet, Choix(dialogue));
        RetientAspect([avant] { ReprendAspect(avant); });
    } catch (const Erreur &) {
        dialogue.CancelError = false;
    }
}
