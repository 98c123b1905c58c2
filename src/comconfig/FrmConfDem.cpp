#include "comconfig/FrmConfDem.h"

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
        bouton->setIcon(Icone(QStringLiteral(":/icones/Mnu_Ouvrir.svg")));
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
    LblDos->setText(DosDefaut);
    Check1->setChecked(OptDosDefaut == 1);
    LblNomConf->setText(FicConfDefaut);
    Check2->setChecked(OptConfDefaut == 1);
    Check3->setChecked(OptExplorateur == 1);
    if (DosConf.isEmpty())
        DosConf = DossierApplication();
    LabelDosConf->setText(DosConf);
}

/// ligne: how "Dorvanel.ini" holds the folder.
void FrmConfDem::ChoisitDossier(QLabel *montre, LigneNom ligne)
{
    const QString choisi = ChoixDossier(this, montre->text());
    if (choisi.isEmpty())
        return;
    montre->setText(choisi);
    AnnonceNomPerdu(choisi, ligne, windowTitle());
}

void FrmConfDem::Command2_Click()
{
    Saute([this] {
        LblNomConf->setText(ChoisitFichierPar(DosConf));
        AnnonceNomPerdu(LblNomConf->text(), LigneNom::Citee, windowTitle());
    });
}

/// The language starts the settings anew, so what stood here unsaved gives way to them.
void FrmConfDem::Command6_Click()
{
    FrmLangue(this).exec();
    Form_Activate();
}

void FrmConfDem::Command4_Click()
{
    OptDosDefaut = Check1->isChecked() ? 1 : 0;
    DosDefaut = Check1->isChecked() ? LblDos->text() : DossierApplication();
    OptConfDefaut = Check2->isChecked() ? 1 : 0;
    FicConfDefaut = LblNomConf->text();
    OptExplorateur = Check3->isChecked() ? 1 : 0;
    DosConf = LabelDosConf->text();
    Saute(SauveIni);
}

void Mnu_ConfigDemar()
{
    AppliqueLangue();
    FrmConfDem(FenetreAppelante()).exec();
}
