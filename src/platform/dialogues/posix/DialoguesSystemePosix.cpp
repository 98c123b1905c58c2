#include "platform/dialogues/CommonDialog.h"
#include "platform/dialogues/DialogueImprimante.h"
#include "platform/dialogues/DialoguePolice.h"
#include "platform/dialogues/DialoguesSysteme.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QToolButton>

namespace {

/// Proposes a PDF file with the document's name, in the folder of the last one. The toolkit itself proposes no name, or
/// the one of the document printed before.
void ProposeFichier(QPrintDialog &dialogue, const QString &document)
{
    auto *const fichier = dialogue.findChild<QLineEdit *>(QStringLiteral("filename"));
    if (fichier == nullptr || document.isEmpty())
        return;
    const QString nom = QFileInfo(document).completeBaseName() + QLatin1String(".pdf");
    fichier->setText(QFileInfo(fichier->text()).dir().filePath(nom));
}

/// Replaces the toolkit's file dialog, which the printing dialog's button opens, by ours.
void DemandeFichierPdf(QLineEdit &fichier)
{
    CommonDialog choix;
    choix.PrepareFichier(QPrintDialog::tr("Print To File ..."), QStringLiteral("PDF|*.pdf"), {}, fichier.text());
    choix.CancelError = false;
    choix.Flags = 0; // the printing dialog asks by itself before it overwrites a file
    choix.DefaultExt = QStringLiteral("pdf");
    choix.ShowSave();
    fichier.setText(choix.FileName);
}

void PrendBoutonFichier(const QPrintDialog &dialogue)
{
    auto *const fichier = dialogue.findChild<QLineEdit *>(QStringLiteral("filename"));
    auto *const bouton = dialogue.findChild<QToolButton *>(QStringLiteral("fileBrowser"));
    if (fichier == nullptr || bouton == nullptr)
        return;
    QObject::disconnect(bouton, &QToolButton::clicked, nullptr, nullptr);
    QObject::connect(bouton, &QToolButton::clicked, fichier, [fichier] { DemandeFichierPdf(*fichier); });
}

/// Leaves the choice between the whole text and the selection. The toolkit shows ranges of pages even where they are
/// not offered, under a title that in French speaks of the selection alone.
void CacheEtendues(QPrintDialog &dialogue)
{
    auto *const etendues = dialogue.findChild<QGroupBox *>(QStringLiteral("gbPrintRange"));
    if (etendues == nullptr)
        return;
    etendues->setTitle(QString());
    const auto choix = etendues->findChildren<QWidget *>();
    for (QWidget *widget : choix) {
        const QString nom = widget->objectName();
        if (nom != QLatin1String("printAll") && nom != QLatin1String("printSelection"))
            widget->hide();
    }
}

bool Accepte(QDialog &dialogue)
{
    dialogue.setObjectName(QStringLiteral("CommonDialog"));
    return dialogue.exec() == QDialog::Accepted;
}

} // namespace

bool FichiersDuSysteme()
{
    return false;
}

bool DemandeFichiers(QFileDialog &dialogue)
{
    return Accepte(dialogue);
}

std::optional<ChoixPolice> DemandePolice(QWidget *fenetre, const QFont &police, const QColor &couleur)
{
    DialoguePolice dialogue(police, couleur, fenetre);
    const QFont offerte = dialogue.currentFont();
    if (!Accepte(dialogue))
        return {};
    return ChoixPolice{offerte, dialogue.selectedFont(), dialogue.Couleur()};
}

bool DemandeImpression(QWidget *fenetre, QPrinter &imprimante, bool selection)
{
    QPrintDialog dialogue(&imprimante, fenetre);
    dialogue.setOptions(QAbstractPrintDialog::PrintToFile);
    ProposeFichier(dialogue, imprimante.docName());
    PrendBoutonFichier(dialogue);
    CacheEtendues(dialogue);
    dialogue.setOption(QAbstractPrintDialog::PrintSelection, selection);
    dialogue.setPrintRange(selection ? QAbstractPrintDialog::Selection : QAbstractPrintDialog::AllPages);
    return Accepte(dialogue);
}

bool DemandeReglageImprimante(QWidget *fenetre, QPrinter &imprimante, const QString &titre)
{
    DialogueImprimante dialogue(imprimante, fenetre);
    dialogue.setWindowTitle(titre);
    if (!Accepte(dialogue))
        return false;
    dialogue.Applique();
    return true;
}
