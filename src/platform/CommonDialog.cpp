#include "platform/CommonDialog.h"

#include "platform/Erreur.h"
#include "platform/FenetreAppelante.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>

namespace {

/// The dialog's own form of "label|pattern|label|pattern": a label keeps the words in brackets that it has, and the
/// pattern stands in brackets of its own, which the dialog hides.
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

/// Place of the filter that the dialog says was chosen, from 1. Where it hides the pattern it names the label alone.
int Place(const QStringList &filtres, const QString &choisi)
{
    const auto trouve = std::find_if(filtres.begin(), filtres.end(), [&choisi](const QString &filtre) {
        return filtre == choisi || filtre.startsWith(choisi + QLatin1String(" ("));
    });
    return trouve == filtres.end() ? 1 : static_cast<int>(trouve - filtres.begin()) + 1;
}

} // namespace

void CommonDialog::ShowOpen()
{
    Demande(false);
}

void CommonDialog::ShowSave()
{
    Demande(true);
}

void CommonDialog::Demande(bool enregistrement)
{
    // Without a folder this toolkit's dialog would open where it was last used.
    QFileDialog dialogue(FenetreAppelante(), DialogTitle, InitDir.isEmpty() ? QDir::currentPath() : InitDir);
    dialogue.setObjectName(QStringLiteral("CommonDialog"));
    // The system's own dialog would speak the system's language and not the operator's.
    dialogue.setOption(QFileDialog::DontUseNativeDialog);
    dialogue.setOption(QFileDialog::HideNameFilterDetails);
    dialogue.setOption(QFileDialog::DontConfirmOverwrite, (Flags & EcrasementDemande) == 0);
    dialogue.setAcceptMode(enregistrement ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialogue.setFileMode(enregistrement ? QFileDialog::AnyFile : QFileDialog::ExistingFile);

    const QStringList filtres = Filtres(Filter);
    dialogue.setNameFilters(filtres);
    if (FilterIndex >= 1 && FilterIndex <= filtres.size())
        dialogue.selectNameFilter(filtres[FilterIndex - 1]);
    if (!FileName.isEmpty())
        dialogue.selectFile(FileName);

    if (dialogue.exec() != QDialog::Accepted) {
        if (CancelError)
            throw Erreur(Erreur::DialogueAnnule, QStringLiteral("Cancel was selected."));
        return;
    }
    FileName = QDir::toNativeSeparators(dialogue.selectedFiles().constFirst());
    FileTitle = QFileInfo(FileName).fileName();
    FilterIndex = Place(filtres, dialogue.selectedNameFilter());
}
