#include "LigneScenario.h"
#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "locale/Legendes.h"
#include "platform/MSComm.h"
#include "shell/CadreExplorateur.h"
#include "shell/Disposition.h"
#include "shell/Document.h"
#include "shell/Explorateur.h"
#include "shell/FrmPrinc.h"

#include <QDialog>
#include <QMimeData>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QWindow>

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

    void Disposition();
    void FichierDepose();
};

// What the operator has arranged comes back after a restart, with the explorer made by the start or later; what cannot
// be leaves the smallest sizes, and a window that sticks out of the screen comes back wholly on it.
void TestFrmPrinc::Disposition()
{
    const QTemporaryDir reglages;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, reglages.path());
    for (const auto &[garde, largeur, attendue, dehors] :
         {std::tuple{-1, 300, 300, 0}, {410, 410, 410, 0}, {0, 225, 225, 300}}) {
        const Poste poste(0);
        if (garde >= 0)
            QSettings(u"Dorvanel"_s, u"Disposition"_s).setValue("LargeurExplorateur", garde);
        RemetDisposition(*frmPrinc);
        Mnu_AffichDOS();
        QTRY_COMPARE(frmPrinc->Frame1->width(), garde < 0 ? 225 : attendue);
        const QRect place(20, 200, 780, 600); // in the corner of the screen
        frmPrinc->setGeometry(place.translated(dehors, dehors));
        QTest::mousePress(frmPrinc->milieu->handle(1), Qt::LeftButton, {}, QPoint(1, 9));
        QTest::mouseMove(frmPrinc->milieu->handle(1), QPoint(1 + largeur - frmPrinc->Frame1->width(), 9));
        QTest::mouseRelease(frmPrinc->milieu->handle(1), Qt::LeftButton, {}, QPoint(1, 9));
        QTRY_COMPARE(frmPrinc->Frame1->width(), largeur);
        Mnu_AffichDOS(); // hidden, the column keeps its width
        GardeDisposition(*frmPrinc);

        FrmPrinc suivante;
        RemetDisposition(suivante);
        suivante.CreeExplorateur();
        suivante.show();
        QTRY_COMPARE(suivante.Frame1->width(), attendue);
        QCOMPARE(suivante.geometry(), place);
    }
}

// A file dropped on the text is opened as from the menu, by its kind, and its path does not land in the text; the
// program that it came from is not told to remove it. What is no one file is refused, and so is any while a dialog is
// open.
void TestFrmPrinc::FichierDepose()
{
    const Poste poste(0);
    poste.Charge("G0");
    const QString mac = poste.Ecrit("Tour.mac", {});
    const QString par = poste.Chemin(u"Autre.PAR"_s);
    QVERIFY(QFile::copy(FicConf, par));
    const auto depose = [&](const QStringList &noms) {
        QMimeData donnees;
        QList<QUrl> adresses;
        for (const QString &nom : noms)
            adresses << QUrl::fromLocalFile(nom);
        donnees.setUrls(adresses);
        const QPoint ici = frmPrinc->Text1->mapTo(frmPrinc, QPoint(50, 50));
        const Qt::DropActions offertes = Qt::MoveAction | Qt::CopyAction; // with this key, to move it
        QDragEnterEvent entree(ici, offertes, &donnees, Qt::LeftButton, Qt::ShiftModifier);
        QCoreApplication::sendEvent(frmPrinc->windowHandle(), &entree);
        QDragMoveEvent passage(ici, offertes, &donnees, Qt::LeftButton, Qt::ShiftModifier);
        QCoreApplication::sendEvent(frmPrinc->windowHandle(), &passage);
        QDropEvent depot(ici, offertes, &donnees, Qt::LeftButton, Qt::ShiftModifier);
        if (entree.isAccepted())
            QCoreApplication::sendEvent(frmPrinc->windowHandle(), &depot);
        QCoreApplication::processEvents();
        return entree.isAccepted() && passage.dropAction() == Qt::CopyAction && depot.dropAction() == Qt::CopyAction;
    };
    const QString autre = poste.Ecrit(u"AUTRE €.iso"_s, "G1\r\n");
    FichierModifie = Vrai;
    {
        Operateur operateur; // he knows nothing of the dialog further down
        operateur.Repond(u"Fichier en cours modifié"_s,
                         u"Fichier "_s + NomFichier + u" modifié !\r            Enregistrer le fichier ? "_s,
                         Operateur::DemandeSimple, QMessageBox::No);
        QVERIFY(depose({autre}));
    }
    QCOMPARE(NomFichier + frmPrinc->Text1->Text() + frmPrinc->Label2->text(), autre + u"G1\r\nAUTRE €.iso"_s);
    QVERIFY(FichierModifie == 0 && depose({par}) && depose({mac}));
    QCOMPARE(FicConf + frmPrinc->Label4->text() + NomFichier, par + u"Autre.PAR"_s + autre);

    const QString ancien = poste.Chemin(u"PIECE.iso"_s);
    QVERIFY(!depose({ancien, autre}) && !depose({poste.Dossier()}));
    QDialog dialogue;
    dialogue.open();
    QVERIFY(!depose({ancien}));
    QCOMPARE(frmPrinc->Text1->Text(), u"G1\r\n"_s);
}

QTEST_MAIN(TestFrmPrinc)
#include "TestFrmPrinc.moc"
