#include "platform/dialogues/ChoixDossier.h"

#include "platform/dialogues/DialoguesSysteme.h"
#include "platform/dialogues/PrepareDialogueFichier.h"

#include <QDir>
#include <QFileDialog>

QString ChoixDossier(QWidget *fenetre, const QString &titre, const QString &depart)
{
    QFileDialog dialogue(fenetre, titre, DossierDeDepart(depart));
    DansLaLangue(dialogue);
    NeFaitQueChoisir(dialogue, true);
    dialogue.setOption(QFileDialog::ShowDirsOnly);
    dialogue.setFileMode(QFileDialog::Directory);
    if (!DemandeFichiers(dialogue))
        return {};
    return QDir::toNativeSeparators(QDir::cleanPath(dialogue.selectedFiles().value(0)));
}
