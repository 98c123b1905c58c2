#include "shell/Impression.h"

#include "locale/Langue.h"
#include "locale/TextesErreur.h"
#include "platform/base/Erreur.h"
#include "platform/dialogues/Boites.h"
#include "platform/dialogues/CommonDialog.h"
#include "platform/dialogues/Printer.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QPrinter>
#include <QProgressDialog>

namespace {

constexpr Texte3 TitreReglage{u"Configurer l'imprimante", u"Print setup", u"Configurar la impresiôn"};
constexpr Texte3 SansImprimanteTitre{u"Imprimante", u"Printer", u"Impresora"};
constexpr Texte3 EnCours{u"Impression en cours...", u"Printing...", u"Impresión en curso..."};

QFont PoliceDuTexte()
{
    const RichTextBox &volet = *frmPrinc->Text1;
    QFont police = volet.font();
    police.setBold(volet.SelBold());
    police.setItalic(volet.SelItalic());
    police.setFamily(volet.SelFontName());
    police.setPointSizeF(volet.SelFontSize());
    police.setStrikeOut(volet.SelStrikeThru());
    police.setUnderline(volet.SelUnderline());
    return police;
}

/// The progress of a printing, shown when it takes long. The main window is blocked meanwhile.
class AvancementImpression : public QProgressDialog
{
public:
    AvancementImpression(int copies, qsizetype caracteres)
        : QProgressDialog(frmPrinc)
        , m_caracteres(caracteres)
    {
        setObjectName(QStringLiteral("Impression"));
        setWindowTitle(Document.TitreFichier);
        setLabelText(Texte(EnCours));
        setWindowModality(Qt::WindowModal);
        setMinimumDuration(1500);
        setRange(0, copies * Pas);
        setValue(0);
    }

    /// copie: number of the copy, from 0; faits: characters of it printed so far. Raises DialogueAnnule when the
    /// operator stops the printing.
    void Montre(int copie, qsizetype faits)
    {
        setValue(copie * Pas + static_cast<int>(faits * Pas / m_caracteres));
        if (wasCanceled())
            throw Erreur(Erreur::DialogueAnnule, QStringLiteral("Cancel was selected."));
    }

private:
    static constexpr int Pas = 1000; // steps of the progress bar for one copy

    qsizetype m_caracteres;
};

void Imprime(QPrinter &reglages, int copies)
{
    const QString texte = frmPrinc->Text1->Text();
    AvancementImpression avancement(copies, texte.size());
    Printer imprimante(reglages);
    imprimante.Print();
    imprimante.Font = PoliceDuTexte();
    for (int copie = 0; copie < copies; ++copie) {
        imprimante.Print();
        imprimante.Print(QStringLiteral("Programme : ") + Document.NomFichier);
        imprimante.Print(QStringLiteral("\r"));
        imprimante.Suivi = [&avancement, copie](qsizetype faits) { avancement.Montre(copie, faits); };
        imprimante.Print(texte);
        imprimante.Suivi = {};
        imprimante.EndDoc();
    }
}

/// Runs a command that needs a printer. Where there is none the operator is told; no other failure is.
void AvecImprimante(const std::function<void()> &commande)
{
    try {
        commande();
    } catch (const Erreur &erreur) {
        if (erreur.Numero() == Erreur::SansImprimante)
            MsgBox(TexteErreur(erreur), Boite::Information, Texte(SansImprimanteTitre));
    }
}

} // namespace

void Mnu_Imprim()
{
    CommonDialog &dialogue = *frmPrinc->CommonDialog1;
    dialogue.CancelError = true;
    dialogue.Flags = frmPrinc->Text1->SelLength() > 0 ? CommonDialog::Selection : 0;
    AvecImprimante([&dialogue] {
        dialogue.Imprimante().setDocName(Document.TitreFichier);
        dialogue.ShowPrinter();
        frmPrinc->Text1->setSelLength(0); // the whole text is printed, whatever was selected
        Imprime(dialogue.Imprimante(), dialogue.Copies);
    });
}

void Mnu_ConfigIMP()
{
    CommonDialog &dialogue = *frmPrinc->CommonDialog1;
    dialogue.DialogTitle = Texte(TitreReglage);
    dialogue.Flags = CommonDialog::ReglageImprimante;
    AvecImprimante([&dialogue] { dialogue.ShowPrinter(); });
}
