#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "platform/Boites.h"
#include "platform/MSComm.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"
#include "transfer/Transfert.h"

#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {

constexpr char Dialogue[] = "Em_Rc";
constexpr int Drapeaux = Boite::Question | Boite::OuiNon | Boite::SecondBouton;

/// One transfer as the dialog announces it.
struct Annonce
{
    int langue;
    int bouton;
    const char *entree;
    const char *confirmation;
    const char *question;
    const char *titre;
    const char *consignes; ///< lines joined by "|"
    const char *statut;
};

constexpr Annonce Annonces[] = {
    {0, 9, "Mnu_EmisProgCN", "Emission d'un programme CN",
     "Confirmez l'émission du programme PIECE.iso sur le port Com2 ?", "Emission d'un programme CN",
     "|Sur CN faire une RàZ||Valider le mode Chargement Programme||Appuyer sur Départ de Cycle",
     "Puis cliquez sur le bouton < Emission... >"},
    {1, 11, "Mnu_EmisJauge", "Sending of a file Gauges Tools",
     "Confirm the sending of a file Gauges Tools PIECE.iso on the port Com2 ?", "Sending of the gauges tools",
     "|On machine to make Restoring||Validate the Loading mode of the Gauges Tools||Support on Departure of Cycle",
     "Then click on the button < Emission... >"},
    {2, 11, "Mnu_EmisJauge", "Emisión de un fichero Cabidas instrumentos",
     "Confirme la emisión del fichero mide PIECE.iso sobre el puerto Com2 ?", "Emisión de las Cabidas instrumentos",
     "|Sobre máquina hacer un a Entrega a Cero||Validar el método Cargamento de las Cabidas instrumentos|"
     "Apoyar en Salida de Ciclo",
     "Luego presionan el botón < Emisión... >"}};

bool Montre(const QWidget &fenetre, const char *controle)
{
    return fenetre.findChild<QWidget *>(QLatin1String(controle))->isVisible();
}

} // namespace

class TestEm_Rc : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Annonce();
    void AutreConfiguration();
    void ConfigurationErronee();
};

// Each way of sending in each language: a No ends it, a Yes shows what to do at the machine; closing before the start
// touches neither port nor lamp.
void TestEm_Rc::Annonce()
{
    for (const struct Annonce &annonce : Annonces) {
        Poste poste;
        poste.Demarre(annonce.langue);
        poste.Charge("G0");
        Operateur operateur;
        const QString titre = QString::fromUtf8(annonce.confirmation);
        const QString question = titre + u'\r' + QString::fromUtf8(annonce.question);
        operateur.Repond(titre, question, Drapeaux, QMessageBox::No);
        Operateur::Barre(annonce.bouton);
        QCOMPARE(TypeTransfert, 0);

        operateur.Repond(titre, question, Drapeaux, QMessageBox::Yes);
        operateur.Fait(Dialogue, [&annonce](QWidget &fenetre) {
            QCOMPARE(fenetre.windowTitle(), QString::fromUtf8(annonce.titre));
            QCOMPARE(Operateur::Lu("Label1"), QString::fromUtf8(annonce.consignes).replace(u'|', u'\n'));
            QCOMPARE(Operateur::Lu("Label2"), QString::fromUtf8(annonce.statut));
            QCOMPARE(Operateur::Lu("Label5"), QStringLiteral("Machine.par  Tour"));
            for (const char *montre : {"Command1", "Command2", "Command3", "Frame1", "Frame2", "Picture1"})
                QVERIFY2(Montre(fenetre, montre), montre);
            QVERIFY(!Montre(fenetre, "Command7") && !Montre(fenetre, "Frame4"));
            QVERIFY(!fenetre.findChild<QLabel *>(QStringLiteral("Picture1"))->pixmap().isNull());
            fenetre.close();
        });
        frmPrinc->UpdateTimer.stop();
        frmPrinc->shpPortOpen->setFillColor(Lampe::Verte);
        Operateur::Menu(QLatin1String(annonce.entree));
        QCOMPARE(TypeTransfert, annonce.bouton == 9 ? 1 : 2);
        QCOMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Verte);
    }
}

// Another configuration from inside the dialog; cancelling the choice leaves the first.
void TestEm_Rc::AutreConfiguration()
{
    Poste poste;
    poste.Demarre(0);
    poste.Charge("G0");
    const QString autre = poste.Chemin("Tour.par");
    QVERIFY(QFile::copy(QString::fromUtf16(DONNEES) + QStringLiteral("/Complet.par"), autre));
    DosConf = QStringLiteral("/"); // not where this choice begins
    Operateur operateur;
    operateur.Fait("MsgBox",
                   [](QWidget &boite) { dynamic_cast<QMessageBox &>(boite).button(QMessageBox::Yes)->click(); });
    operateur.Presse(Dialogue, "Command3");
    operateur.Fait("CommonDialog", [](QWidget &fenetre) {
        QCOMPARE(dynamic_cast<QFileDialog &>(fenetre).directory(), QDir(DosAppli));
        fenetre.close();
    });
    operateur.Fait(Dialogue, [&poste](QWidget &) {
        QCOMPARE(Operateur::Lu("Label5"), QStringLiteral("Machine.par  Tour"));
        QCOMPARE(FicConf, poste.Chemin("Machine.par"));
    });
    operateur.Presse(Dialogue, "Command3");
    operateur.Choisit(autre);
    operateur.Fait(
        Dialogue, [](QWidget &) { QCOMPARE(Operateur::Lu("Label5"), QStringLiteral("Tour.par  Tour 2 axes, été €")); });
    operateur.Presse(Dialogue, "Command1");
    Operateur::Menu("Mnu_EmisProgCN");
    QCOMPARE(FicConf + NomConf, autre + QStringLiteral("Tour.par"));
    QCOMPARE(frmPrinc->Label4->text() + frmPrinc->Label6->text(), QStringLiteral("Tour.parTour 2 axes, été €"));
    QCOMPARE(ParamCom.ChaineFinLig, QStringLiteral("\r\r\n"));
}

// A file that breaks off: told, and the dialog still shows the configuration before it.
void TestEm_Rc::ConfigurationErronee()
{
    Poste poste;
    poste.Demarre(1);
    poste.Charge("G0");
    Operateur operateur;
    operateur.Fait("MsgBox",
                   [](QWidget &boite) { dynamic_cast<QMessageBox &>(boite).button(QMessageBox::Yes)->click(); });
    operateur.Presse(Dialogue, "Command3");
    operateur.Choisit(poste.Ecrit("Faux.par", "3\r\nCom3\r\n"));
    operateur.Repond("Erroneous file of configuration",
                     "File of configuration of former version !\rModify to record some again.", Boite::Exclamation,
                     QMessageBox::Ok);
    operateur.Fait(Dialogue, [](QWidget &) { QCOMPARE(Operateur::Lu("Label5"), QStringLiteral("Machine.par  Tour")); });
    operateur.Presse(Dialogue, "Command1");
    Operateur::Menu("Mnu_EmisJauge");
    QCOMPARE(frmPrinc->Label4->text(), QStringLiteral("Machine.par"));
    QCOMPARE(ParamCom.NumPort, 3);
}

QTEST_MAIN(TestEm_Rc)
#include "TestEm_Rc.moc"
