#include "Operateur.h"
#include "Poste.h"

#include "gauges/ConfMac.h"
#include "gauges/ParamMac.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QDir>
#include <QFileDialog>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Complete = QString::fromUtf16(DONNEES) + u"/Complete.mac"_s;

void Tape(QLineEdit *saisie, const QString &touches)
{
    saisie->selectAll();
    QTest::keyClicks(saisie, touches);
}

/// The frames and boxes that depend on machine and kind of file, as they show.
QList<bool> Montres(const ConfMac &d)
{
    return {d.Frame2->isVisible(), d.Label6->isVisible(), d.Text6->isVisible(), d.Frame7->isVisible()};
}

} // namespace

class TestConfMac : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ParamMac = {}; }
    void Cree();
    void Modifie();
    void Refus();
};

// A new configuration: choices count at once, typed values when they are saved, whatever becomes of the saving.
void TestConfMac::Cree()
{
    const Poste poste(0);
    DosConf = poste.Dossier();
    ParamMac.NbCorrecteurs = 5;
    ParamMac.TypeMachine = 1;
    Operateur operateur;
    operateur.Fait("ConfMac", [](QWidget &fenetre) {
        auto &d = dynamic_cast<ConfMac &>(fenetre);
        QCOMPARE(d.windowTitle(), u"Configuration Machine : Sans Nom"_s);
        QCOMPARE(d.frameGeometry().center(), d.screen()->geometry().center());
        QVERIFY(d.OptMac_0->isChecked() && d.OptTour_0->isChecked() && d.OptionRAZ_0->isChecked());
        QCOMPARE(Montres(d), QList<bool>({true, false, false, false}));
        d.OptMac_1->click();
        d.OptJauge_1->click();
        QCOMPARE(Montres(d), QList<bool>({false, true, true, true}));
        QCOMPARE(ParamMac.TypeMachine + ParamMac.TypeJauge, 2);
        d.OptTour_1->click();
        d.OptionX_1->click();
        d.OptionRAZ_1->click();
        Tape(d.Text1, u"a1+0e0,.3 mm"_s);
        Tape(d.Text2, u"-12345.678"_s);
        Tape(d.Text3, u"-99.9"_s);
        Tape(d.Text4, u"-.5"_s);
        Tape(d.Text5, u"co1x"_s);
        Tape(d.Text6, u" %12 "_s);
        QCOMPARE(ParamMac.JaugeMaxiX, 100.0);
        d.Command2->click();
        QCOMPARE(d.windowTitle(), u"Configuration Machine : Sans Nom"_s);
        QCOMPARE(d.Text3->text(), u"300"_s); // what the gauges can hold
        d.Text4->clear();
        d.Command2->click();
        QCOMPARE(d.windowTitle(), u"Configuration machine : TOUR.mac"_s);
        d.Command2->click(); // offers the same file
        Tape(d.Text1, u"7"_s);
        d.Command1->click();
    });
    operateur.Fait("CommonDialog", [](QWidget &fenetre) {
        auto &dialogue = dynamic_cast<QFileDialog &>(fenetre);
        QCOMPARE(dialogue.windowTitle(), u"Enregistrer la configuration jauges outils"_s);
        QCOMPARE(dialogue.selectedNameFilter(), u"Fichiers paramètres (*.mac)"_s);
        QCOMPARE(dialogue.directory(), QDir(DosConf));
        QCOMPARE(QDir::current(), QDir(DosAppli));
        dialogue.reject();
        // Cancelled, and yet taken.
        QCOMPARE(ParamMac.DiffPoches, -.5);
        QCOMPARE(ParamMac.NbCorrecteurs, 300);
    });
    operateur.Choisit(poste.Chemin("TOUR.mac"));
    operateur.Fait("CommonDialog", [](QWidget &fenetre) {
        QCOMPARE(fenetre.findChild<QLineEdit *>(u"fileNameEdit"_s)->text(), u"TOUR.mac"_s);
        dynamic_cast<QFileDialog &>(fenetre).reject();
    });
    Operateur::Menu("Mn_CreeConfMac");
    QCOMPARE(poste.Lit("TOUR.mac"), "1\r\n1\r\n0\r\n1\r\n1\r\n100.3\r\n-12345\r\n300\r\n\"CO1\"\r\n\"%12\"\r\n1\r\n");
    QCOMPARE(NomCompletMac, poste.Chemin("TOUR.mac"));
    QCOMPARE(ParamMac.JaugeMaxiX, 100.3);
}

// A file is read into the dialog, in the language; what a mill does not show it keeps.
void TestConfMac::Modifie()
{
    const Poste poste(2);
    Operateur operateur;
    operateur.Fait("CommonDialog", [](QWidget &fenetre) {
        QCOMPARE(fenetre.windowTitle(), u"Abrir una configuración máquina Cabidas instrumentos"_s);
        fenetre.findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(Complete);
        QMetaObject::invokeMethod(&fenetre, "accept");
    });
    operateur.Fait("ConfMac", [](QWidget &fenetre) {
        const auto &d = dynamic_cast<ConfMac &>(fenetre);
        QCOMPARE(d.windowTitle(), u"Configuración máquina : Complete.mac"_s);
        QCOMPARE(d.Label7->text(), u"Entrega a Cero automática"_s);
        QCOMPARE(Montres(d), QList<bool>({false, true, true, true}));
        QVERIFY(d.OptTour_1->isChecked() && d.OptionX_1->isChecked() && d.OptionRAZ_1->isChecked());
        QCOMPARE((QStringList{d.Text1->text(), d.Text2->text(), d.Text3->text(), d.Text4->text(), d.Text5->text(),
                              d.Text6->text()}),
                 u"100.3|1234.5|300|-.125|COR|%12.5"_s.split(u'|'));
        d.OptMac_0->click();
        d.OptMac_1->click();
        d.Command2->click();
        d.Command1->click();
    });
    operateur.Choisit(poste.Chemin("copie.mac"));
    Operateur::Menu("Mn_ModifConfMac");
    QFile original(Complete);
    QVERIFY(original.open(QIODevice::ReadOnly));
    QCOMPARE(poste.Lit("copie.mac"), original.readAll());
}

// Cancelled, cut short or not writable: no message, and nothing opens or closes.
void TestConfMac::Refus()
{
    const Poste poste(0);
    Operateur operateur;
    operateur.Fait("CommonDialog", [](QWidget &fenetre) { dynamic_cast<QDialog &>(fenetre).reject(); });
    Operateur::Menu("Mn_ModifConfMac");
    QVERIFY(!frmPrinc->findChild<QDialog *>());
    operateur.Choisit(poste.Ecrit("dix.mac", "1\r\n1\r\n2\r\n1\r\n1\r\n5\r\n6\r\n7\r\n\"A\"\r\n\"B\"\r\n"));
    Operateur::Menu("Mn_ModifConfMac");
    QCOMPARE(ParamMac.NumProgJauge + NomMac, u"Bdix.mac"_s);

    operateur.Choisit(Complete);
    operateur.Presse("ConfMac", "Command2");
    operateur.Choisit(poste.Chemin("parti/x.mac"));
    operateur.Fait("ConfMac", [](QWidget &fenetre) {
        QCOMPARE(fenetre.windowTitle(), u"Configuration machine : Complete.mac"_s);
        fenetre.close();
    });
    Operateur::Menu("Mn_ModifConfMac");
}

QTEST_MAIN(TestConfMac)
#include "TestConfMac.moc"
