#include "shell/MenuEdition.h"

#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace {

std::function<void()> reprendAspect; // empty unless the last command changed the look

void OublieAnnulation()
{
    Document.TexteAnnuler.clear();
    reprendAspect = {};
    frmPrinc->Mnu_Annuler->setEnabled(false);
}

} // namespace

void BrancheEdition()
{
    QObject::connect(frmPrinc->Text1, &RichTextBox::Remplacement, frmPrinc, OublieAnnulation);
    QObject::connect(frmPrinc->Text1, &RichTextBox::MouseDown, frmPrinc, [](Qt::MouseButton bouton, const QPoint &ou) {
        if (bouton == Qt::RightButton)
            frmPrinc->Mnu_Edition->popup(ou);
    });
}

void RetientPourAnnuler()
{
    Document.TexteAnnuler = frmPrinc->Text1->Text();
    reprendAspect = {};
    frmPrinc->Mnu_Annuler->setEnabled(true);
}

void RetientAspect(std::function<void()> reprend)
{
    reprendAspect = std::move(reprend);
}

void Mnu_Edition()
{
    const QMimeData *const copie = QGuiApplication::clipboard()->mimeData(); // nullptr before the first copy
    frmPrinc->Mnu_Coller->setEnabled(copie != nullptr && copie->hasText());
    const bool choisi = frmPrinc->Text1->textCursor().hasSelection(); // quick, unlike the length of a long selection
    for (QAction *action : {frmPrinc->Mnu_Couper, frmPrinc->Mnu_Copier, frmPrinc->Mnu_Supprimer})
        action->setEnabled(choisi);
}

void Mnu_Annuler()
{
    const QString avant = Document.TexteAnnuler;
    const auto aspect = reprendAspect;
    if (frmPrinc->Text1->Text() != avant) // an undo without effect does not count as a change
        frmPrinc->Text1->setText(avant);
    OublieAnnulation();
    if (aspect)
        aspect();
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
    RetientPourAnnuler();
    frmPrinc->Text1->paste();
}

void Mnu_Supprimer()
{
    RetientPourAnnuler();
    frmPrinc->Text1->setSelText(QString());
}
