#include "Etabli.h"
#include "LigneScenario.h"

#include "locale/Legendes.h"
#include "shell/CadreExplorateur.h"
#include "shell/Disposition.h"
#include "shell/Explorateur.h"

#include <QDialog>
#include <QMimeData>
#include <QScreen>
#include <QSettings>
#include <QWindow>

namespace {

/// Drags files over the pane, or sur, and drops them there; true when the window takes them, as a copy. disparait: the
/// first one has gone when it is let go.
bool Depose(const QStringList &noms, bool disparait = false, const QWidget *sur = frmPrinc->Text1)
{
    QMimeData donnees;
    QList<QUrl> adresses;
    for (const QString &nom : noms)
        adresses << QUrl::fromLocalFile(nom);
    donnees.setUrls(adresses);
    const QPoint ici = sur->mapTo(frmPrinc, sur->rect().center());
    const Qt::DropActions offertes = Qt::MoveAction | Qt::CopyAction; // with this key, to move it
    QDragEnterEvent entree(ici, offertes, &donnees, Qt::LeftButton, Qt::ShiftModifier);
    QCoreApplication::sendEvent(frmPrinc->windowHandle(), &entree);
    QDragMoveEvent passage(ici, offertes, &donnees, Qt::LeftButton, Qt::ShiftModifier);
    QCoreApplication::sendEvent(frmPrinc->windowHandle(), &passage);
    if (disparait)
        QFile::remove(noms[0]);
    QDropEvent depot(ici, offertes, &donnees, Qt::LeftButton, Qt::ShiftModifier);
    if (entree.isAccepted())
        QCoreApplication::sendEvent(frmPrinc->windowHandle(), &depot);
    QCoreApplication::processEvents();
    return entree.isAccepted() && passage.dropAction() == Qt::CopyAction && depot.dropAction() == Qt::CopyAction;
}

} // namespace

