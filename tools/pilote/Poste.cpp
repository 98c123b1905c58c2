#include "pilote/Poste.h"

#include "comconfig/CommandesConf.h"
#include "donnees/Chemins.h"
#include "donnees/Jauge.h"
#include "donnees/Lignes.h"
#include "donnees/ParamCom.h"
#include "donnees/ParamMac.h"
#include "donnees/Reglages.h"
#include "donnees/Transfert.h"
#include "locale/Langue.h"
#include "platform/dialogues/Boites.h"
#include "platform/serie/MSComm.h"
#include "programme/Demarrage.h"
#include "programme/Menus.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>

Poste::Poste()
    : m_dossierDepart(QDir::currentPath())
{
    FixeDossierApplication(Dossier());
    RemetEnregistrements();
}

Poste::Poste(int langue)
    : Poste()
{
    Ecrit("Dorvanel.ini", " 0 \r\n\"\"\r\n 0 \r\n\"\"\r\n 0 \r\n\r\n " + QByteArray::number(langue) + " \r\n");
    Demarre();
}

Poste::~Poste()
{
    m_fenetre.reset();
    RemetEnregistrements();
    FixeDossierApplication(QString());
    QDir::setCurrent(m_dossierDepart);
}

void Poste::RemetEnregistrements()
{
    ParamCom = {};
    EtatConf = {};
    ParamMac = {};
    Reglages = {};
    Document = {};
    Transfert = {};
    Lignes = {};
    Jauges = {};
    SuppleantBoites() = {};
    LangIndex = 0;
    QGuiApplication::clipboard()->clear();
    AppliqueLangueSysteme();
}

void Poste::Demarre()
{
    m_fenetre = std::make_unique<FrmPrinc>();
    m_fenetre->MSComm1->setDossierPorts(Chemin("Ports"));
    Branche();
    Form_Load();
    m_fenetre->show();
}

void Poste::Redemarre()
{
    m_fenetre.reset();
    RemetEnregistrements();
    Demarre();
}

QString Poste::Ecrit(QAnyStringView nom, const QByteArray &octets) const
{
    QFile fichier(Chemin(nom));
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(octets) != octets.size())
        qFatal("the test's own folder cannot be written");
    return Chemin(nom);
}

QByteArray Poste::Lit(QAnyStringView nom) const
{
    QFile fichier(Chemin(nom));
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

void Poste::Relie(int port, const QString &peripherique) const
{
    QDir(Dossier()).mkpath(QStringLiteral("Ports"));
    const QString lien = Chemin(QStringLiteral("Ports/Com%1").arg(port));
    QFile::remove(lien);
    QFile::link(peripherique, lien);
}

void Poste::Charge(const QByteArray &programme) const
{
    const QString configuration = Chemin("Machine.par");
    ParamCom.NumPort = 2;
    ParamCom.NomPort = QStringLiteral("Com2");
    ParamCom.Commentaire = QStringLiteral("Tour");
    ParamCom.Vitesse = QStringLiteral("115200");
    ParamCom.Parite = QStringLiteral("n");
    ParamCom.BitsDonnees = QStringLiteral("8");
    ParamCom.BitsArret = QStringLiteral("1");
    ParamCom.ControleFlux = static_cast<int>(ControleFlux::XonXoff);
    ParamCom.TypeFinTrans = FinTransEot;
    ParamCom.TailleTamponRecep = 1024;
    ParamCom.TailleTamponEmis = 512;
    EcrireFichierPar(configuration);
    ConfDefaut(configuration);
    OuvreDocument(Ecrit("PIECE.iso", programme));
}
