#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "comconfig/Prop.h"
#include "machine/MachineSimulee.h"
#include "platform/MSComm.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "transfer/Transfert.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// A control that nobody knows gets its configuration: made, its chains composed, applied to the port, saved, loaded
/// again, and used in both directions.
class TestSessionConfiguration : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CommandeInconnue();
};

namespace {

/// Opens the chooser from the properties dialog and presses its buttons; a name with "=" types the free character
/// first.
void Compose(Operateur &operateur, const char *bouton, const QStringList &gestes)
{
    operateur.Presse("Prop", bouton);
    for (const QString &geste : gestes) {
        operateur.Saisit("FrmCaract", "Text1", geste.section(u'=', 1));
        operateur.Presse("FrmCaract", geste.section(u'=', 0, 0));
    }
    operateur.Presse("FrmCaract", "Command1");
}

} // namespace

void TestSessionConfiguration::CommandeInconnue()
{
    ReglageMachine reglage;
    reglage.Fin = "\x03\xE9";
    MachineSimulee machine(reglage);
    const MachineSimulee voisine;
    const Poste poste(0);
    poste.Relie(1, voisine.Chemin());
    poste.Relie(2, machine.Chemin());
    frmPrinc->MSComm1->setPortOpen(true); // a port that stayed open, and on the wrong machine
    PortOuvert = true;

    Operateur operateur;
    LireFichierPar(QString::fromUtf16(DONNEES) + u"/Complet.par"_s); // of which the new one keeps nothing that is seen
    operateur.Presse("Prop", "OptFinLig_4");
    Compose(operateur, "Command21", {u"Car_13"_s, u"Car_13"_s, u"Car_17"_s, u"Command3"_s, u"Car_10"_s});
    operateur.Presse("Prop", "OptFinTrans_2");
    Compose(operateur, "Command20", {u"Car_4"_s, u"Command2"_s, u"Car_3"_s, u"Command6=é"_s});
    Compose(operateur, "Command22", {u"Car_37"_s});
    operateur.Fait("Prop", [](QWidget &fenetre) {
        auto &prop = dynamic_cast<Prop &>(fenetre);
        QCOMPARE(prop.windowTitle(), u"Propriétés et configuration de la communication - Fichier : Nouveau"_s);
        QCOMPARE(prop.Label6->text() + prop.Text1->text(), u"Nouveau"_s);
        prop.OptionEnvoi_0->click();
        prop.Text1->setText(u"Commande inconnue"_s);
        prop.cboSpeed->setCurrentText(u"115200"_s);
        prop.cboDataBits->setCurrentText(u"8"_s);
        prop.cboParity->setCurrentText(u"None"_s);
        prop.optFlow_1->click();
        prop.Option1_3->click();
        prop.cmdOK->click();
        QVERIFY(frmPrinc->MSComm1->PortOpen());
        QCOMPARE(frmPrinc->MSComm1->CommPort(), 2);
    });
    operateur.Presse("Prop", "Command1");
    operateur.Choisit(poste.Chemin("Inconnue.par"));
    operateur.Presse("Prop", "cmdCancel");
    Operateur::Menu("Mnu_CreConf");
    QFile attendu(QString::fromUtf16(DONNEES) + u"/Inconnue.par"_s);
    QVERIFY(attendu.open(QIODevice::ReadOnly));
    QCOMPARE(poste.Lit("Inconnue.par"), attendu.readAll().replace("@", poste.Dossier().toUtf8()));

    ParamCom = {};
    operateur.Choisit(poste.Chemin("Inconnue.par"));
    Operateur::Barre(8);
    OuvreDocument(poste.Ecrit("P.iso", "N10 G0\r\nN20 M30"));
    operateur.Fait("MsgBox", Operateur::Clique(QMessageBox::Yes));
    operateur.Presse("Em_Rc", "Command2");
    operateur.Presse("Em_Rc", "Command1", [] { return !PortOuvert; });
    Operateur::Barre(9);
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }));
    QCOMPARE(machine.Programmes()[0].Brut, QByteArray("%\r\r\nN10 G0\r\r\r\nN20 M30\r\r\n\x03\xE9"));

    operateur.Saisit("Rc_Fic", "Text1", "recu");
    operateur.Presse("Rc_Fic", "Command2");
    operateur.Fait("MsgBox", Operateur::Clique(QMessageBox::Yes));
    Envoi envoi;
    envoi.Texte = "O1\r\r\nG1 X5\r\r\n";
    envoi.PauseLigneMs = 150;
    operateur.Fait(
        "Em_Rc", [&machine, envoi](QWidget &) { machine.Emet(envoi); }, [] { return PortOuvert; });
    operateur.Presse("Em_Rc", "Command1", [] { return FinTransfert == 1 && !PortOuvert; });
    Operateur::Menu("Mnu_RecepProg");
    QCOMPARE(poste.Lit("RECU.ISO"), QByteArray("O1\r\n\r\nG1 X5\r\n\r\n\r\n"));
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Envoi.Reponse == Retour::Juste; }));
}

QTEST_MAIN(TestSessionConfiguration)
#include "TestSessionConfiguration.moc"
