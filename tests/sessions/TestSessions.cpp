#include "Donnees.h"
#include "pilote/Pilote.h"
#include "transfer/EssaiTransfert.h"

#include "comconfig/Prop.h"
#include "donnees/ParamCom.h"
#include "donnees/Transfert.h"
#include "machine/Banc.h"
#include "machine/MachineSimulee.h"
#include "platform/serie/MSComm.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "transfer/PortCom.h"

/// Whole sessions of an operator, through menus, buttons, boxes and the line.
class TestSessions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CommandeInconnue();
    void Ports();
    void BancTour();
    void SansPause_data() { RangsGenres(2, 4); }
    void SansPause();
};

namespace {

/// Opens the chooser from the properties dialog and presses its buttons; a name with "=" types the free character
/// first.
void Compose(Operateur &operateur, const char *bouton, const QStringList &gestes)
{
    operateur.Presse("Prop", bouton);
    for (const QString &geste : gestes) {
        operateur.Saisit("FrmCaract", "Text1", geste.section(u'=', 1));
        operateur.Presse("FrmCaract", geste.section(u'=', 0, 0));
    }
    operateur.Presse("FrmCaract", "Command1");
}

} // namespace

// A control that nobody knows gets its configuration: made, its chains composed, applied to the port, saved, loaded
// again, and used in both directions.
void TestSessions::CommandeInconnue()
{
    ReglageMachine reglage;
    reglage.Fin = "\x03\xE9";
    MachineSimulee machine(reglage);
    const MachineSimulee voisine;
    const Poste poste(0);
    Pilote pilote(poste);
    poste.Relie(1, voisine.Chemin());
    poste.Relie(2, machine.Chemin());
    ParamCom.NumPort = 1;
    OuvrePortCOM(); // a port that stayed open, and on the wrong machine

    LireFichierPar(Donnees(u"Complet.par"_s)); // of which the new one keeps nothing that is seen
    pilote.Presse("Prop", "OptFinLig_4");
    Compose(pilote, "Command21", {u"Car_13"_s, u"Car_13"_s, u"Car_17"_s, u"Command3"_s, u"Car_10"_s});
    pilote.Presse("Prop", "OptFinTrans_2");
    Compose(pilote, "Command20", {u"Car_4"_s, u"Command2"_s, u"Car_3"_s, u"Command6=é"_s});
    Compose(pilote, "Command22", {u"Car_37"_s});
    pilote.Fait("Prop", [](QWidget &fenetre) {
        auto &prop = dynamic_cast<Prop &>(fenetre);
        QCOMPARE(prop.windowTitle(), u"Propriétés et configuration de la communication - Fichier : Nouveau"_s);
        QCOMPARE((QStringList{prop.Label6->text(), prop.Text1->text()}), (QStringList{u"Nouveau"_s, QString()}));
        prop.OptionEnvoi_0->click();
        prop.Text1->setText(u"Commande inconnue"_s);
        prop.cboSpeed->setCurrentText(u"115200"_s);
        prop.cboDataBits->setCurrentText(u"8"_s);
        prop.cboParity->setCurrentText(u"None"_s);
        prop.optFlow_1->click();
        prop.Option1_3->click();
        prop.cmdOK->click();
        QVERIFY(frmPrinc->MSComm1->PortOpen());
        QCOMPARE(frmPrinc->MSComm1->CommPort(), 2);
    });
    pilote.Presse("Prop", "Command1");
    pilote.Choisit(poste.Chemin("Inconnue.par"));
    pilote.Presse("Prop", "cmdCancel");
    Operateur::Menu("Mnu_CreConf");
    QFile attendu(Donnees(u"Inconnue.par"_s));
    QVERIFY(attendu.open(QIODevice::ReadOnly));
    QCOMPARE(poste.Lit("Inconnue.par"), attendu.readAll().replace("@", poste.Dossier().toUtf8()));

    ParamCom = {};
    pilote.Choisit(poste.Chemin("Inconnue.par"));
    Operateur::Barre(8);
    pilote.Joue(Genre::LigneParLigne, {"N10 G0\r\nN20 M30", {}, {}}, [](const QDialog &) {});
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }));
    QCOMPARE(machine.Programmes()[0].Brut, QByteArray("%\r\r\nN10 G0\r\r\r\nN20 M30\r\r\n\x03\xE9"));

    Envoi envoi;
    envoi.Texte = "O1\r\r\nG1 X5\r\r\n";
    envoi.PauseLigneMs = 150;
    bool emis = false;
    pilote.Joue(Genre::Ligne, {}, [&](const QDialog &) {
        if (frmPrinc->PortOuvert && !std::exchange(emis, true))
            machine.Emet(envoi);
    });
    QCOMPARE(poste.Lit("PIECE.ISO"), QByteArray("O1\r\n\r\nG1 X5\r\n\r\n\r\n"));
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Envoi.Reponse == Retour::Juste; }));
}