class TestFrmPrinc : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The lamps follow the port once a second, in the language; a lamp tells its state in words too. A carrier makes
    // the port count as open.
    void Lampes()
    {
        const Poste poste(1);
        QCOMPARE(frmPrinc->UpdateTimer.interval(), 1000);
        QCOMPARE(frmPrinc->Timer2.interval(), 5000);
        frmPrinc->UpdateTimer.setInterval(1);
        const auto scenario = std::make_shared<Scenario>();
        frmPrinc->MSComm1->setFabrique(LigneScenario::Fabrique(scenario));
        frmPrinc->MSComm1->setRTSEnable(true);
        QTRY_COMPARE(frmPrinc->lblPortOpen->text(), u"Closed Port"_s); // the caption reads "Closed port"

        for (const bool ouvre : {true, false}) {
            const auto passe = Passe(ouvre ? u"open"_s : u"closed"_s);
            scenario->etats = EtatsLigne{true, false, false, false};
            frmPrinc->MSComm1->setPortOpen(ouvre);
            frmPrinc->PortOuvert = ouvre;
            frmPrinc->shpSend->setFillColor(Lampe::Verte);
            QTRY_COMPARE(frmPrinc->lblPortOpen->text(), ouvre ? u"Open Port"_s : u"Closed Port"_s);
            for (const Lampe *lampe : {frmPrinc->shpPortOpen, frmPrinc->shpRTS, frmPrinc->shpCTS, frmPrinc->shpSend})
                QCOMPARE(lampe->FillColor(), ouvre ? Lampe::Verte : Lampe::Rouge);
            QCOMPARE(frmPrinc->shpCD->FillColor(), Lampe::Rouge);
            const bool memeMots = frmPrinc->shpCTS->toolTip() == frmPrinc->shpCD->toolTip().replace("CD"_L1, "CTS"_L1);
            QCOMPARE(memeMots, !ouvre);
            QCOMPARE(frmPrinc->shpPortOpen->accessibleName(), ouvre ? u"Open Port"_s : u"Closed Port"_s);
            AppliqueLangue(); // whose caption is that of a closed port
            QCOMPARE(frmPrinc->lblPortOpen->text() == u"Open Port", ouvre);
        }

        scenario->etats = EtatsLigne{false, false, true, false};
        frmPrinc->MSComm1->setPortOpen(true);
        QTRY_COMPARE(frmPrinc->shpCD->FillColor(), Lampe::Verte);
        QTRY_COMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Verte);
        QVERIFY(frmPrinc->PortOuvert);
    }

    // What the operator has arranged comes back after a restart, hidden or not; a window that sticks out of the screen
    // comes back wholly on it, a maximised one when it is made small again.
    void Disposition()
    {
        const QTemporaryDir reglages;
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, reglages.path());
        QRect place(0, 0, 780, 600);
        place.moveBottomRight(QGuiApplication::primaryScreen()->availableGeometry().bottomRight());
        for (const auto &[dehors, maximise] : {std::pair{0, false}, {300, false}, {300, true}}) {
            const auto passe = Passe(u"%1%2"_s.arg(dehors).arg(maximise ? u", maximised"_s : QString()));
            const Poste poste(0);
            Mnu_AffichDOS();
            frmPrinc->setGeometry(place.translated(dehors, dehors));
            QWidget *const poignee = frmPrinc->milieu->handle(1);
            QTest::mousePress(poignee, Qt::LeftButton, {}, QPoint(1, 9));
            QTest::mouseMove(poignee, QPoint(301 - frmPrinc->Frame1->width(), 9));
            QTest::mouseRelease(poignee, Qt::LeftButton, {}, QPoint(1, 9));
            QTRY_COMPARE(frmPrinc->Frame1->width(), 300);
            Mnu_AffichDOS();
            if (maximise)
                frmPrinc->showMaximized();
            GardeDisposition(*frmPrinc);

            FrmPrinc suivante;
            RemetDisposition(suivante);
            suivante.CreeExplorateur();
            suivante.show();
            QCOMPARE(suivante.isMaximized(), maximise);
            suivante.showNormal();
            QTRY_COMPARE(suivante.Frame1->width(), 300);
            QCOMPARE(suivante.geometry(), place);
        }
    }

    // A file dropped on the text is opened as from the menu, by its kind, and its path does not land in the text; the
    // program that it came from is not told to remove it. What is no one file is refused, and so is any while a dialog
    // is open.
    void FichierDepose()
    {
        const Poste poste(0);
        poste.Charge("G0");
        const QString ancien = Document.NomFichier;
        const QString autre = poste.Ecrit(u"AUTRE €.iso"_s, "G1\r\n");
        const QString mac = poste.Ecrit("Tour.mac", {});
        const QString par = poste.Chemin(u"Autre.PAR"_s);
        QVERIFY(QFile::copy(EtatConf.FicConf, par));
        Document.FichierModifie = true;
        {
            Operateur operateur;                                          // he knows nothing of the dialog further down
            operateur.Fait("MsgBox", Operateur::Clique(QMessageBox::No)); // whether to save
            QVERIFY(Depose({autre}));
            operateur.Repond(u"Configuration machine"_s, u"Ce fichier n'est pas une configuration machine :\r"_s + mac,
                             Boite::Exclamation, QMessageBox::Ok);
            QVERIFY(!Document.FichierModifie);
            QVERIFY(Depose({mac}));
            operateur.Fait("MsgBox", [](QWidget &boite) {
                QVERIFY(dynamic_cast<QMessageBox &>(boite).text().contains(u"Parti.iso."_s));
                boite.close();
            });
            QVERIFY(Depose({poste.Ecrit("Parti.iso", "G2")}, true));
        }
        QCOMPARE((QStringList{Document.NomFichier, frmPrinc->Text1->Text(), frmPrinc->Label2->text()}),
                 (QStringList{autre, u"G1\r\n"_s, u"AUTRE €.iso"_s}));
        Mnu_AffichDOS();
        QVERIFY(Depose({par}, false, frmPrinc->Frame1->Combo1));
        QCOMPARE((QStringList{EtatConf.FicConf, frmPrinc->Label4->text(), Document.NomFichier}),
                 (QStringList{par, u"Autre.PAR"_s, autre}));

        QVERIFY(!Depose({ancien, autre}));
        QVERIFY(!Depose({poste.Dossier()}));
        QDialog dialogue;
        dialogue.open();
        QVERIFY(!Depose({ancien}));
        QCOMPARE(frmPrinc->Text1->Text(), u"G1\r\n"_s);
    }
};

QTEST_MAIN(TestFrmPrinc)
#include "TestFrmPrinc.moc"
