#include "shell/Edition.h"

#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace {

/// Keeps the text as it stands before a change, for Mnu_Annuler.
void RetientTexte()
{
    TexteAnnuler = frmPrinc->Text1->Text();
    frmPrinc->Mnu_Annuler->setEnabled(true);
}

} // namespace

void BrancheEdition()
{
    QObject::connect(frmPrinc->Text1, &RichTextBox::MouseDown, frmPrinc, [](Qt::MouseButton bouton, const QPoint &ou) {
        if (bouton == Qt::RightButton)
            frmPrinc->Mnu_Edition->popup(ou);
    });
}

void Mnu_Edition()
{
    const QMimeData *const copie = QGuiApplication::clipboard()->mimeData(); // nullptr when nothing was ever copied
    frmPrinc->Mnu_Coller->setEnabled(copie != nullptr && copie->hasText());
    const bool choisi = frmPrinc->Text1->textCursor().hasSelection(); // its length takes time in a long program
    for (QAction *action : {frmPrinc->Mnu_Couper, frmPrinc->Mnu_Copier, frmPrinc->Mnu_Supprimer})
        action->setEnabled(choisi);
}

void Mnu_Annuler()
{
    frmPrinc->Text1->setText(TexteAnnuler);
    frmPrinc->Mnu_Annuler->setEnabled(false);
}

void Mnu_Couper()
{
    Mnu_Copier();
    Mnu_Supprimer();
}

void Mnu_Copier()
{
    frmPrinc->Text1->copy();
    frmPrinc->Mnu_Coller->setEnabled(true);
}

void Mnu_Coller()
{
    RetientTexte();
    frmPrinc->Text1->paste();
}

void Mnu_Supprimer()
{
    RetientTexte();
    frmPrinc->Text1->setSelText(QString());
}
