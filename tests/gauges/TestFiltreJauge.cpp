#include "Operateur.h"
#include "Poste.h"

#include "gauges/FiltreJauge.h"
#include "gauges/Jauge.h"
#include "gauges/Lignes.h"
#include "gauges/ParamMac.h"
#include "platform/Erreur.h"
#include "transfer/Transfert.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A burst of the bench: the texts at their columns.
QString Mesure(const QString &correcteur, const QString &z, const QString &x, const QString &mode)
{
    return u"TN:"_s + correcteur.leftJustified(21) + z.leftJustified(25) + x.leftJustified(12) + mode;
}

/// Filters the bursts of a reception of as many tools; gives the gauge file.
QByteArray Filtre(const Poste &poste, const QStringList &rafales, int outils)
{
    DossierRecep = poste.Dossier();
    NomFicRecep = u"A.JAU"_s;
    VideLignes();
    VideJauges();
    std::copy(rafales.begin(), rafales.end(), Lignes.begin() + 1);
    NbJauges = outils;
    FiltreJauge();
    return poste.Lit("A.JAU");
}

} // namespace

class TestFiltreJauge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Colonnes();
    void Suite();
    void HorsPlage();
    void Tour();
};

// What one burst gives on a mill.
void TestFiltreJauge::Colonnes()
{
    const Poste poste(0);
    ParamMac.TypeMachine = 1;
    ParamMac.JaugeMaxiX = 1e9;
    const QString bonne = Mesure(u"   12"_s, u"  120.450"_s, u"    8.250"_s, u"R"_s);
    for (const auto &[rafale, ligne] : {
             std::pair{bonne, "D12 L120.45 R8.25"},
             {bonne + u" 99 mm\r\n"_s, "D12 L120.45 R8.25"},
             {u"\a\r\n"_s + bonne, "D12 L120.45 R8.25"}, // the columns move back
             {QString(bonne).replace(u' ', u'\t').insert(3, u'\0').remove(4, 1), "D12 L120.45 R8.25"},
             {bonne.left(60), "D12 L120.45 R8.25"}, // the machine's own mode
             {bonne.left(61) + u'D', "D12 L120.45 R4.125"},
             {bonne.left(52), "D12 L120.45 R0"},
             {bonne.left(5), "D0 L0 R0"},
             {Mesure(u"1 2"_s, u"- 1 . 5"_s, u"+2.5"_s, u"R"_s), "D12 L-1.5 R2.5"},
             {Mesure(u"A2"_s, u"12.5mm"_s, u"x8"_s, u"R"_s), "D0 L12.5 R0"},
             {Mesure(u"2.5"_s, u"1.2.3"_s, u"123456789999"_s, u"r"_s), "D2 L1.2 R123456800"}, // ties to the even one
             {Mesure(u"-7"_s, u"5,5"_s, u"1E1"_s, u"D"_s), "D-7 L5 R5"},
             {u"tn:   12 "_s, "D0 L0 R0"},
         }) {
        QCOMPARE(Filtre(poste, {rafale}, 1), "%\r\n"_ba + ligne + "\r\n");
        QVERIFY(QApplication::overrideCursor() == nullptr);
    }
}

// Lines ahead of the measures and between them are passed over; each measure takes the next one, and the last of the
// tools, for which none is left, stays empty.
void TestFiltreJauge::Suite()
{
    const Poste poste(0);
    ParamMac.TypeMachine = 1;
    ParamMac.JaugeMaxiZ = -1; // its box stops the work while the cleaned text stands in the file
    Operateur operateur;
    for (int i = 0; i < 3; ++i)
        operateur.Fait("MsgBox", [&](QWidget &boite) {
            // Of two blank lines in a row one stays.
            QCOMPARE(poste.Lit("A.JAU"), "EPB\r\n\r\nTN:    3 \x80\r\nTOTAL\r\nTN:    4\r\n");
            QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
            dynamic_cast<QMessageBox &>(boite).accept();
        });
    const QStringList rafales = u"EPB\r|\r\n|\a| TN:    3 \u20AC |\x1b|TOTAL|TN:    4"_s.split(u'|');
    QCOMPARE(Filtre(poste, rafales, 3), "%\r\nD3 L0 R0\r\nD4 L0 R0\r\nD0 L0 R0\r\n");
}

// A corrector number that the machine does not have is asked again until it fits; giving up means 0.
void TestFiltreJauge::HorsPlage()
{
    const Poste poste(0);
    ParamMac.TypeMachine = 1;
    for (const auto &[recu, dit, reponses, numero] : {std::tuple{u"33"_s, u"33"_s, u"33|99999|12"_s.split(u'|'), "12"},
                                                      {u"99999"_s, u"99999"_s, {u" 32"_s}, "32"},
                                                      {u"-9E4"_s, u"-90000"_s, {u"-40000"_s, u"-1"_s}, "-1"},
                                                      {u"300"_s, u"300"_s, {QString()}, "0"}}) {
        Operateur operateur;
        operateur.Repond("Erreur de numéro de correcteur",
                         u"Attention numéro de correcteur %1|   interdit pour l'outil Nø: 2"_s.arg(dit),
                         Boite::Critique, QMessageBox::Ok);
        for (const QString &reponse : reponses)
            operateur.Fait("InputBox", [=](QWidget &boite) {
                QCOMPARE(boite.windowTitle(), u"Valeur du correcteur"_s);
                QCOMPARE(boite.findChild<QLabel *>()->text(), u"Nouvelle valeur du correcteur (0 -  32)"_s);
                auto *const saisie = boite.findChild<QLineEdit *>();
                QCOMPARE(saisie->text(), u" 32"_s);
                saisie->setText(reponse);
                dynamic_cast<QDialog &>(boite).done(reponse.isEmpty() ? QDialog::Rejected : QDialog::Accepted);
            });
        QCOMPARE(Filtre(poste, {Mesure(u"32"_s, u"1"_s, u"1"_s, u"R"_s), Mesure(recu, u"2"_s, u"2"_s, u"R"_s)}, 2),
                 "%\r\nD32 L1 R1\r\nD"_ba + numero + " L2 R2\r\n");
    }
}

// On a lathe the dial comes between, without the hourglass; closing it lets the file be made all the same. A value
// beyond single precision ends the work before the dial.
void TestFiltreJauge::Tour()
{
    const Poste poste(0);
    Operateur operateur;
    operateur.Presse("JauTour", "Picture25", [] { return QApplication::overrideCursor() == nullptr; });
    operateur.Presse("JauTour", "Label22");
    operateur.Presse("JauTour", "Command1");
    operateur.Ferme("JauTour");
    QCOMPARE(
        Filtre(poste, {Mesure(u"1"_s, u"102.36"_s, u"51"_s, u"D"_s), Mesure(u"2"_s, u"98.12"_s, u"26"_s, u"R"_s)}, 2),
        "%\r\nD1 X-25.5 Z102.36 R.8 C5\r\nD2 X26 Z98.12 R0 C0\r\n");
    QCOMPARE(JauTourFait, 0);
    QVERIFY_EXCEPTION_THROWN(Filtre(poste, {Mesure(u"1"_s, u"1E39"_s, u"1"_s, u"R"_s)}, 1), Erreur);
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

QTEST_MAIN(TestFiltreJauge)
#include "TestFiltreJauge.moc"
