#include "comconfig/FrmConfDem.h"

#include "comconfig/CheminMontre.h"
#include "comconfig/CommandesConf.h"
#include "donnees/Chemins.h"
#include "donnees/Reglages.h"
#include "locale/Legendes.h"
#include "platform/base/Erreur.h"
#include "platform/controles/Icone.h"
#include "platform/dialogues/ChoixDossier.h"
#include "platform/dialogues/FenetreAppelante.h"
#include "shell/FrmLangue.h"

FrmConfDem::FrmConfDem(QWidget *parent)
    : QDialog(parent)
{
    setupUi(this);
    AppliqueLegendes(this);
    for (QPushButton *bouton : {Command1, Command2, Command5})
        bouton->setIcon(Icone(QStringLiteral(":/icones/Mnu_Ouvrir")));
    connect(Command1, &QPushButton::clicked, this, [this] { ChoisitDossier(LblDos, LigneNom::Citee); });
    connect(Command2, &QPushButton::clicked, this, &FrmConfDem::Command2_Click);
    connect(Command5, &QPushButton::clicked, this, [this] { ChoisitDossier(LabelDosConf, LigneNom::Nue); });
    connect(Command6, &QPushButton::clicked, this, &FrmConfDem::Command6_Click);
    connect(Command4, &QPushButton::clicked, this, &FrmConfDem::Command4_Click);
    connect(Command3, &QPushButton::clicked, this, &FrmConfDem::reject);
    Form_Activate();
}

void FrmConfDem::Form_Activate()
{
    MontreDossier(LblDos, Reglages.DosDefaut);
    Check1->setChecked(Reglages.OptDosDefaut == 1);
    MontreFichier(LblNomConf, Reglages.FicConfDefaut);
    Check2->setChecked(Reglages.OptConfDefaut == 1);
    Check3->setChecked(Reglages.OptExplorateur == 1);
    if (Reglages.DosConf.isEmpty())
        Reglages.DosConf = DossierApplication();
    MontreDossier(LabelDosConf, Reglages.DosConf);
}

/// ligne: how "Dorvanel.ini" writes the folder.
void FrmConfDem::ChoisitDossier(LabelElide *montre, LigneNom ligne)
{
    const QString choisi = ChoixDossier(this, QStringLiteral("Choix du dossier"), montre->text());
    if (choisi.isEmpty())
        return;
    MontreDossier(montre, choisi);
    AnnonceNomPerdu(choisi, ligne, windowTitle());
}

void FrmConfDem::Command2_Click()
{
    Saute([this] {
        MontreFichier(LblNomConf, ChoisitFichierPar(Reglages.DosConf));
        AnnonceNomPerdu(LblNomConf->text(), LigneNom::Citee, windowTitle());
    });
}

/// Opens the language dialog. It resets the settings, so choices that were not saved here are lost.
void FrmConfDem::Command6_Click()
{
    FrmLangue(this).exec();
    Form_Activate();
}

void FrmConfDem::Command4_Click()
{
    Reglages.OptDosDefaut = Check1->isChecked() ? 1 : 0;
    Reglages.DosDefaut = Check1->isChecked() ? LblDos->text() : DossierApplication();
    Reglages.OptConfDefaut = Check2->isChecked() ? 1 : 0;
    Reglages.FicConfDefaut = LblNomConf->text();
    Reglages.OptExplorateur = Check3->isChecked() ? 1 : 0;
    Reglages.DosConf = LabelDosConf->text();
    Saute(SauveIni);
}

void Mnu_ConfigDemar()
{
    AppliqueLangue();
    FrmConfDem(FenetreAppelante()).exec();
}
