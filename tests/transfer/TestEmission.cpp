#include "Operateur.h"
#include "platform/Essais.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "gauges/Lignes.h"
#include "machine/MachineSimulee.h"
#include "platform/MSComm.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Dialogue[] = "Em_Rc";
const QString Demarre = QStringLiteral("Command2");
constexpr char Annule[] = "Command1";
constexpr char Statut[] = "Label2";
const QString PortFerme = QStringLiteral("Opération valide uniquement quand le port est ouvert");

enum Genre { ParLigne, DUnBloc };

/// All that has reached the machine.
QByteArray Recu(const MachineSimulee &machine)
{
    QByteArray octets;
    for (const ProgrammeRecu &programme : machine.Programmes())
        octets += programme.Brut;
    return octets + machine.Etat().EnCours;
}

bool UnProgramme(const EtatMachine &etat)
{
    return etat.Programmes == 1;
}

bool Fini()
{
    return Operateur::Lu(Statut) == u"Transfert terminé avec succès !" &&
           QApplication::activeModalWidget()->findChild<QPushButton *>(Demarre)->isEnabled();
}

bool PortLibre()
{
    return !frmPrinc->MSComm1->PortOpen() && !PortOuvert;
}

/// Takes characters as fast as they come, so that only the PC paces the line.
ReglageMachine Rapide(const std::vector<Arret> &arrets = {})
{
    ReglageMachine reglage;
    reglage.Ligne.Vitesse = 0;
    reglage.Tampon.Arrets = arrets;
    return reglage;
}

/// A workstation that has loaded a program for the machine on Com2.
struct Atelier
{
    explicit Atelier(int typeEnvoi, const QByteArray &texte = {}, const std::vector<Arret> &arrets = {})
        : machine(Rapide(arrets))
    {
        poste.Relie(2, machine.Chemin());
        poste.Charge(texte);
        ParamCom.TypeEnvoi = typeEnvoi;
    }

    /// Yes, and a double click on the button that sends, with a hand left on Enter: all that sends once.
    void Confirme()
    {
        operateur.Repond("Emission d'un programme CN",
                         "Emission d'un programme CN\rConfirmez l'émission du programme PIECE.iso sur le port Com2 ?",
                         Operateur::Demande, QMessageBox::Yes);
        operateur.Fait(Dialogue, [](QWidget &fenetre) {
            auto *const bouton = fenetre.findChild<QPushButton *>(Demarre);
            QTest::mouseClick(bouton, Qt::LeftButton);
            QTest::mouseDClick(bouton, Qt::LeftButton);
            QTest::mouseRelease(bouton, Qt::LeftButton);
            for (const bool marquee : {true, false}) {
                QKeyEvent entree(QEvent::KeyPress, Qt::Key_Return, {}, u"\r"_s, marquee);
                QApplication::sendEvent(bouton, &entree);
                QApplication::sendEvent(&fenetre, &entree);
            }
        });
    }

    /// The last gesture of a sending; then the sending begins.
    void Emet(const Operateur::Condition &quand = {})
    {
        operateur.Presse(Dialogue, Annule, quand);
        Operateur::Menu("Mnu_EmisProgCN");
    }

    void EmetToutEntier()
    {
        Confirme();
        Emet(Fini);
    }

    Poste poste{0};
    MachineSimulee machine;
    Operateur operateur;
};

} // namespace

