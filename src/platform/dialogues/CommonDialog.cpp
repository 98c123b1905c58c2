#include "platform/dialogues/CommonDialog.h"

#include "platform/base/Erreur.h"
#include "platform/dialogues/DialogueImprimante.h"
#include "platform/dialogues/DialoguePolice.h"
#include "platform/dialogues/FenetreAppelante.h"
#include "platform/dialogues/PrepareDialogueFichier.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QToolButton>

#include <algorithm>

namespace {

/// The toolkit's form of the pairs "label|pattern|label|pattern": each is a label followed by the pattern in brackets,
/// which the dialog hides. Brackets inside a label stay.
QStringList Filtres(const QString &paires)
{
    const QStringList pieces = paires.split(u'|');
    QStringList filtres;
    for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
        // "*.*" means every file, also one without a point in its name.
        const QString motif = pieces[i + 1] == QLatin1String("*.*") ? QStringLiteral("*") : pieces[i + 1];
        filtres << pieces[i] + QLatin1String(" (") + motif + u')';
    }
    return filtres;
}

/// Place of the filter that the dialog says was chosen, from 1. A dialog that hides the patterns names the label alone.
int Place(const QStringList &filtres, const QString &choisi)
{
    const auto trouve = std::find_if(filtres.begin(), filtres.end(), [&choisi](const QString &filtre) {
        return filtre == choisi || filtre.startsWith(choisi + QLatin1String(" ("));
    });
    return trouve == filtres.end() ? 1 : static_cast<int>(trouve - filtres.begin()) + 1;
}

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

} // namespace

CommonDialog::CommonDialog(QObject *parent)
    : QObject(parent)
{
}

CommonDialog::~CommonDialog() = default;

void CommonDialog::PrepareFichier(const QString &titre, const QString &filtre, const QString &dossier,
                                  const QString &nom)
{
    CancelError = true;
    DialogTitle = titre;
    Filter = filtre;
    FilterIndex = 1;
    InitDir = dossier;
    FileName = nom;
    DefaultExt.clear();
    Flags = EcrasementDemande;
}

void CommonDialog::ShowOpen()
{
    DemandeFichier(false);
}

void CommonDialog::ShowSave()
{
    DemandeFichier(true);
}

void CommonDialog::DemandeFichier(bool enregistrement)
{
    QFileDialog dialogue(FenetreAppelante(), DialogTitle, DossierDeDepart(InitDir));
    DansLaLangue(dialogue);
    NeFaitQueChoisir(dialogue, enregistrement);
    dialogue.setOption(QFileDialog::HideNameFilterDetails);
    dialogue.setOption(QFileDialog::DontConfirmOverwrite, (Flags & EcrasementDemande) == 0);
    dialogue.setAcceptMode(enregistrement ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogue.setFileMode(enregistrement ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (enregistrement)
        dialogue.setDefaultSuffix(DefaultExt);

    const QStringList filtres = Filtres(Filter);
    dialogue.setNameFilters(filtres);
    if (FilterIndex >= 1 && FilterIndex <= filtres.size())
        dialogue.selectNameFilter(filtres[FilterIndex - 1]);
    if (!FileName.isEmpty())
        dialogue.selectFile(FileName);

    if (!Accepte(dialogue))
        return;
    FileName = QDir::toNativeSeparators(dialogue.selectedFiles().constFirst());
    FileTitle = QFileInfo(FileName).fileName();
    FilterIndex = Place(filtres, dialogue.selectedNameFilter());
}

void CommonDialog::ShowPrinter()
{
    if ((Flags & ReglageImprimante) == 0) {
        DemandeCopies();
        return;
    }
    DialogueImprimante dialogue(Imprimante(), FenetreAppelante());
    dialogue.setWindowTitle(DialogTitle);
    if (Accepte(dialogue))
        dialogue.Applique();
}

void CommonDialog::DemandeCopies()
{
    QPrinter &imprimante = Imprimante();
    QPrintDialog dialogue(&imprimante, FenetreAppelante());
    dialogue.setOptions(QAbstractPrintDialog::PrintToFile);
    ProposeFichier(dialogue, imprimante.docName());
    PrendBoutonFichier(dialogue);
    CacheEtendues(dialogue);
    const bool selection = (Flags & Selection) != 0;
    dialogue.setOption(QAbstractPrintDialog::PrintSelection, selection);
    dialogue.setPrintRange(selection ? QAbstractPrintDialog::Selection : QAbstractPrintDialog::AllPages);
    if (!Accepte(dialogue))
        return;
    Copies = imprimante.copyCount();
    imprimante.setCopyCount(1);
}

void CommonDialog::ShowFont()
{
    QFont police(FontName);
    police.setPointSizeF(FontSize);
    police.setBold(FontBold);
    police.setItalic(FontItalic);
    police.setStrikeOut(FontStrikeThru);
    police.setUnderline(FontUnderline);
    DialoguePolice dialogue(police, Color, FenetreAppelante());
    const QFont offerte = dialogue.currentFont();
    if (!Accepte(dialogue))
        return;
    // For a font that it does not list exactly, the dialog offers the nearest one: another name, whole points, another
    // style. So what the operator leaves as it was offered keeps its former value.
    const auto prend = [](auto &voulu, const auto &choisi, const auto &offert) {
        if (choisi != offert)
            voulu = choisi;
    };
    police = dialogue.selectedFont();
    prend(FontName, police.family(), offerte.family());
    prend(FontSize, police.pointSizeF(), offerte.pointSizeF());
    prend(FontBold, police.bold(), offerte.bold());
    prend(FontItalic, police.italic(), offerte.italic());
    FontStrikeThru = police.strikeOut();
    FontUnderline = police.underline();
    Color = dialogue.Couleur();
}

QPrinter &CommonDialog::Imprimante()
{
    if (m_imprimante == nullptr)
        m_imprimante = std::make_unique<QPrinter>(QPrinter::HighResolution);
    return *m_imprimante;
}

/// Shows a dialog of any kind; false when the operator cancels and that is no error.
bool CommonDialog::Accepte(QDialog &dialogue) const
{
    dialogue.setObjectName(QStringLiteral("CommonDialog"));
    if (dialogue.exec() == QDialog::Accepted)
        return true;
    if (CancelError)
        throw Erreur(Erreur::DialogueAnnule, QStringLiteral("Cancel was selected."));
    return false;
}
