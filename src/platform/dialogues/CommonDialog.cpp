#include "platform/dialogues/CommonDialog.h"

#include "platform/base/Erreur.h"
#include "platform/dialogues/DialoguesSysteme.h"
#include "platform/dialogues/FenetreAppelante.h"
#include "platform/dialogues/PrepareDialogueFichier.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPrinter>

#include <algorithm>
#include <utility>

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
    const QString fin = std::exchange(DefaultExt, {});
    DansLaLangue(dialogue);
    NeFaitQueChoisir(dialogue, enregistrement);
    dialogue.setOption(QFileDialog::HideNameFilterDetails);
    dialogue.setOption(QFileDialog::DontConfirmOverwrite, (Flags & EcrasementDemande) == 0);
    dialogue.setAcceptMode(enregistrement ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogue.setFileMode(enregistrement ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (enregistrement)
        dialogue.setDefaultSuffix(fin);

    const QStringList filtres = Filtres(Filter);
    dialogue.setNameFilters(filtres);
    if (FilterIndex >= 1 && FilterIndex <= filtres.size())
        dialogue.selectNameFilter(filtres[FilterIndex - 1]);
    if (!FileName.isEmpty()) {
        if (const QFileInfo nom(FileName); nom.isAbsolute() && nom.dir().exists())
            dialogue.setDirectory(nom.path()); // the system's own dialog takes the bare name of the file alone
        dialogue.selectFile(FileName);
    }

    if (!Accepte(DemandeFichiers(dialogue)))
        return;
    FileName = QDir::toNativeSeparators(dialogue.selectedFiles().constFirst());
    FileTitle = QFileInfo(FileName).fileName();
    FilterIndex = Place(filtres, dialogue.selectedNameFilter());
}

void CommonDialog::ShowPrinter()
{
    QPrinter &imprimante = Imprimante();
    if ((Flags & ReglageImprimante) != 0) {
        Accepte(DemandeReglageImprimante(FenetreAppelante(), imprimante, DialogTitle));
        return;
    }
    if (!Accepte(DemandeImpression(FenetreAppelante(), imprimante, (Flags & Selection) != 0)))
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
    const std::optional<ChoixPolice> choix = DemandePolice(FenetreAppelante(), police, Color);
    if (!Accepte(choix.has_value()))
        return;
    // For a font that it does not list exactly, the dialog offers the nearest one: another name, whole points, another
    // style. So what the operator leaves as it was offered keeps its former value.
    const auto prend = [](auto &voulu, const auto &choisi, const auto &offert) {
        if (choisi != offert)
            voulu = choisi;
    };
    const QFont &offerte = choix->offerte;
    const QFont &choisie = choix->choisie;
    prend(FontName, choisie.family(), offerte.family());
    prend(FontSize, choisie.pointSizeF(), offerte.pointSizeF());
    prend(FontBold, choisie.bold(), offerte.bold());
    prend(FontItalic, choisie.italic(), offerte.italic());
    FontStrikeThru = choisie.strikeOut();
    FontUnderline = choisie.underline();
    Color = choix->couleur;
}

QPrinter &CommonDialog::Imprimante()
{
    if (m_imprimante == nullptr)
        m_imprimante = std::make_unique<QPrinter>(QPrinter::HighResolution);
    return *m_imprimante;
}

/// Whether the operator has chosen; raises when he has cancelled and that is an error.
bool CommonDialog::Accepte(bool choisi) const
{
    if (!choisi && CancelError)
        throw Erreur(Erreur::DialogueAnnule, QStringLiteral("Cancel was selected."));
    return choisi;
}
