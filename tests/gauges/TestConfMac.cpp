#include "Operateur.h"
#include "Poste.h"

#include "gauges/ConfMac.h"
#include "gauges/ParamMac.h"
#include "platform/CommonDialog.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QDir>
#include <QFileDialog>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Complete = QString::fromUtf16(DONNEES) + u"/Complete.mac"_s;

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
        for (auto *const option : {d.OptMac_1, d.OptJauge_1, d.OptTour_1, d.OptionX_1, d.OptionRAZ_1})
            option->click();
        QCOMPARE(Montres(d), QList<bool>({false, true, true, true}));
        QCOMPARE(ParamMac.TypeMachine + ParamMac.TypeJauge, 2);
        QStringList touches = u"a1+0e0,.3 mm|-12345.678|-99.9|-.5|co1x| %12 "_s.split(u'|');
        for (QLineEdit *const saisie : {d.Text1, d.Text2, d.Text3, d.Text4, d.Text5, d.Text6}) {
            saisie->selectAll();
            QTest::keyClicks(saisie, touches.takeFirst());
        }
        QCOMPARE(ParamMac.JaugeMaxiX, 100.0);
        d.Command2->click();
        QCOMPARE(d.windowTitle(), u"Configuration Machine : Sans Nom"_s);
        QCOMPARE(d.Text3->text(), u"300"_s); // what the gauges can hold
        d.Text4->clear();
        d.Command2->click();
        QCOMPARE(d.windowTitle(), u"Configuration machine : TOUR.mac"_s);
        d.Command2->click(); // offers the same file
        d.Text1->setText(u"7"_s);
        d.Command1->click();
    });
    operateur.Fait("CommonDialog", [](QWidget &fenetre) {
        auto &dialogue = dynamic_cast<QFileDialog &>(fenetre);
        QCOMPARE(dialogue.windowTitle(), u"Enregistrer la configuration jauges outils"_s);
        QCOMPARE(dialogue.selectedNameFilter(), u"Fichiers paramètres (*.mac)"_s);
        QCOMPARE(dialogue.directory(), QDir(DosConf));
        QCOMPARE(QDir::current(), QDir(DosAppli));
        dialogue.reject();
        QCOMPARE(ParamMac.DiffPoches, -.5); // cancelled, and yet taken
        QCOMPARE(ParamMac.NbCorrecteurs, 300);
    });
    operateur.Choisit(poste.Chemin("TOUR")); // which the dialog completes
    operateur.Fait("CommonDialog", [](QWidget &fenetre) {
        QCOMPARE(fenetre.findChild<QLineEdit *>(u"fileNameEdit"_s)->text(), u"TOUR.mac"_s);
        dynamic_cast<QFileDialog &>(fenetre).reject();
    });
    Operateur::Menu("Mn_CreeConfMac");
    QCOMPARE(poste.Lit("TOUR.mac"), "1\r\n1\r\n0\r\n1\r\n1\r\n100.3\r\n-12345\r\n300\r\n\"CO1\"\r\n\"%12\"\r\n1\r\n");
    QCOMPARE(NomCompletMac, poste.Chemin("TOUR.mac"));
    QCOMPARE(ParamMac.JaugeMaxiX, 100.3);
}

// A file is read into the dialog, in the language, and saved as it was: what a mill does not show, and values that are
// longer than what can be typed.
void TestConfMac::Modifie()
{
    const Poste poste(2);
    const QByteArray longues = "1\r\n0\r\n-12.0625\r\n1\r\n0\r\n12345.678\r\n2\r\n3\r\n\"JAUG\"\r\n\"%79999\"\r\n0\r\n";
    QFile complete(Complete);
    QVERIFY(complete.open(QIODevice::ReadOnly));
    for (const auto &[octets, textes] : {std::pair{complete.readAll(), u"100.3|1234.5|300|-.125|COR|%12.5"_s},
                                         {longues, u"12345.678|2|3|-12.0625|JAUG|%79999"_s}}) {
        Operateur operateur;
        operateur.Fait("CommonDialog", [](QWidget &fenetre) {
            QCOMPARE(fenetre.windowTitle(), u"Abrir una configuración máquina Cabidas instrumentos"_s);
        });
        operateur.Choisit(poste.Ecrit("lue.mac", octets));
        operateur.Fait("ConfMac", [textes = textes](QWidget &fenetre) {
            const auto &d = dynamic_cast<ConfMac &>(fenetre);
            QCOMPARE(d.windowTitle(), u"Configuración máquina : lue.mac"_s);
            QCOMPARE(d.Label7->text(), u"Entrega a Cero automática"_s);
            QCOMPARE(Montres(d), QList<bool>({false, true, true, true}));
            QStringList montres;
            for (const QLineEdit *const saisie : {d.Text1, d.Text2, d.Text3, d.Text4, d.Text5, d.Text6})
                montres << saisie->text();
            QCOMPARE(montres.join(u'|'), textes);
            QCOMPARE(d.OptTour_1->isChecked() && d.OptionX_1->isChecked() && d.OptionRAZ_1->isChecked(),
                     ParamMac.TypeTourelle == 1);
            d.OptMac_0->click();
            d.OptMac_1->click();
            d.Command2->click();
            d.Command1->click();
        });
        operateur.Choisit(poste.Chemin("copie.mac"));
        Operateur::Menu("Mn_ModifConfMac");
        QCOMPARE(poste.Lit("copie.mac"), octets);
        QFile::remove(poste.Chemin("copie.mac"));
    }
}

// Cancelled or cut short: no message, and nothing opens.
void TestConfMac::Refus()
{
    const Poste poste(0);
    poste.Charge("");
    Operateur operateur;
    const QString dix = poste.Ecrit("dix.mac", "1\r\n1\r\n2\r\n1\r\n1\r\n5\r\n6\r\n7\r\n\"A\"\r\n\"B\"\r\n");
    for (const char *commande : {"Mn_ModifConfMac", "Mnu_RecepBanc"}) {
        operateur.Ferme("CommonDialog");
        Operateur::Menu(commande);
        operateur.Choisit(dix);
        Operateur::Menu(commande);
        QCOMPARE(ParamMac.NumProgJauge + NomMac, u"Bdix.mac"_s);
        QVERIFY(!frmPrinc->CommonDialog1->CancelError);
    }
}

QTEST_MAIN(TestConfMac)
#include "TestConfMac.moc"
