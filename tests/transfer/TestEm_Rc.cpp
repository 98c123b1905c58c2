#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"
#include "transfer/Transfert.h"

#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Dialogue[] = "Em_Rc";

/// One transfer as the dialog announces it.
struct CasAnnonce
{
    int langue, bouton, type;
    const char *entree;
    QString confirmation, question, titre;
    QString consignes; ///< lines joined by "|"
    QString statut;
};

} // namespace

class TestEm_Rc : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Annonce();
    void AutreConfiguration();
};

// Each way of sending: a No ends it, a Yes shows what to do at the machine; closing before the start touches neither
// port nor lamp.
void TestEm_Rc::Annonce()
{
    const CasAnnonce annonces[] = {
        {0, 9, 1, "Mnu_EmisProgCN", u"Emission d'un programme CN"_s,
         u"Confirmez l'émission du programme PIECE.iso sur le port Com2 ?"_s, u"Emission d'un programme CN"_s,
         u"|Sur CN faire une RàZ||Valider le mode Chargement Programme||Appuyer sur Départ de Cycle"_s,
         u"Puis cliquez sur le bouton < Emission... >"_s},
        {2, 11, 2, "Mnu_EmisJauge", u"Emisión de un fichero Cabidas instrumentos"_s,
         u"Confirme la emisión del fichero mide PIECE.iso sobre el puerto Com2 ?"_s,
         u"Emisión de las Cabidas instrumentos"_s,
         u"|Sobre máquina hacer un a Entrega a Cero||Validar el método Cargamento de las Cabidas instrumentos|"
         "Apoyar en Salida de Ciclo"_s,
         u"Luego presionan el botón < Emisión... >"_s}};
    for (const CasAnnonce &cas : annonces) {
        const Poste poste(cas.langue);
        poste.Charge("G0");
        Operateur operateur;
        const QString question = cas.confirmation + u'\r' + cas.question;
        operateur.Repond(cas.confirmation, question, Operateur::Demande, QMessageBox::No);
        Operateur::Barre(cas.bouton);
        QCOMPARE(TypeTransfert, 0);

        operateur.Repond(cas.confirmation, question, Operateur::Demande, QMessageBox::Yes);
        operateur.Fait(Dialogue, [&cas](QWidget &fenetre) {
            QCOMPARE(fenetre.windowTitle(), cas.titre);
            QCOMPARE(Operateur::Lu("Label1"), QString(cas.consignes).replace(u'|', u'\n'));
            QCOMPARE(Operateur::Lu("Label2"), cas.statut);
            QCOMPARE(Operateur::Lu("Label5"), u"Machine.par  Tour"_s);
            const QStringList caches = {u"Command7"_s, u"Frame4"_s};
            for (const QString &nom :
                 QStringList{u"Command1"_s, u"Command2"_s, u"Command3"_s, u"Frame1"_s, u"Frame2"_s, u"Picture1"_s} +
                     caches)
                QVERIFY2(fenetre.findChild<QWidget *>(nom)->isVisible() != caches.contains(nom), qPrintable(nom));
            QVERIFY(!fenetre.findChild<QLabel *>(u"Picture1"_s)->pixmap().isNull());
            fenetre.close();
        });
        frmPrinc->UpdateTimer.stop();
        frmPrinc->shpPortOpen->setFillColor(Lampe::Verte);
        Operateur::Menu(cas.entree);
        QCOMPARE(TypeTransfert, cas.type);
        QCOMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Verte);
    }
}

// Another configuration from inside the dialog; a cancelled choice leaves the first, and a file that breaks off, which
// is told, leaves its name.
void TestEm_Rc::AutreConfiguration()
{
    const Poste poste(1);
    poste.Charge("G0");
    const QString autre = poste.Chemin("Tour.par");
    QVERIFY(QFile::copy(QString::fromUtf16(DONNEES) + u"/Complet.par"_s, autre));
    DosConf = u"/"_s; // not where this choice begins
    Operateur operateur;
    operateur.Fait("MsgBox", Operateur::Clique(QMessageBox::Yes));
    operateur.Presse(Dialogue, "Command3");
    operateur.Fait("CommonDialog", [](QWidget &fenetre) {
        QCOMPARE(dynamic_cast<QFileDialog &>(fenetre).directory(), QDir(DosAppli));
        fenetre.close();
    });
    operateur.Fait(Dialogue, [&poste](QWidget &) {
        QCOMPARE(Operateur::Lu("Label5"), u"Machine.par  Tour"_s);
        QCOMPARE(FicConf, poste.Chemin("Machine.par"));
    });
    operateur.Presse(Dialogue, "Command3");
    operateur.Choisit(poste.Ecrit("Faux.par", "3\r\nCom3\r\n"));
    operateur.Repond("Erroneous file of configuration",
                     "File of configuration of former version !\rModify to record some again.", Boite::Exclamation,
                     QMessageBox::Ok);
    operateur.Fait(Dialogue, [](QWidget &) {
        QCOMPARE(Operateur::Lu("Label5"), u"Machine.par  Tour"_s);
        QCOMPARE(frmPrinc->Label4->text(), u"Machine.par"_s);
        QCOMPARE(ParamCom.NumPort, 3);
    });
    operateur.Presse(Dialogue, "Command3");
    operateur.Choisit(autre);
    operateur.Fait(Dialogue, [](QWidget &) { QCOMPARE(Operateur::Lu("Label5"), u"Tour.par  Tour 2 axes, été €"_s); });
    operateur.Presse(Dialogue, "Command1");
    Operateur::Menu("Mnu_EmisProgCN");
    QCOMPARE(FicConf + NomConf, autre + u"Tour.par"_s);
    QCOMPARE(frmPrinc->Label4->text() + frmPrinc->Label6->text(), u"Tour.parTour 2 axes, été €"_s);
    QCOMPARE(ParamCom.ChaineFinLig, u"\r\r\n"_s);
}

QTEST_MAIN(TestEm_Rc)
#include "TestEm_Rc.moc"
