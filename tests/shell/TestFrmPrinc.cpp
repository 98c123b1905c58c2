#include "LigneScenario.h"
#include "Operateur.h"
#include "Poste.h"

#include "locale/Legendes.h"
#include "platform/MSComm.h"
#include "shell/CadreExplorateur.h"
#include "shell/FrmPrinc.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestFrmPrinc : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Too small a window springs back. In the smallest one every word of the status panel and of the explorer has its
    // room but for the data, which are cut with an ellipsis; the panel keeps its height whatever is shown above it or
    // written in it.
    void RienNEstCoupe()
    {
        for (int langue = 0; langue < 3; ++langue) {
            const Poste poste(langue);
            poste.Charge("G0");
            Operateur::Barre(15);
            frmPrinc->resize(100, 100);
            QTRY_COMPARE(frmPrinc->size(), QSize(620, 547));
            const int hauteur = frmPrinc->Picture11->height();
            frmPrinc->MontrePort(true);
            frmPrinc->MontreEtat(u"CTS"_s);
            frmPrinc->Text1->hide();
            QCoreApplication::processEvents();
            QCOMPARE(frmPrinc->Picture11->height(), hauteur);
            const auto labels = frmPrinc->Picture11->findChildren<QLabel *>();
            for (const QLabel *label : labels) {
                QVERIFY2(frmPrinc->Picture11->rect().contains(label->geometry()), qPrintable(label->objectName()));
                if (qobject_cast<const LabelElide *>(label) == nullptr)
                    QVERIFY2(label->width() >= label->sizeHint().width(), qPrintable(label->text()));
            }
            const CadreExplorateur &cadre = *frmPrinc->Frame1;
            const QCheckBox &longue = *cadre.CheckDOS;
            QVERIFY(longue.height() >= longue.heightForWidth(longue.width()));
            QVERIFY(longue.height() > 2 * longue.fontMetrics().height());
            QVERIFY(cadre.Label7->height() >= cadre.Label7->heightForWidth(cadre.Label7->width()));
            QVERIFY(cadre.rect().contains(cadre.File1->geometry()));
        }
    }

    // The lamps follow the port once a second, in the language; a lamp tells its state in words too. A carrier makes
    // the port count as open.
    void Lampes()
    {
        const Poste poste(1);
        QCOMPARE(frmPrinc->UpdateTimer.interval() + frmPrinc->Timer2.interval(), 1000 + 5000);
        frmPrinc->UpdateTimer.setInterval(1);
        const auto scenario = std::make_shared<Scenario>();
        frmPrinc->MSComm1->setFabrique(LigneScenario::Fabrique(scenario));
        frmPrinc->MSComm1->setRTSEnable(true);
        QTRY_COMPARE(frmPrinc->lblPortOpen->text(), u"Closed Port"_s); // the caption reads "Closed port"

        for (const bool ouvre : {true, false}) {
            scenario->etats = EtatsLigne{true, false, false, false};
            frmPrinc->MSComm1->setPortOpen(ouvre);
            PortOuvert = ouvre;
            frmPrinc->shpSend->setFillColor(Lampe::Verte);
            QTRY_COMPARE(frmPrinc->lblPortOpen->text(), ouvre ? u"Open Port"_s : u"Closed Port"_s);
            for (const Lampe *lampe : {frmPrinc->shpPortOpen, frmPrinc->shpRTS, frmPrinc->shpCTS, frmPrinc->shpSend})
                QCOMPARE(lampe->FillColor(), ouvre ? Lampe::Verte : Lampe::Rouge);
            QCOMPARE(frmPrinc->shpCD->FillColor(), Lampe::Rouge);
            const bool memeMots = frmPrinc->shpCTS->toolTip() == frmPrinc->shpCD->toolTip().replace("CD"_L1, "CTS"_L1);
            QCOMPARE(memeMots, !ouvre);
            QCOMPARE(frmPrinc->shpPortOpen->accessibleName(), ouvre ? u"Open Port"_s : u"Closed Port"_s);
            AppliqueLangue(); // whose caption is that of a closed port
            QVERIFY(!ouvre || frmPrinc->lblPortOpen->text() == u"Open Port");
        }

        scenario->etats = EtatsLigne{false, false, true, false};
        frmPrinc->MSComm1->setPortOpen(true);
        QTRY_COMPARE(frmPrinc->shpCD->FillColor(), Lampe::Verte);
        QTRY_COMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Verte);
        QVERIFY(PortOuvert);
    }
};

QTEST_MAIN(TestFrmPrinc)
#include "TestFrmPrinc.moc"
