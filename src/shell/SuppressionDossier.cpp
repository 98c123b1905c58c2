#include "shell/SuppressionDossier.h"

#include "locale/Langue.h"
#include "locale/TextesErreur.h"
#include "platform/base/Erreur.h"
#include "platform/dialogues/Boites.h"
#include "platform/dialogues/FenetreAppelante.h"
#include "platform/fichiers/Dossiers.h"

#include <QFileInfo>
#include <QProgressDialog>

#include <limits>

namespace {

constexpr Texte3 QuestionTitre{u"Supprimer un dossier", u"Remove a directory", u"Suprimir un directorio"};
constexpr Texte3 QuestionDossier{u"Supprimer définitivement ce dossier et tout ce qu'il contient ?",
                                 u"Permanently remove this directory and all that it holds ?",
                                 u"Suprimir definitivamente este directorio y todo lo que contiene ?"};
constexpr Texte3 QuestionLien{u"Supprimer ce lien ? Le dossier auquel il mène reste en place.",
                              u"Remove this link ? The directory that it leads to stays in place.",
                              u"Suprimir este enlace ? El directorio al que lleva queda en su sitio."};
constexpr Texte3 NombreDossiers{u"Sous-dossiers : ", u"Sub-directories: ", u"Subdirectorios: "};
constexpr Texte3 NombreFichiers{u", fichiers : ", u", files: ", u", ficheros: "};

constexpr Texte3 ResultatTitre{u"Information", u"Information", u"Información"};
constexpr Texte3 Reussi{u"Suppression de dossier réussi", u"Suppression of successful repertory",
                        u"Supresión de directorio conseguido"};
constexpr Texte3 NumeroErreur{u"ERREUR N° ", u"ERROR N° ", u"ERROR N° "};
constexpr Texte3 Reste{u"Il reste dans le dossier : ", u"Left in the directory: ", u"Quedan en el directorio: "};

QString Compte(const ContenuDossier &contenu)
{
    return Texte(NombreDossiers) + QString::number(contenu.dossiers) + Texte(NombreFichiers) +
           QString::number(contenu.fichiers);
}

bool Accepte(const QString &chemin, const ContenuDossier &contenu)
{
    const bool lien = EstLien(chemin);
    const QString question =
        lien ? Texte(QuestionLien) + u'\r' + chemin : Texte(QuestionDossier) + u'\r' + chemin + u'\r' + Compte(contenu);
    return Confirme(question, Boite::Exclamation | Boite::SecondBouton, Texte(QuestionTitre));
}

void EffaceEnMontrant(const QString &chemin, const ContenuDossier &contenu)
{
    constexpr int delai = 500; // milliseconds; a quicker deletion shows no progress
    const qint64 entrees = contenu.dossiers + contenu.fichiers + 1;
    QProgressDialog avancement(FenetreAppelante());
    avancement.setObjectName(QStringLiteral("Avancement"));
    avancement.setWindowTitle(Texte(QuestionTitre));
    avancement.setLabelText(chemin);
    avancement.setWindowModality(Qt::ApplicationModal);
    avancement.setMinimumDuration(delai);
    avancement.setMaximum(static_cast<int>(qMin<qint64>(entrees, std::numeric_limits<int>::max())));
    avancement.setValue(0);
    EffaceDossier(chemin, [&avancement] {
        avancement.setValue(avancement.value() + 1);
        return !avancement.wasCanceled();
    });
}

} // namespace

void SupprimeDossier(const QString &chemin)
{
    const ContenuDossier contenu = CompteContenu(chemin);
    if (!Accepte(chemin, contenu))
        return;
    try {
        EffaceEnMontrant(chemin, contenu);
        MsgBox(Texte(Reussi), Boite::Information, Texte(ResultatTitre));
    } catch (const Erreur &erreur) {
        if (erreur.Numero() == Erreur::DialogueAnnule)
            return;
        MsgBox(Texte(NumeroErreur) + QString::number(erreur.Numero()) + u'\r' + TexteErreur(erreur) + u'\r' +
                   Texte(Reste) + Compte(CompteContenu(chemin)),
               Boite::Information, Texte(ResultatTitre));
    }
}
