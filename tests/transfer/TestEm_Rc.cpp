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

const QString Dialogue = QStringLiteral("Em_Rc");
constexpr int Drapeaux = Boite::Question | Boite::OuiNon | Boite::SecondBouton;

/// One transfer as the dialog announces it, in one language.
struct Annonce
{
    const char *confirmation;
    const char *question; ///< up to the name of the file
    const char *port;
    const char *titre;
    const char *consignes; ///< lines joined by "|"
    const char *statut;
    const char *annuler;
};

constexpr Annonce Programmes[] = {
    {"Emission d'un programme CN", "Confirmez l'émission du programme ", " sur le port ", "Emission d'un programme CN",
     "|Sur CN faire une RàZ||Valider le mode Chargement Programme||Appuyer sur Départ de Cycle",
     "Puis cliquez sur le bouton < Emission... >", "&Annuler"},
    {"Sending of a program numerical control", "Confirm the sending of the program ", " on the port ",
     "Sending of a program",
     "|On machine to make Restoring||Validate the Chargement mode Programs||Support on Departure of Cycle",
     "Then click on the button < Emission... >", "&Cancel"},
    {"Emisión de un programa pedido numérico", "Confirme la emisión del programa ", " sobre el puerto ",
     "Emisión de un programa",
     "|Sobre máquina hacer un a Entrega a Cero||Validar el método Cargamento Programa||Apoyar en Salida de Ciclo",
     "Luego presionan el botón < Emisión... >", "&Cancelar"}};
constexpr Annonce Jauges[] = {
    {"Emission d'un fichier Jauges Outils", "Confirmez l'émission du fichier jauge ", " sur le port ",
     "Emission des jauges outils",
     "|Sur CN faire une RàZ||Valider le mode Chargement des Jauges Outils||Appuyer sur Départ de Cycle",
     "Puis cliquez sur le bouton < Emission... >", "&Annuler"},
    {"Sending of a file Gauges Tools", "Confirm the sending of a file Gauges Tools ", " on the port ",
     "Sending of the gauges tools",
     "|On machine to make Restoring||Validate the Loading mode of the Gauges Tools||Support on Departure of Cycle",
     "Then click on the button < Emission... >", "&Cancel"},
    {"Emisión de un fichero Cabidas instrumentos", "Confirme la emisión del fichero mide ", " sobre el puerto ",
     "Emisión de las Cabidas instrumentos",
     "|Sobre máquina hacer un a Entrega a Cero||Validar el método Cargamento de las Cabidas instrumentos|"
     "Apoyar en Salida de Ciclo",
     "Luego presionan el botón < Emisión... >", "&Cancelar"}};

bool Montre(const QWidget &fenetre, const char *controle)
{
    return fenetre.findChild<QWidget *>(QLatin1String(controle))->isVisible();
}

} // namespace

class TestEm_Rc : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Annonces_data();
    void Annonces();
    void AutreConfiguration();
    void ConfigurationErronee_data();
    void ConfigurationErronee();
};

// Each way of sending in each language: a No ends it, a Yes shows what to do at the machine; closing before the start
// touches neither port nor lamp.
void TestEm_Rc::Annonces_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<bool>("jauges");
    for (int langue = 0; langue < 3; ++langue) {
        QTest::addRow("program, %d", langue) << langue << false;
        QTest::addRow("gauges, %d", langue) << langue << true;
    }
}

void TestEm_Rc::Annonces()
{
    QFETCH(int, langue);
    QFETCH(bool, jauges);
    const Annonce &annonce = (jauges ? Jauges : Programmes)[langue];
    Poste poste;
    poste.Demarre(langue);
    poste.Charge("G0");
    ParamCom.Echo = 1;
    Operateur operateur;
    const QString titre = QString::fromUtf8(annonce.confirmation);
    const QString question = titre + u'\r' + QString::fromUtf8(annonce.question) + QStringLiteral("PIECE.iso") +
                             QString::fromUtf8(annonce.port) + QStringLiteral("Com2 ?");
    operateur.Repond(titre, question, Drapeaux, QMessageBox::No);
    Operateur::Barre(jauges ? 11 : 9);
    QCOMPARE(TypeTransfert, 0);

    operateur.Repond(titre, question, Drapeaux, QMessageBox::Yes);
    operateur.Fait(Dialogue, [&annonce](QWidget &fenetre) {
        QCOMPARE(fenetre.windowTitle(), QString::fromUtf8(annonce.titre));
        QCOMPARE(Operateur::Lu(QStringLiteral("Label1")), QString::fromUtf8(annonce.consignes).replace(u'|', u'\n'));
        QCOMPARE(Operateur::Lu(QStringLiteral("Label2")), QString::fromUtf8(annonce.statut));
        QCOMPARE(Operateur::Lu(QStringLiteral("Label5")), QStringLiteral("Machine.par  Tour"));
        QCOMPARE(Operateur::Lu(QStringLiteral("Command1")), QString::fromUtf8(annonce.annuler));
        for (const char *montre : {"Command1", "Command2", "Command3", "Frame1", "Frame2", "Picture1"})
            QVERIFY2(Montre(fenetre, montre), montre);
        for (const char *cache : {"Command7", "Frame4"})
            QVERIFY2(!Montre(fenetre, cache), cache);
        QVERIFY(!fenetre.findChild<QLabel *>(QStringLiteral("Picture1"))->pixmap().isNull());
        fenetre.close();
    });
    frmPrinc->UpdateTimer.stop();
    frmPrinc->shpPortOpen->setFillColor(Lampe::Verte);
    Operateur::Menu(jauges ? QStringLiteral("Mnu_EmisJauge") : QStringLiteral("Mnu_EmisProgCN"));
    QCOMPARE(TypeTransfert, jauges ? 2 : 1);
    QCOMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Verte);
}