// A presetting bench at 1200 baud, a lathe, and Spanish: a diameter for a machine that wants radii, the pocket of an
// even corrector, a locator that turns X round, a corrector that the machine does not have, an alarm. The bell rings
// before the first burst, and in the midst of the others.
void TestSessions::BancTour()
{
    constexpr int vitesse = 1200;
    MachineSimulee machine(ReglageMachine{{vitesse, 20}, {}, {}, "\x04", true});
    const Poste poste(2);
    Pilote pilote(poste);
    poste.Relie(2, machine.Chemin());
    poste.Ecrit("Fraiseuse.mac", // which he chooses
                "0\r\n1\r\n.05\r\n0\r\n0\r\n100\r\n200\r\n32\r\n\"jau\"\r\n\"%7999\"\r\n0\r\n");
    pilote.Regle(Genre::Banc);
    ParamCom.Vitesse = QString::number(vitesse);
    ParamCom.NbCarLecture = 1; // so that a bell is always read alone
    pilote.Fait(
        "Em_Rc", [](QWidget &) {}, [] { return frmPrinc->PortOuvert; });
    pilote.Repond("Error de número de corrector",
                  "Atención número de corrector 99999|   prohibición para la instrumentos Nø: 3", Boite::Critique,
                  QMessageBox::Ok);
    pilote.Saisit("InputBox", "", "7");
    pilote.Fait("InputBox", [](QWidget &boite) { QMetaObject::invokeMethod(&boite, "accept"); });
    for (const auto &[rayon, localisateur] : {std::pair{".8", "3"}, {"0.4", "5"}, {"1.2", "0"}, {"", "8"}}) {
        pilote.Saisit("JauTour", "Text1", rayon);
        pilote.Saisit("JauTour", "Text2", localisateur);
        pilote.Presse("JauTour", "Command1");
    }
    pilote.Repond("Alarma mide instrumentos en X",
                  "Alarma mide instrumentos en X!\rCapacidad en X del corrector N°: \r12 > à 100 mm", Boite::Critique,
                  QMessageBox::Ok);
    Banc banc("1 102.3604 51.0005 D\n2 98.12 26 R\n99999 87.051 12.25 D\n12 120 203 D");
    Charge charge;
    for (const int cloche : {0, 53, 53, 53})
        charge.pieces += banc.Mesure().insert(cloche, '\a');
    pilote.Joue(Genre::Banc, charge, [&](const QDialog &transfert) {
        pilote.Poursuit(transfert, [&](const QByteArray &piece) {
            Envoi salve{piece};
            salve.Salve = true;
            machine.Emet(salve);
        });
    });
    const QByteArray attendu = "%\r\nD1 X25.5 Z102.36 R.8 C3\r\nD2 X-25.95 Z98.12 R.4 C5\r\n"
                               "D7 X6.125 Z87.051 R1.2 C0\r\nD12 X101.55 Z120 R0 C8\r\n";
    QCOMPARE(poste.Lit("PIECE.JAU"), attendu);
    QCOMPARE(frmPrinc->Text1->Text().toLatin1(), attendu);
    QCOMPARE(Document.TitreFichier, u"PIECE.JAU"_s);
}

// A machine that sends without a pause, 18,886 characters, to the receptions that empty the port at each line end: what
// they threw away is told, and every character is accounted for. By file nothing is lost.
void TestSessions::SansPause()
{
    QFETCH(int, rang);
    QByteArray programme;
    for (int bloc = 1; programme.size() < 18886; ++bloc)
        programme += "N" + QByteArray::number(bloc) + " G1 X" + QByteArray::number(bloc * 7) + " Y-12.5 F200\r\n";
    programme.truncate(18886);
    MachineSimulee machine({{1'000'000, 20}, {}, {}, "\x04", true}); // faster than a character a turn
    const Poste poste(0);
    Pilote pilote(poste);
    poste.Relie(2, machine.Chemin());
    const Genre genre = Genres[rang];
    pilote.Regle(genre);
    bool emis = false, force = false;
    const auto joue = pilote.Joue(genre, {}, [&](const QDialog &transfert) {
        if (frmPrinc->PortOuvert && !std::exchange(emis, true))
            machine.Emet({programme});
        const EtatEnvoi envoi = machine.Etat().Envoi;
        const bool tout = frmPrinc->MSComm1->Comptes().recus == programme.size() + 1;
        if (genre != Genre::Fichier && tout && !envoi.EnCours && !std::exchange(force, true))
            Operateur::Presse(transfert, "Command7");
    });
    const QByteArray recu = poste.Lit("PIECE.ISO").chopped(2);
    qint64 perdus = 0;
    for (const QString &pertes : joue.bilan.split(u'\n').mid(1))
        for (const QString &perte : pertes.section(u" : "_s, 0, 0).split(u", "_s))
            perdus += QString(perte.section(u' ', 0, 0)).remove(QChar(0x202F)).toInt();
    QCOMPARE(joue.bilan.section(u" en "_s, 0, 0), u"18\u202F887 caractères reçus"_s);
    if (genre == Genre::Fichier)
        QCOMPARE(recu, programme);
    // A line end that was cut in two is whole again in the file.
    const qsizetype ecart = recu.size() + perdus - programme.size();
    QVERIFY2(ecart >= 0, qPrintable(QString::number(ecart)));
    QVERIFY2(ecart <= recu.count('\n'), qPrintable(QString::number(ecart)));
}

// Each port says what it stands for as it is looked at.
void TestSessions::Ports()
{
    const Poste poste(0);
    const QString adaptateur = poste.Ecrit("adaptateur", {});
    Prop prop(frmPrinc);
    prop.show();
    prop.cboPort->showPopup();
    const auto bulle = [&](int port) { return prop.cboPort->itemData(port - 1, Qt::ToolTipRole).toString(); };
    QCOMPARE(bulle(5), u"Com5 : aucun périphérique sur ce PC"_s);
    poste.Relie(5, adaptateur); // plugged in meanwhile
    prop.cboPort->hidePopup();
    prop.cboPort->showPopup();
    QVERIFY2(bulle(5).contains(QFileInfo(adaptateur).canonicalFilePath()), qPrintable(bulle(5)));
    QVERIFY(bulle(16).startsWith(u"Com16 : "_s));
    QVERIFY(bulle(16).section(u':', 1) != bulle(5).section(u':', 1));
}

QTEST_MAIN(TestSessions)
#include "TestSessions.moc"
