#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "gauges/Lignes.h"
#include "machine/MachineSimulee.h"
#include "platform/MSComm.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QPushButton>
#include <QTest>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

bool Visible(const QWidget &fenetre, const QString &nom)
{
    return fenetre.findChild<QWidget *>(nom)->isVisible();
}

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

    bool Attend(qsizetype programmes) const
    {
        return machine.Attend([programmes](const EtatMachine &etat) { return etat.Programmes == programmes; });
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
    void Octets();
    void TropDeLignes();
    void Affichage();
    void Coupure();
    void PortInutilisable();
};

// What the machine gets, byte for byte, twice in a row from one dialog: so nothing follows the end of the first.
void TestEmission::Octets()
{
    QByteArray tous;
    for (int code = 0; code < 256; ++code)
        tous += static_cast<char>(code);
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

// The table holds 25000 lines. A text of more leaves the count of the sending before it, and so many of its lines go.
void TestEmission::TropDeLignes()
{
    Atelier atelier(ParLigne, "A\r\nB\r\nC");
    ParamCom.Vitesse = u"4000000"_s;
    atelier.EmetToutEntier();
    QCOMPARE(NbLignes, 3);
    frmPrinc->Text1->setText(u"N\r\n"_s.repeated(CapaciteLignes));
    atelier.EmetToutEntier();
    QCOMPARE(NbLignes, 3);
    QVERIFY(atelier.Attend(2));
    QCOMPARE(atelier.machine.Programmes()[1].Brut, QByteArray("N\r\nN\r\nN\r\n\x04"));
}

// While the machine holds the line in the third piece, the dialog shows how far the sending is; at the end it shows the
// end. Nothing is lost over the hold.
void TestEmission::Affichage()
{
    const QByteArray corps = QByteArray(98, 'A') + "\r\n" + QByteArray(98, 'B') + "\r\n" + QByteArray(98, 'C') +
                             "\r\n" + QByteArray(98, 'D');
    for (const auto &[type, echo, statut, echoLu] :
         {std::tuple{DUnBloc, 0, u"Emission du fichier. Bloc :  301"_s, u""_s},
          {DUnBloc, 1, u"Emission du fichier. Bloc :  301"_s, u"301"_s},
          {ParLigne, 0, u"Emission ligne  2"_s, u""_s},
          {ParLigne, 1, u"Emission ligne  2"_s, u"C␍␊"_s}}) {
        Atelier atelier(type, corps, {{210, -1}});
        ParamCom.Echo = echo;
        ParamCom.Vitesse = u"9600"_s;
        ParamCom.TailleTamponEmis = 100;
        atelier.Confirme();
        atelier.operateur.Fait(
            Dialogue,
            [&](QWidget &fenetre) {
                QCOMPARE(Operateur::Lu(Statut), statut);
                QCOMPARE(Visible(fenetre, u"Label3"_s), echo == 1);
                if (echo == 1)
                    QCOMPARE(Operateur::Lu("Label3").right(3), echoLu);
                QVERIFY(!Visible(fenetre, u"Label4"_s) && !Visible(fenetre, u"Frame2"_s));
                QVERIFY(!fenetre.findChild<QWidget *>(Demarre)->isEnabled());
                QCOMPARE(frmPrinc->shpSend->FillColor(), Lampe::Verte);
                atelier.machine.Reprend();
            },
            [&atelier] { return atelier.machine.Etat().Retenu && atelier.machine.Etat().Recus >= 210; });
        atelier.operateur.Fait(
            Dialogue,
            [&](QWidget &fenetre) {
                QCOMPARE(Visible(fenetre, u"Label3"_s), echo == 1);
                if (echo == 1)
                    QCOMPARE(Operateur::Lu("Label3"), u"␄"_s);
                QCOMPARE(Operateur::Lu(Annule), u"&Annuler"_s);
                QCOMPARE(frmPrinc->shpSend->FillColor(), Lampe::Rouge);
            },
            Fini);
        atelier.Emet();
        QVERIFY(atelier.Attend(1));
        QCOMPARE(Recu(atelier.machine), type == DUnBloc ? corps + "\x04" : corps + "\n\x04");
    }
}

// The operator cancels, closes the dialog or the machine is switched off, in the middle and while the machine holds the
// line: told once, port closed, lamps red, no end of transfer; and the next sending is whole.
void TestEmission::Coupure()
{
    enum { Annuler, Fermer, Eteindre };
    for (int cas = 0; cas < 12; ++cas) {
        const int geste = cas % 3;
        const int type = cas < 6 ? ParLigne : DUnBloc;
        const bool retenue = cas / 3 % 2 == 0;
        Atelier atelier(type, QByteArray("N10 G1 X1\r\n").repeated(3000),
                        retenue ? std::vector<Arret>{{100, -1}} : std::vector<Arret>());
        MachineSimulee &machine = atelier.machine;
        const auto auMilieu = [&] { return machine.Etat().Recus >= 100 && machine.Etat().Retenu == retenue; };
        atelier.Confirme();
        if (geste == Eteindre) {
            atelier.operateur.Fait(
                Dialogue, [&machine](QWidget &) { machine.Arrete(); }, auMilieu);
            atelier.operateur.LitErreur(8020, u"Erreur de lecture du périphérique de communication"_s);
            atelier.operateur.Presse(Dialogue, Annule);
        } else {
            if (geste == Annuler)
                atelier.operateur.Presse(Dialogue, Annule, auMilieu);
            else
                atelier.operateur.Ferme(Dialogue, auMilieu);
            atelier.operateur.LitErreur(8018, PortFerme);
        }
        frmPrinc->UpdateTimer.setInterval(1);
        Operateur::Menu("Mnu_EmisProgCN");
        QVERIFY(PortLibre());
        QTRY_COMPARE(frmPrinc->shpSend->FillColor(), Lampe::Rouge);
        QTRY_COMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Rouge);
        QVERIFY(machine.Programmes().empty() && Recu(machine).size() < 33000);

        const MachineSimulee autre(Rapide());
        if (geste == Eteindre)
            atelier.poste.Relie(2, autre.Chemin());
        machine.Reprend();
        machine.RemiseAZero();
        OuvreDocument(atelier.poste.Ecrit("PIECE.iso", "G0"));
        atelier.EmetToutEntier();
        const MachineSimulee &suivante = geste == Eteindre ? autre : machine;
        QVERIFY(suivante.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }));
        QCOMPARE(Recu(suivante), type == ParLigne ? QByteArray("G0\n\x04") : QByteArray("G0\x04"));
    }
}

