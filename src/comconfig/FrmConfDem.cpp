#include "comconfig/FrmConfDem.h"

#include "comconfig/CommandesConf.h"
#include "locale/FrmLangue.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/Boites.h"
#include "platform/ChoixDossier.h"
#include "platform/Erreur.h"
#include "platform/FenetreAppelante.h"
#include "platform/Icone.h"
#include "shell/Chemins.h"
#include "shell/Reglages.h"

namespace {

constexpr Texte3 Virgule{
    u"Le nom de ce dossier contient une virgule, que le fichier des réglages ne peut pas garder :\r"
    u"le prochain démarrage perdrait ce dossier et la langue.\r"
    u"Choisir un dossier dont le nom est sans virgule.",
    u"The name of this directory holds a comma, which the settings file cannot keep:\r"
    u"the next start would lose this directory and the language.\r"
    u"Choose a directory whose name has no comma.",
    u"El nombre de este directorio contiene una coma, que el fichero de ajustes no puede guardar:\r"
    u"el próximo arranque perdería este directorio y el idioma.\r"
    u"Elegir un directorio cuyo nombre no tenga coma."};

} // namespace

FrmConfDem::FrmConfDem(QWidget *parent)
    : QDialog(parent)
{
    setupUi(this);
    AppliqueLegendes(this);
    for (QPushButton *bouton : {Command1, Command2, Command5})
        bouton->setIcon(Icone(QStringLiteral(":/icones/Mnu_Ouvrir.svg")));
    connect(Command1, &QPushButton::clicked, this, [this] { ChoisitDossier(LblDos); });
    connect(Command2, &QPushButton::clicked, this, &FrmConfDem::Command2_Click);
    connect(Command5, &QPushButton::clicked, this, &FrmConfDem::Command5_Click);
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

void FrmConfDem::ChoisitDossier(QLabel *montre)
{
    const QString choisi = ChoixDossier(this, montre->text());
    if (!choisi.isEmpty())
        montre->setText(choisi);
}

void FrmConfDem::Command2_Click()
{
    Saute([this] { LblNomConf->setText(ChoisitFichierPar(DosConf)); });
}

/// "Dorvanel.ini" holds this folder without quotes: a comma would end it there.
void FrmConfDem::Command5_Click()
{
    ChoisitDossier(LabelDosConf);
    if (LabelDosConf->text().contains(u','))
        MsgBox(Texte(Virgule), Boite::Exclamation, windowTitle());
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
