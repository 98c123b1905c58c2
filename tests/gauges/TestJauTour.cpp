#include "Poste.h"

#include "gauges/Jauge.h"
#include "gauges/JauTour.h"
#include "gauges/ParamMac.h"
#include "shell/FrmPrinc.h"

#include <QScreen>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

void Clique(const QWidget &fenetre, const QString &nom)
{
    auto *const tuile = fenetre.findChild<QWidget *>(nom);
    QVERIFY2(tuile != nullptr && tuile->isVisible(), qPrintable(nom));
    QTest::mouseClick(tuile, Qt::LeftButton);
}

QString Saisies(const JauTour &d)
{
    return d.Text1->text() + u'/' + d.Text2->text();
}

} // namespace

class TestJauTour : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        ParamMac = {};
        VideJauges();
    }
    void Tuiles_data();
    void Tuiles();
    void Mesures();
};

void TestJauTour::Tuiles_data()
{
    QTest::addColumn<bool>("avant");
    QTest::addColumn<QStringList>("tuiles"); // of locators 0 to 8, then their labels
    const auto noms = [](const char *genre, QList<int> numeros) {
        QStringList liste;
        for (const int numero : numeros)
            liste << QLatin1String(genre) + QString::number(numero);
        return liste;
    };
    QTest::newRow("back") << false
                          << noms("Picture", {10, 2, 3, 4, 5, 6, 7, 8, 9}) +
                                 noms("Label", {17, 18, 19, 20, 21, 22, 23, 24, 25});
    QTest::newRow("front") << true
                           << noms("Picture", {20, 19, 18, 17, 16, 15, 14, 13, 12}) +
                                  noms("Label", {8, 9, 10, 11, 12, 13, 14, 15, 16});
}

// Each tile and label writes to its box and to nothing else, but for locator 0 of the front dial. The places: right of
// the crossing 0, 1, 7, 8, left 3, 4, 5; above it 1 to 3 on the back dial and 5 to 7 on the front one.
void TestJauTour::Tuiles()
{
    QFETCH(const bool, avant);
    QFETCH(const QStringList, tuiles);
    const Poste poste(0);
    ParamMac.TypeTourelle = avant ? 1 : 0;
    NbJauges = 1;
    JauTour d(frmPrinc);
    d.show();
    QVERIFY(QTest::qWaitForWindowExposed(&d));
    QCOMPARE(d.frameGeometry().center(), d.screen()->geometry().center());
    QCOMPARE(d.Label7->text(), avant ? u"Tourelle Avant"_s : u"Tourelle Arrière"_s);
    const QWidget *const cadran = avant ? d.Picture11 : d.Picture1;
    QVERIFY(cadran->isVisible() && d.Picture1->isVisible() != d.Picture11->isVisible());
    QCOMPARE(cadran->toolTip(), u"Cliquez sur une image outil pour affecter un cadran de travail"_s);

    for (int i = 0; i < tuiles.size(); ++i) {
        const int localisateur = i % 9;
        d.Text1->setText(u"0.4"_s);
        d.Text2->clear();
        Clique(d, tuiles[i]);
        QCOMPARE(Saisies(d), (avant && localisateur == 0 ? u"0/"_s : u"0.4/"_s) + QString::number(localisateur));
        const auto *const tuile = d.findChild<QWidget *>(tuiles[i]);
        const QPoint place = tuile->mapTo(cadran, tuile->rect().center()) - cadran->rect().center();
        const int cotes[] = {1, 1, 0, -1, -1, -1, 0, 1, 1};
        const int hauteurs[] = {0, -1, -1, -1, 0, 1, 1, 1, 0};
        const int marge = tuile->height();
        QCOMPARE((place.x() > marge / 2) - (place.x() < -marge / 2), cotes[localisateur]);
        if (hauteurs[localisateur] != 0)
            QCOMPARE(place.y() < 0, (hauteurs[localisateur] < 0) != avant);
    }
    int i = 0;
    for (const auto &valeur : {u"0.6"_s, u"0.2"_s, u"0.4"_s, u"0.8"_s, u"1.0"_s, u"1.2"_s}) {
        Clique(d, u"Picture%1"_s.arg(22 + i++));
        QCOMPARE(Saisies(d), valeur + u"/8"_s);
    }
    QCOMPARE(Jauge[1].Localisateur, 0); // nothing is stored before it is validated
}

// Keys and tiles, measure by measure, in English; only 5, 6 and 7 turn X round.
void TestJauTour::Mesures()
{
    const Poste poste(1);
    NbJauges = 6;
    for (int i = 1; i <= NbJauges; ++i)
        Jauge[std::size_t(i)] = {10 * i, 1, i == 2 ? -2.5F : 2.5F, 9, 9, u'R'};
    JauTour d(frmPrinc);
    d.show();
    QVERIFY(QTest::qWaitForWindowActive(&d));
    const auto tape = [&](const QString &rayon, const QString &localisateur) {
        const QString vues = d.Frame1->title() + Saisies(d);
        QTest::keyClicks(d.focusWidget(), rayon); // the keyboard waits in the first box, its content selected
        QTest::keyClick(d.focusWidget(), Qt::Key_Tab);
        QTest::keyClicks(d.focusWidget(), localisateur);
        QTest::keyClick(d.focusWidget(), Qt::Key_Return);
        return vues;
    };
    QCOMPARE(tape(u"a.8x"_s, u"3"_s), u"Measured tool N° : 1   Corrector N° : 100/0"_s);
    QCOMPARE(tape(u"1,2345"_s, u"5"_s), u"Measured tool N° : 2  Corrector N° : 200/0"_s);
    QCOMPARE(tape(u"-"_s, u"67"_s), u"Measured tool N° : 3  Corrector N° : 300/0"_s);
    d.Text1->clear();
    QCOMPARE(tape(QString(), u"7"_s), u"Measured tool N° : 4  Corrector N° : 40/0"_s);
    Clique(d, u"Picture25"_s);
    QTest::keyClick(d.Picture9, Qt::Key_Space);
    QTest::keyClick(d.focusWidget(), Qt::Key_Escape); // would leave the dial half done
    QVERIFY(d.isVisible() && JauTourFait == 0);
    d.Command1->click();
    tape(u"0"_s, u"9"_s);
    QVERIFY(!d.isVisible() && JauTourFait == 1);

    QString lues;
    for (int i = 1; i <= NbJauges; ++i) {
        const JaugeOutil &jauge = Jauge[std::size_t(i)];
        lues += u"%1/%2/%3 "_s.arg(jauge.Rayon).arg(jauge.Localisateur).arg(jauge.JaugeX);
    }
    QCOMPARE(lues, u"0.8/3/2.5 1234/5/2.5 0/6/-2.5 0/7/-2.5 0.8/8/2.5 0/9/2.5 "_s);
}

QTEST_MAIN(TestJauTour)
#include "TestJauTour.moc"
