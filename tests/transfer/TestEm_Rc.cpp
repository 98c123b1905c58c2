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

} // namespace

class TestEm_Rc : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A sending is confirmed: a No ends it, a Yes shows what to do at the machine; closing before the start touches
    // neither port nor lamp.
    void Annonce()
    {
        const Poste poste(2);
        poste.Charge("G0");
        Operateur operateur;
        const QString titre = u"Emisión de un fichero Cabidas instrumentos"_s;
        const QString question = titre + u"\rConfirme la emisión del fichero mide PIECE.iso sobre el puerto Com2 ?"_s;
        operateur.Repond(titre, question, Operateur::Demande, QMessageBox::No);
        Operateur::Barre(11);
        QCOMPARE(TypeTransfert, 0);

        operateur.Repond(titre, question, Operateur::Demande, QMessageBox::Yes);
        operateur.Fait(Dialogue, [](QWidget &fenetre) {
            QCOMPARE(fenetre.windowTitle(), u"Emisión de las Cabidas instrumentos"_s);
            QCOMPARE(Operateur::Lu("Label1"), u"\nSobre máquina hacer un a Entrega a Cero\n\n"
                                              u"Validar el método Cargamento de las Cabidas instrumentos\n"
                                              u"Apoyar en Salida de Ciclo"_s);
            QCOMPARE(Operateur::Lu("Label2"), u"Luego presionan el botón < Emisión... >"_s);
            QCOMPARE(Operateur::Lu("Label5"), u"Machine.par  Tour"_s);
            QStringList visibles;
            for (const char *nom : {"Command2", "Command7", "Frame1", "Frame2", "Frame4"}) {
                if (fenetre.findChild<QWidget *>(QLatin1String(nom))->isVisible())
                    visibles << QLatin1String(nom);
            }
            QCOMPARE(visibles.join(u' '), u"Command2 Frame1 Frame2"_s);
            QVERIFY(!fenetre.findChild<QLabel *>(u"Picture1"_s)->pixmap().isNull());
            fenetre.close();
        });
        frmPrinc->UpdateTimer.stop();
        frmPrinc->shpPortOpen->setFillColor(Lampe::Verte);
        Operateur::Menu("Mnu_EmisJauge");
        QCOMPARE(TypeTransfert, 2);
        QCOMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Verte);
    }

    // Another configuration from inside the dialog; a cancelled choice leaves the first, and a file that breaks off,
    // which is told, leaves its name.
    void AutreConfiguration()
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
        operateur.Presse(Dialogue, "Command3");
        operateur.Choisit(poste.Ecrit("Faux.par", "3\r\nCom3\r\n"));
        operateur.Repond("Erroneous file of configuration",
                         "File of configuration of former version !\rModify to record some again.", Boite::Exclamation,
                         QMessageBox::Ok);
        operateur.Fait(Dialogue, [](QWidget &) {
            QCOMPARE(Operateur::Lu("Label5"), u"Machine.par  Tour"_s);
            QCOMPARE(frmPrinc->Label4->text(), u"Machine.par"_s);
        });
        operateur.Presse(Dialogue, "Command3");
        operateur.Choisit(autre);
        operateur.Fait(Dialogue,
                       [](QWidget &) { QCOMPARE(Operateur::Lu("Label5"), u"Tour.par  Tour 2 axes, été €"_s); });
        operateur.Presse(Dialogue, "Command1");
        Operateur::Menu("Mnu_EmisProgCN");
        QCOMPARE(FicConf + frmPrinc->Label4->text(), autre + u"Tour.par"_s);
        QCOMPARE(ParamCom.ChaineFinLig, u"\r\r\n"_s);
    }
};

QTEST_MAIN(TestEm_Rc)
#include "TestEm_Rc.moc"
