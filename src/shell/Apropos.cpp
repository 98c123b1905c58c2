#include "shell/Apropos.h"

#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/controles/Icone.h"
#include "platform/dialogues/Boites.h"
#include "shell/AideEnLigne.h"
#include "shell/FrmPrinc.h"

#include <QDesktopServices>
#include <QUrl>

namespace {

constexpr Texte3 NomEtVersion{
    u"Dorvanel Pro Version " DORVANEL_VERSION u"\r\rLogiciel de Chargement/Déchargement\r"
    u"de fichiers Commande Numérique",
    u"Dorvanel Pro Version " DORVANEL_VERSION u"\r\rSoftware of Load / dumping\rof files Digital control",
    u"Dorvanel Pro Version " DORVANEL_VERSION u"\r\rSoftware de Carga / descarga\rde ficheros Mando numérico"};

constexpr int CoteImage = 96; // pixels

} // namespace

Apropos::Apropos(QWidget *parent)
    : DialogueCentre(parent)
{
    setupUi(this);
    AppliqueLegendes(this);
    const QString programme = TexteChoisi(NomEtVersion);
    if (!programme.isNull())
        Label1->setText(PourAffichage(programme));
    Label4->setText(QString::fromUtf16(AdresseCourrier));
    Label5->setText(QString::fromUtf16(AdresseSite));
    Image1->setPixmap(Icone(QStringLiteral(":/icones/Dorvanel")).pixmap(CoteImage));
    connect(Label8, &QPushButton::clicked, this, Mnu_AideEnLigne);
    connect(Label4, &QPushButton::clicked, this, &Apropos::Label4_Click);
    connect(Label5, &QPushButton::clicked, this, &Apropos::Label5_Click);
    connect(Command1, &QPushButton::clicked, this, &QDialog::accept);
}

void Apropos::Label4_Click()
{
    QDesktopServices::openUrl(QUrl(QStringLiteral("mailto:") + Label4->text()));
}

void Apropos::Label5_Click()
{
    QDesktopServices::openUrl(QUrl(Label5->text()));
}

void Mnu_Apropos()
{
    Apropos(frmPrinc).exec();
}
