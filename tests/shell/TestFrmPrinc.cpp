#include "LigneScenario.h"
#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "platform/MSComm.h"
#include "shell/FrmPrinc.h"

#include <QTest>
#include <QToolButton>

class TestFrmPrinc : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Taille();
    void Lampes_data();
    void Lampes();
    void Porteuse();
    void MessageEtat();
    void Explorateur();
    void Noms();
};

// Too small a window springs back; the pane and the status panel follow a larger one, the column keeps its width.
void TestFrmPrinc::Taille()
{
    Poste poste;
    poste.Demarre(0);
    frmPrinc->resize(100, 100);
    QTRY_COMPARE(frmPrinc->size(), QSize(620, 547));
    Operateur::Menu(QStringLiteral("Mnu_AffichDOS"));
    QTRY_VERIFY(frmPrinc->Frame1->isVisible());
    const int colonne = frmPrinc->Frame1->width();
    frmPrinc->resize(1200, 900);
    QTRY_VERIFY(frmPrinc->Text1->width() > 800 && frmPrinc->Picture11->width() > 1100);
    QCOMPARE(frmPrinc->Frame1->width(), colonne);
    QVERIFY(frmPrinc->Frame1->mapTo(frmPrinc, QPoint()).x() < frmPrinc->Text1->mapTo(frmPrinc, QPoint()).x());
    QVERIFY(frmPrinc->Text1->mapTo(frmPrinc, QPoint()).y() < frmPrinc->Picture11->mapTo(frmPrinc, QPoint()).y());
}

// The lamps follow the port once a second, in the language; a lamp tells its state in words too.
void TestFrmPrinc::Lampes_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<QString>("ouvert");
    QTest::addColumn<QString>("ferme");
    QTest::newRow("French") << 0 << "Port Ouvert"
                            << "Port Fermé";
    QTest::newRow("English") << 1 << "Open Port"
                             << "Closed Port";
    QTest::newRow("Spanish") << 2 << "Port Abierto"
                             << "Port Ferrado";
}

void TestFrmPrinc::Lampes()
{
    QFETCH(int, langue);
    QFETCH(QString, ouvert);
    QFETCH(QString, ferme);
    Poste poste;
    poste.Demarre(langue);
    QCOMPARE(frmPrinc->UpdateTimer.interval(), 1000);
    QCOMPARE(frmPrinc->Timer2.interval(), 5000);
    frmPrinc->UpdateTimer.setInterval(1);
    const auto scenario = std::make_shared<Scenario>();
    scenario->etats = EtatsLigne{true, false, false, false};
    frmPrinc->MSComm1->setFabrique(LigneScenario::Fabrique(scenario));
    frmPrinc->MSComm1->setRTSEnable(true);
    QTRY_COMPARE(frmPrinc->lblPortOpen->text(), ferme);
    QCOMPARE(frmPrinc->shpRTS->FillColor(), Lampe::Rouge);

    frmPrinc->MSComm1->setPortOpen(true);
    PortOuvert = true;
    frmPrinc->shpSend->setFillColor(Lampe::Verte);
    QTRY_COMPARE(frmPrinc->lblPortOpen->text(), ouvert);
    for (const Lampe *lampe : {frmPrinc->shpPortOpen, frmPrinc->shpRTS, frmPrinc->shpCTS, frmPrinc->shpSend})
        QCOMPARE(lampe->FillColor(), Lampe::Verte);
    QCOMPARE(frmPrinc->shpCD->FillColor(), Lampe::Rouge);
    QVERIFY(frmPrinc->shpCTS->toolTip() !=
            frmPrinc->shpCD->toolTip().replace(QLatin1String("CD"), QLatin1String("CTS")));

    frmPrinc->MSComm1->setPortOpen(false);
    PortOuvert = false;
    QTRY_COMPARE(frmPrinc->lblPortOpen->text(), ferme);
    for (const Lampe *lampe : {frmPrinc->shpPortOpen, frmPrinc->shpRTS, frmPrinc->shpCTS, frmPrinc->shpSend})
        QCOMPARE(lampe->FillColor(), Lampe::Rouge);
}

// A carrier on the line makes the port count as open at the next tick.
void TestFrmPrinc::Porteuse()
{
    Poste poste;
    poste.Demarre(0);
    const auto scenario = std::make_shared<Scenario>();
    frmPrinc->MSComm1->setFabrique(LigneScenario::Fabrique(scenario));
    frmPrinc->MSComm1->setPortOpen(true);
    frmPrinc->UpdateTimer.setInterval(1);
    QTRY_COMPARE(frmPrinc->shpCD->FillColor(), Lampe::Verte);
    QTRY_COMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Verte);
    QVERIFY(PortOuvert);
}

// A message hides again; a second one meanwhile does not prolong the first one's time.
void TestFrmPrinc::MessageEtat()
{
    Poste poste;
    poste.Demarre(0);
    frmPrinc->Timer2.stop();
    frmPrinc->MontreEtat(QStringLiteral("CTS"));
    QCOMPARE(frmPrinc->Etat->text(), QStringLiteral("État : CTS"));
    QVERIFY(frmPrinc->Etat->isVisible() && frmPrinc->Timer2.isActive());
    const int minuterie = frmPrinc->Timer2.timerId();
    frmPrinc->MontreEtat(QStringLiteral("DSR"));
    QCOMPARE(frmPrinc->Timer2.timerId(), minuterie); // not started anew
    frmPrinc->Timer2.setInterval(1);
    QTRY_VERIFY(frmPrinc->Etat->isHidden());
    QCOMPARE(frmPrinc->Etat->text(), QStringLiteral("État : "));
    QVERIFY(!frmPrinc->Timer2.isActive());
}

void TestFrmPrinc::Explorateur()
{
    Poste poste;
    poste.Demarre(0);
    Operateur::Barre(15);
    QVERIFY(frmPrinc->Frame1->isVisible());
    QVERIFY(frmPrinc->Mnu_AffichDOS->isChecked() && frmPrinc->Bouton(15)->isChecked());
    Operateur::Menu(QStringLiteral("Mnu_AffichDOS"));
    QVERIFY(frmPrinc->Frame1->isHidden());
    QVERIFY(!frmPrinc->Mnu_AffichDOS->isChecked() && !frmPrinc->Bouton(15)->isChecked());
}

// Every control can be found by its name, and what bears no caption has words for those who cannot see it.
void TestFrmPrinc::Noms()
{
    Poste poste;
    poste.Demarre(0);
    for (int position = 1; position <= 17; ++position) {
        QCOMPARE(frmPrinc->Bouton(position) == nullptr, position == 7 || position == 14);
        const QString nom = QStringLiteral("Toolbar1_%1").arg(position);
        QCOMPARE(frmPrinc->findChild<QToolButton *>(nom) == nullptr, position == 7 || position == 14);
    }
    for (QWidget *muet : std::initializer_list<QWidget *>{frmPrinc->Text1, frmPrinc->shpSend, frmPrinc->shpPortOpen})
        QVERIFY2(!muet->accessibleName().isEmpty(), qPrintable(muet->objectName()));
}

QTEST_MAIN(TestFrmPrinc)
#include "TestFrmPrinc.moc"
