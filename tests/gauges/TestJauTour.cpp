#include "Etabli.h"

#include "donnees/Jauge.h"
#include "donnees/ParamMac.h"
#include "gauges/JauTour.h"

#include <QAbstractButton>

namespace {

/// Clicks a tile or a label of a dial; gives what stands in the boxes then.
QString Clique(const JauTour &d, const QString &nom)
{
    QTest::mouseClick(d.findChild<QWidget *>(nom), Qt::LeftButton);
    return d.Text1->text() + u'/' + d.Text2->text();
}

} // namespace

class TestJauTour : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Each tile and label writes to its box and to nothing else, but for locator 0 of the front dial. The places: right
    // of the crossing 0, 1, 7, 8, left 3, 4, 5; above it 1 to 3 on the back dial and 5 to 7 on the front one.
    void Tuiles_data() { OuiEtNon("avant", "front dial", "back dial"); }
    void Tuiles()
    {
        QFETCH(bool, avant);
        const Poste poste(0);
        ParamMac.TypeTourelle = avant ? 1 : 0;
        Jauges.NbJauges = 1;
        JauTour d(frmPrinc);
        d.show();
        QCOMPARE(d.Label7->text(), avant ? u"Tourelle Avant"_s : u"Tourelle Arrière"_s);
        const QWidget *const cadran = avant ? d.Picture11 : d.Picture1;
        QVERIFY(cadran->isVisible());
        QVERIFY(d.Picture1->isVisible() != d.Picture11->isVisible());

        for (int localisateur = 0; localisateur <= 8; ++localisateur) {
            const int image = avant ? 20 - localisateur : localisateur == 0 ? 10 : 1 + localisateur;
            for (const QString &nom : {u"Picture%1"_s.arg(image), u"Label%1"_s.arg((avant ? 8 : 17) + localisateur)}) {
                const auto passe = Passe(nom);
                d.Text1->setText(u"0.4"_s);
                QCOMPARE(Clique(d, nom), (avant && localisateur == 0 ? u"0/%1"_s : u"0.4/%1"_s).arg(localisateur));
                const auto *const tuile = d.findChild<QAbstractButton *>(nom);
                QCOMPARE(tuile->isChecked(), nom.startsWith(u'P')); // heard as the one chosen
                const QPoint place = tuile->mapTo(cadran, tuile->rect().center()) - cadran->rect().center();
                const int cotes[] = {1, 1, 0, -1, -1, -1, 0, 1, 1};
                const int hauteurs[] = {0, -1, -1, -1, 0, 1, 1, 1, 0};
                const int marge = tuile->height() / 2;
                QCOMPARE((place.x() > marge) - (place.x() < -marge), cotes[localisateur]);
                QVERIFY(hauteurs[localisateur] == 0 || (place.y() < 0) == ((hauteurs[localisateur] < 0) != avant));
            }
        }
        int image = 22;
        for (const auto &valeur : {u"0.6"_s, u"0.2"_s, u"0.4"_s, u"0.8"_s, u"1.0"_s, u"1.2"_s})
            QCOMPARE(Clique(d, u"Picture%1"_s.arg(image++)), valeur + u"/8"_s);
        QCOMPARE(Jauges.Jauge(1).Localisateur, 0); // nothing is stored before it is validated
    }

    // Keys and tiles, measure by measure, in English, two of which the bench has spoilt; only 5, 6 and 7 turn X round.
    // A heavy hand passes over no measure.
    void Mesures()
    {
        Etabli etabli(1);
        Jauges.NbJauges = 6;
        for (int i = 1; i <= Jauges.NbJauges; ++i)
            Jauges.Jauge(i) = {10 * i, 1, i == 2 ? -2.5F : 2.5F, 9, 9, i == 2 ? u'?' : u'R', i < 3 ? 0 : 2};
        JauTour d(frmPrinc);
        d.show();
        QVERIFY(QTest::qWaitForWindowActive(&d));
        const auto tape = [&](const QString &rayon, const QString &localisateur) {
            const QString vues = d.Frame1->title() + d.Text1->text() + d.Text2->text() + d.ValeursMesure->text();
            QTest::keyClicks(d.focusWidget(), rayon); // the keyboard waits in the first box, its content selected
            QTest::keyClick(d.focusWidget(), Qt::Key_Return);
            QTest::mouseClick(d.Text2, Qt::LeftButton); // all of it gives way to the key
            QTest::keyClicks(d.focusWidget(), localisateur);
            QTest::keyClick(d.focusWidget(), Qt::Key_Return);
            return vues;
        };
        QCOMPARE(tape(u"a.8x"_s, u"3"_s), u"Measured tool N° : 1   Corrector N° : 1000X = 2.5 (R)    Z = 1"_s);
        // "04" is refused until it is changed.
        for (const auto &[frappe, entree] : {std::pair{u"0,4"_s, true}, {u"0,4"_s, false}, {QString(), false}}) {
            QTest::keyClicks(d.Text1, frappe);
            etabli.Apprend(d.windowTitle(), "Decimals are written behind a point: 0.4");
            entree ? QTest::keyClick(d.Text1, Qt::Key_Return) : QTest::mouseClick(d.Command1, Qt::LeftButton);
            QCOMPARE(d.focusWidget(), d.Text1);
            QCOMPARE(d.Text1->selectedText(), u"04"_s);
        }
        d.Text1->setText(u"0"_s);
        d.Text1->selectAll();
        QCOMPARE(tape(u"1,.2345"_s, u"5"_s), u"Measured tool N° : 2  Corrector N° : 2000X = -2.5 (?)    Z = 1"_s);
        QCOMPARE(tape(u"-"_s, u"67"_s), u"Measured tool N° : 5  Corrector N° : 3000X = 2.5 (R)    Z = 1"_s);
        QTest::keyClick(d.Text1, Qt::Key_Backspace);
        tape(QString(), u"7"_s);
        Clique(d, u"Picture25"_s);
        QTest::keyClick(d.Picture9, Qt::Key_Space);
        QTest::keyClick(d.focusWidget(), Qt::Key_Escape); // would leave the dial half done
        QVERIFY(d.isVisible());
        QVERIFY(!d.JauTourFait);
        QTest::mouseClick(d.Command1, Qt::LeftButton);
        QTest::mouseDClick(d.Command1, Qt::LeftButton); // strokes too many
        QTest::mousePress(d.Command1, Qt::LeftButton);
        QTest::mouseRelease(d.Command1, Qt::LeftButton);
        QKeyEvent encore(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, {}, true);
        QCoreApplication::sendEvent(d.Text1, &encore);
        tape(u"0"_s, u"9"_s);
        QVERIFY(!d.isVisible());
        QVERIFY(d.JauTourFait);

        QString lues;
        for (int i = 1; i <= 6; ++i)
            lues +=
                u"%1/%2/%3 "_s.arg(Jauges.Jauge(i).Rayon).arg(Jauges.Jauge(i).Localisateur).arg(Jauges.Jauge(i).JaugeX);
        QCOMPARE(lues, u"0.8/3/2.5 1.23/5/2.5 0/7/-2.5 0/7/-2.5 0.8/8/2.5 0/9/2.5 "_s);
    }
};

QTEST_MAIN(TestJauTour)
#include "TestJauTour.moc"