// What stands behind the port's name is no line that can be used: told at the opening, then at the first operation. An
// empty text in one piece has none, so it ends as if it had gone.
void TestEmission::PortInutilisable()
{
    for (const auto &[numero, texte] : {std::pair{8002, u"Numéro de port non valide"_s},
                                        {8005, u"Port déjà ouvert"_s},
                                        {8006, u"Identificateur du périphérique non valide ou non pris en charge"_s}}) {
        Atelier atelier(ParLigne, "G0");
        int autreProgramme = -1;
        if (numero == 8002) {
            ParamCom.NumPort = 16;
        } else if (numero == 8005) {
            autreProgramme = open(qPrintable(atelier.machine.Chemin()), O_RDWR | O_NOCTTY | O_CLOEXEC);
            QCOMPARE(flock(autreProgramme, LOCK_EX | LOCK_NB), 0);
        } else {
            atelier.poste.Relie(2, atelier.poste.Ecrit("fichier", "x"));
        }
        for (const int type : {ParLigne, DUnBloc}) {
            ParamCom.TypeEnvoi = type;
            atelier.Confirme();
            atelier.operateur.LitErreur(numero, texte);
            atelier.operateur.LitErreur(8018, PortFerme);
            atelier.Emet();
            QVERIFY(PortLibre());
        }
        frmPrinc->Text1->setText(QString());
        atelier.Confirme();
        atelier.operateur.LitErreur(numero, texte);
        atelier.Emet(Fini);
        close(autreProgramme);
        QCOMPARE(atelier.poste.Lit("fichier"), numero == 8006 ? QByteArray("x") : QByteArray());
    }
}

QTEST_MAIN(TestEmission)
#include "TestEmission.moc"