// Another configuration from inside the dialog; cancelling the choice leaves the first.
void TestEm_Rc::AutreConfiguration()
{
    Poste poste;
    poste.Demarre(0);
    poste.Charge("G0");
    const QString autre = poste.Chemin(QStringLiteral("Tour.par"));
    QVERIFY(QFile::copy(QString::fromUtf16(DONNEES) + QStringLiteral("/Complet.par"), autre));
    DosConf = QStringLiteral("/"); // not where this choice begins
    Operateur operateur;
    operateur.Fait(QStringLiteral("MsgBox"),
                   [](QWidget &boite) { dynamic_cast<QMessageBox &>(boite).button(QMessageBox::Yes)->click(); });
    operateur.Presse(Dialogue, QStringLiteral("Command3"));
    operateur.Fait(QStringLiteral("CommonDialog"), [](QWidget &fenetre) {
        QCOMPARE(dynamic_cast<QFileDialog &>(fenetre).directory(), QDir(DosAppli));
        fenetre.close();
    });
    operateur.Fait(Dialogue, [&poste](QWidget &) {
        QCOMPARE(Operateur::Lu(QStringLiteral("Label5")), QStringLiteral("Machine.par  Tour"));
        QCOMPARE(FicConf, poste.Chemin(QStringLiteral("Machine.par")));
    });
    operateur.Presse(Dialogue, QStringLiteral("Command3"));
    operateur.Choisit(autre);
    operateur.Fait(Dialogue, [](QWidget &) {
        QCOMPARE(Operateur::Lu(QStringLiteral("Label5")), QStringLiteral("Tour.par  Tour 2 axes, été €"));
    });
    operateur.Presse(Dialogue, QStringLiteral("Command1"));
    Operateur::Menu(QStringLiteral("Mnu_EmisProgCN"));
    QCOMPARE(FicConf + NomConf, autre + QStringLiteral("Tour.par"));
    QCOMPARE(frmPrinc->Label4->text() + frmPrinc->Label6->text(), QStringLiteral("Tour.parTour 2 axes, été €"));
    QCOMPARE(ParamCom.ChaineFinLig, QStringLiteral("\r\r\n"));
}

void TestEm_Rc::ConfigurationErronee_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<QString>("titre");
    QTest::addColumn<QString>("texte");
    QTest::newRow("French") << 0 << "Fichier de configuration erroné"
                            << "Fichier de configuration de version antérieure !\rModifier en enregistrer de nouveau.";
    QTest::newRow("English") << 1 << "Erroneous file of configuration"
                             << "File of configuration of former version !\rModify to record some again.";
    QTest::newRow("Spanish") << 2 << "Fichero de configuración erróneo"
                             << "Fichero de configuración de versión previa !\rModificarse registrar de nuevo.";
}

void TestEm_Rc::ConfigurationErronee()
{
    QFETCH(int, langue);
    QFETCH(QString, titre);
    QFETCH(QString, texte);
    Poste poste;
    poste.Demarre(langue);
    poste.Charge("G0");
    Operateur operateur;
    operateur.Fait(QStringLiteral("MsgBox"),
                   [](QWidget &boite) { dynamic_cast<QMessageBox &>(boite).button(QMessageBox::Yes)->click(); });
    operateur.Presse(Dialogue, QStringLiteral("Command3"));
    operateur.Choisit(poste.Ecrit(QStringLiteral("Faux.par"), "3\r\nCom3\r\n"));
    operateur.Repond(titre, texte, Boite::Exclamation, QMessageBox::Ok);
    operateur.Fait(Dialogue, [](QWidget &) {
        QCOMPARE(Operateur::Lu(QStringLiteral("Label5")), QStringLiteral("Machine.par  Tour"));
    });
    operateur.Presse(Dialogue, QStringLiteral("Command1"));
    Operateur::Menu(QStringLiteral("Mnu_EmisJauge"));
    QCOMPARE(frmPrinc->Label4->text(), QStringLiteral("Machine.par"));
    QCOMPARE(ParamCom.NumPort, 3);
}

QTEST_MAIN(TestEm_Rc)
#include "TestEm_Rc.moc"
