#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "platform/Boites.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QTest>

namespace {

constexpr char ChargeConf[] = "Mnu_ChargeConf";

/// The commands that a configuration enables: receiving, sending.
QList<bool> Actives()
{
    return {Operateur::Offre("Mnu_RecepProg"), frmPrinc->Bouton(10)->isEnabled(), Operateur::Offre("Mnu_EmisProgCN"),
            frmPrinc->Bouton(11)->isEnabled()};
}

QString Complet(const Poste &poste)
{
    QString chemin = poste.Chemin("Tour.par");
    QFile::copy(QString::fromUtf16(DONNEES) + QStringLiteral("/Complet.par"), chemin);
    return chemin;
}

} // namespace

class TestCommandesConf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Charge();
    void Dialogue();
    void Erronee();
};

// Receiving needs a configuration, sending a file too; the file may come before or after.
void TestCommandesConf::Charge()
{
    for (const bool fichierDAbord : {false, true}) {
        Poste poste;
        poste.Demarre(0);
        Operateur operateur;
        QCOMPARE(Actives(), QList<bool>({false, false, false, false}));
        const QString programme = poste.Ecrit("P.iso", "G0");
        if (fichierDAbord)
            OuvreDocument(programme);
        QCOMPARE(Actives(), QList<bool>({false, false, false, false}));
        operateur.Choisit(Complet(poste));
        Operateur::Menu(ChargeConf);
        QCOMPARE(Actives(), QList<bool>({true, true, fichierDAbord, fichierDAbord}));
        OuvreDocument(programme);
        QCOMPARE(Actives(), QList<bool>({true, true, true, true}));

        QCOMPARE(FicConf + NomConf, poste.Chemin("Tour.par") + QStringLiteral("Tour.par"));
        QCOMPARE(frmPrinc->Label4->text(), QStringLiteral("Tour.par"));
        QCOMPARE(frmPrinc->Label6->text(), QStringLiteral("Tour 2 axes, été €"));
        QCOMPARE(ParamCom.ChaineFinLig, QStringLiteral("\r\r\n"));
    }
}

// The dialog opens on the folder of configurations, in the language; cancelling it changes nothing.
void TestCommandesConf::Dialogue()
{
    Poste poste;
    poste.Demarre(2);
    QDir(poste.Dossier()).mkdir(QStringLiteral("Conf"));
    DosConf = poste.Chemin("Conf");
    QDir::setCurrent(QStringLiteral("/"));
    Operateur operateur;
    operateur.Fait("CommonDialog", [](QWidget &fenetre) {
        auto &dialogue = dynamic_cast<QFileDialog &>(fenetre);
        QCOMPARE(dialogue.windowTitle(), QStringLiteral("Seleccionar una configuración de comunicación"));
        QCOMPARE(dialogue.selectedNameFilter(), QStringLiteral("Ficheros parámetros (*.par)"));
        QCOMPARE(dialogue.directory(), QDir(DosConf));
        dialogue.reject();
    });
    Operateur::Barre(8);
    QCOMPARE(QDir::current(), QDir(DosAppli));
    QCOMPARE(FicConf + NomConf + ParamCom.NomPort, QString());
    QVERIFY(!frmPrinc->Mnu_RecepProg->isEnabled());
}

// A file that breaks off: the record holds what was read, while menus, labels and derived strings stay as they were.
void TestCommandesConf::Erronee()
{
    Poste poste;
    poste.Demarre(0);
    Operateur operateur;
    QFile complet(Complet(poste));
    QVERIFY(complet.open(QIODevice::ReadOnly));
    const QString courte = poste.Ecrit("Courte.par", complet.readAll().chopped(5)); // no last line
    const auto charge = [&] {
        operateur.Choisit(courte);
        operateur.Repond("Fichier de configuration erroné ou de version antérieure !",
                         "Fichier de configuration de version antérieure !\rModifier et enregistrer de nouveau.",
                         Boite::Exclamation, QMessageBox::Ok);
        Operateur::Menu(ChargeConf);
    };
    charge();
    QCOMPARE(Actives(), QList<bool>({false, false, false, false}));
    QCOMPARE(FicConf + NomConf, courte + QStringLiteral("Courte.par"));
    QCOMPARE(ParamCom.NomPort, QStringLiteral("Com3"));
    QCOMPARE(ParamCom.ChaineFinLig, QString());
    QCOMPARE(ParamCom.TypeEnvoi, 0);

    operateur.Choisit(complet.fileName());
    Operateur::Menu(ChargeConf);
    charge();
    QCOMPARE(Actives(), QList<bool>({true, true, false, false}));
    QCOMPARE(frmPrinc->Label4->text(), QStringLiteral("Tour.par"));
    QCOMPARE(ParamCom.TypeEnvoi, 1);
}

QTEST_MAIN(TestCommandesConf)
#include "TestCommandesConf.moc"