class TestEmission : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What the machine gets, byte for byte, twice in a row from one dialog: so nothing follows the end of the first.
    void Octets()
    {
        const QByteArray tous = TousLesOctets();
        const QByteArray longue(50, 'X');
        // beginning of the program, type of line end: 0 LF, 3 CR LF
        const std::tuple<int, QByteArray, QByteArray, int, QByteArray> cas[] = {
            {DUnBloc, "", "", 0, "\x04"},
            {DUnBloc, "", "%O", 3, "%O\r\n\x04"},
            {DUnBloc, "12345678", "", 3, "12345678\x04"}, // exactly a buffer
            {DUnBloc, "123456789", "%", 0, "%\n123456789\x04"},
            {DUnBloc, " A\r\nB\nC\rD \r\n", "", 3, " A\r\nB\nC\rD \r\n\x04"},
            {DUnBloc, tous, "\xFF", 0, "\xFF\n" + tous + "\x04"},
            {ParLigne, "", "", 3, "\r\n\x04"},
            {ParLigne, "A\r\nB", "%", 0, "%\nA\r\nB\n\x04"},
            {ParLigne, "A\r\nB", "", 3, "A\r\r\nB\r\n\x04"},
            {ParLigne, "  A \r\n B \r\n C  ", "", 0, "A \r\n B \r\n C\n\x04"},
            {ParLigne, "A\r\n\r\n\r\nB\r\n", "", 0, "A\r\n\r\n\r\nB\r\n\n\x04"},
            {ParLigne, "\tA\r\r\nB\rC\n\rD\t", "", 0, "\tA\r\r\nB\rC\n\rD\t\n\x04"},
            {ParLigne, "A\nB\n", "", 3, "A\nB\n\r\n\x04"}, // LF alone cuts no line
            {ParLigne, longue + "\r\nB", "", 0, longue + "\r\nB\n\x04"},
            {ParLigne, tous, "", 0, tous + "\n\x04"}};
        for (const auto &[type, texte, debut, finLigne, attendu] : cas) {
            Atelier atelier(type, texte);
            ParamCom.TypeFinLig = finLigne;
            ParamCom.NbCarDebProg = int(debut.size());
            for (int i = 0; i < debut.size(); ++i)
                ParamCom.CarDebProg[std::size_t(i) + 1] = static_cast<unsigned char>(debut[i]);
            BatirChaines();
            ParamCom.TailleTamponEmis = 8;
            atelier.Confirme();
            atelier.operateur.Presse(Dialogue, Demarre, Fini);
            atelier.Emet(Fini);
            const qsizetype total = 2 * attendu.size();
            QVERIFY(atelier.machine.Attend([total](const EtatMachine &etat) { return etat.Recus >= total; }));
            QCOMPARE(Recu(atelier.machine), attendu + attendu);
            QVERIFY(PortLibre());
            QCOMPARE(frmPrinc->Text1->Text().size(), texte.size());
        }
    }

    // The table holds 25000 lines. A text of more leaves the count of the sending before it, and so many of its lines
    // go.
    void TropDeLignes()
    {
        Atelier atelier(ParLigne, "A\r\nB\r\nC");
        ParamCom.Vitesse = u"4000000"_s;
        atelier.EmetToutEntier();
        QCOMPARE(NbLignes, 3);
        frmPrinc->Text1->setText(u"N\r\n"_s.repeated(CapaciteLignes));
        atelier.EmetToutEntier();
        QCOMPARE(NbLignes, 3);
        QVERIFY(atelier.machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 2; }));
        QCOMPARE(atelier.machine.Programmes()[1].Brut, QByteArray("N\r\nN\r\nN\r\n\x04"));
    }

    // While the machine holds the line in the third piece, the dialog shows how far the sending is; at the end it shows
    // the end. Nothing is lost over the hold.
    void Affichage()
    {
        QByteArray corps;
        for (const char lettre : {'A', 'B', 'C'})
            corps += QByteArray(98, lettre) + "\r\n";
        for (const auto &[type, echo, statut, echoLu] :
             {std::tuple{DUnBloc, false, u"Emission du fichier. Bloc :  301"_s, QString()},
              {DUnBloc, true, u"Emission du fichier. Bloc :  301"_s, u"301"_s},
              {ParLigne, true, u"Emission ligne  2"_s, u"C␍␊"_s}}) {
            Atelier atelier(type, corps + "D", {{210, -1}});
            ParamCom.Echo = echo ? 1 : 0;
            ParamCom.Vitesse = u"9600"_s;
            ParamCom.TailleTamponEmis = 100;
            const auto montre = [](const QString &nom) {
                return QApplication::activeModalWidget()->findChild<QWidget *>(nom)->isVisible();
            };
            atelier.Confirme();
            atelier.operateur.Fait(
                Dialogue,
                [&](QWidget &fenetre) {
                    QCOMPARE(Operateur::Lu(Statut), statut);
                    QCOMPARE(montre(u"Label3"_s), echo);
                    QVERIFY(Operateur::Lu("Label3").endsWith(echoLu));
                    QVERIFY(!montre(u"Label4"_s) && !montre(u"Frame2"_s));
                    QVERIFY(!fenetre.findChild<QWidget *>(Demarre)->isEnabled());
                    QCOMPARE(frmPrinc->shpSend->FillColor(), Lampe::Verte);
                    atelier.machine.Reprend();
                },
                [&atelier] { return atelier.machine.Etat().Retenu && atelier.machine.Etat().Recus >= 210; });
            atelier.operateur.Fait(
                Dialogue,
                [&](QWidget &) {
                    QCOMPARE(Operateur::Lu("Label3") == u"␄", echo);
                    QCOMPARE(Operateur::Lu(Annule), u"&Annuler"_s);
                    QCOMPARE(frmPrinc->shpSend->FillColor(), Lampe::Rouge);
                },
                Fini);
            atelier.Emet();
            QVERIFY(atelier.machine.Attend(UnProgramme));
            QCOMPARE(Recu(atelier.machine), corps + (type == DUnBloc ? "D\x04" : "D\n\x04"));
        }
    }

    // The operator cancels, closes the dialog or the machine is switched off, in the middle and while the machine holds
    // the line: told once, port closed, lamps red, no end of transfer; and the next sending is whole.
    void Coupure()
    {
        enum { Annuler, Fermer, Eteindre };
        for (int cas = 0; cas < 12; ++cas) {
            const int geste = cas % 3;
            const int type = cas < 6 ? ParLigne : DUnBloc;
            const bool retenue = cas / 3 % 2 == 0;
            Atelier atelier(type, QByteArray("N10 G1 X1\r\n").repeated(3000),
                            retenue ? std::vector<Arret>{{100, -1}} : std::vector<Arret>());
            MachineSimulee &machine = atelier.machine;
            atelier.Confirme();
            atelier.operateur.Fait(
                Dialogue,
                [&machine, geste](QWidget &fenetre) {
                    if (geste == Annuler)
                        fenetre.findChild<QPushButton *>(QLatin1String(Annule))->click();
                    else
                        geste == Fermer ? void(fenetre.close()) : machine.Arrete();
                },
                [&] { return machine.Etat().Recus >= 100 && machine.Etat().Retenu == retenue; });
            if (geste == Eteindre) {
                atelier.operateur.LitErreur(8020, u"Erreur de lecture du périphérique de communication"_s);
                atelier.operateur.Presse(Dialogue, Annule);
            } else {
                atelier.operateur.LitErreur(8018, PortFerme);
            }
            frmPrinc->UpdateTimer.setInterval(1);
            Operateur::Menu("Mnu_EmisProgCN");
            QVERIFY(PortLibre());
            QTRY_COMPARE(frmPrinc->shpSend->FillColor(), Lampe::Rouge);
            QTRY_COMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Rouge);
            QVERIFY(machine.Programmes().empty() && Recu(machine).size() < 33000);

            const MachineSimulee autre(Rapide());
            const MachineSimulee &suivante = geste == Eteindre ? autre : machine;
            atelier.poste.Relie(2, suivante.Chemin());
            machine.Reprend();
            machine.RemiseAZero();
            OuvreDocument(atelier.poste.Ecrit("PIECE.iso", "G0"));
            atelier.EmetToutEntier();
            QVERIFY(suivante.Attend(UnProgramme));
            QCOMPARE(Recu(suivante), type == ParLigne ? QByteArray("G0\n\x04") : QByteArray("G0\x04"));
        }
    }

    // No such port: told at the opening, then at the first operation. An empty text in one piece has none, so it ends
    // as if it had gone.
    void PortInutilisable()
    {
        for (const auto &[type, texte] : {std::pair(ParLigne, "G0"), {DUnBloc, "G0"}, {ParLigne, ""}, {DUnBloc, ""}}) {
            const bool rate = type == ParLigne || *texte != '\0';
            Atelier atelier(type, texte);
            ParamCom.NumPort = 16;
            atelier.Confirme();
            atelier.operateur.LitErreur(8002, u"Numéro de port non valide"_s);
            if (rate)
                atelier.operateur.LitErreur(8018, PortFerme);
            atelier.Emet(rate ? Operateur::Condition() : Fini);
            QVERIFY(PortLibre());
        }
    }
};

QTEST_MAIN(TestEmission)
#include "TestEmission.moc"
