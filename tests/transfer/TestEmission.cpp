#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "gauges/Lignes.h"
#include "machine/MachineSimulee.h"
#include "platform/Boites.h"
#include "platform/MSComm.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QPushButton>
#include <QTest>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

const QString Dialogue = QStringLiteral("Em_Rc");
const QString Demarre = QStringLiteral("Command2");
const QString Annule = QStringLiteral("Command1");
const QString Statut = QStringLiteral("Label2");
const QString Succes = QStringLiteral("Transfert terminé avec succès !");
const QString PortFerme = QStringLiteral("Opération valide uniquement quand le port est ouvert");

/// A machine that takes characters as fast as they come, so that only the PC paces the line.
ReglageMachine Rapide()
{
    ReglageMachine reglage;
    reglage.Ligne.Vitesse = 0;
    return reglage;
}

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
    const QWidget *const fenetre = QApplication::activeModalWidget();
    return Operateur::Lu(Statut) == Succes && fenetre->findChild<QPushButton *>(Demarre)->isEnabled();
}

} // namespace

class TestEmission : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void Octets_data();
    void Octets();
    void TropDeLignes();
    void Affichage_data();
    void Affichage();
    void Coupure_data();
    void Coupure();
    void PortInutilisable_data();
    void PortInutilisable();

private:
    void Confirme()
    {
        m_operateur->Repond(QStringLiteral("Emission d'un programme CN"),
                            QStringLiteral("Emission d'un programme CN\rConfirmez l'émission du programme PIECE.iso "
                                           "sur le port Com2 ?"),
                            Boite::Question | Boite::OuiNon | Boite::SecondBouton, QMessageBox::Yes);
    }
    void AnnonceErreur(int numero, const QString &texte)
    {
        m_operateur->Repond(QStringLiteral("Erreur N°:  %1Fermeture du port de communication").arg(numero), texte,
                            Boite::Critique, QMessageBox::Ok);
    }
    static void Emet() { Operateur::Menu(QStringLiteral("Mnu_EmisProgCN")); }
    /// One sending from confirmation to close, that must succeed.
    void EmetToutEntier(const Operateur::Geste &regarde)
    {
        Confirme();
        m_operateur->Presse(Dialogue, Demarre);
        m_operateur->Fait(Dialogue, regarde, Fini);
        m_operateur->Presse(Dialogue, Annule);
        Emet();
    }

    std::unique_ptr<Poste> m_poste;
    std::unique_ptr<Operateur> m_operateur;
};

void TestEmission::init()
{
    m_poste = std::make_unique<Poste>();
    m_poste->Demarre(0);
    m_operateur = std::make_unique<Operateur>();
}

void TestEmission::cleanup()
{
    m_operateur.reset();
    m_poste.reset();
}

// What the machine gets, byte for byte, twice in a row from one dialog: so nothing follows the end of the first.
void TestEmission::Octets_data()
{
    QTest::addColumn<int>("typeEnvoi"); // 0 line by line, 1 to the end of the file
    QTest::addColumn<QByteArray>("texte");
    QTest::addColumn<QByteArray>("debut"); // beginning of program
    QTest::addColumn<int>("finLigne");     // 0 LF, 3 CR LF
    QTest::addColumn<QByteArray>("attendu");
    QByteArray tous;
    for (int code = 0; code < 256; ++code)
        tous += static_cast<char>(code);
    const auto fichier = [](const char *nom, const QByteArray &texte, const char *debut, int fin,
                            const QByteArray &attendu) {
        QTest::addRow("file: %s", nom) << 1 << texte << QByteArray(debut) << fin << attendu;
    };
    fichier("empty pane", "", "", 0, "\x04");
    fichier("empty pane, beginning", "", "%O", 3, "%O\r\n\x04");
    fichier("exactly a block", "12345678", "", 3, "12345678\x04");
    fichier("one character more", "123456789", "%", 0, "%\n123456789\x04");
    fichier("line ends of its own", " A\r\nB\nC\rD \r\n", "", 3, " A\r\nB\nC\rD \r\n\x04");
    fichier("all bytes", tous, "\xFF", 0, "\xFF\n" + tous + "\x04");
    const auto ligne = [](const char *nom, const QByteArray &texte, const char *debut, int fin,
                          const QByteArray &attendu) {
        QTest::addRow("lines: %s", nom) << 0 << texte << QByteArray(debut) << fin << attendu;
    };
    ligne("empty pane", "", "", 3, "\r\n\x04");
    ligne("beginning", "A", "%", 0, "%\nA\n\x04");
    ligne("CR ahead of LF", "A\r\nB", "", 0, "A\r\nB\n\x04");
    ligne("CR ahead of CR LF", "A\r\nB", "", 3, "A\r\r\nB\r\n\x04");
    ligne("blanks at the ends of the text alone", "  A \r\n B \r\n C  ", "", 0, "A \r\n B \r\n C\n\x04");
    ligne("last CR LF", "A\r\n", "", 0, "A\r\n\n\x04");
    ligne("empty lines", "A\r\n\r\n\r\nB", "", 0, "A\r\n\r\n\r\nB\n\x04");
    ligne("LF alone cuts no line", "A\nB\n", "", 3, "A\nB\n\r\n\x04");
    ligne("longer than the buffer", QByteArray(50, 'X') + "\r\nB", "", 0, QByteArray(50, 'X') + "\r\nB\n\x04");
    ligne("all bytes", tous, "", 0, tous + "\n\x04");
}

void TestEmission::Octets()
{
    QFETCH(int, typeEnvoi);
    QFETCH(QByteArray, texte);
    QFETCH(QByteArray, debut);
    QFETCH(int, finLigne);
    QFETCH(QByteArray, attendu);
    MachineSimulee machine(Rapide());
    m_poste->Relie(2, machine.Chemin());
    ParamCom.TypeEnvoi = typeEnvoi;
    ParamCom.TypeFinLig = finLigne;
    ParamCom.NbCarDebProg = int(debut.size());
    for (int i = 0; i < debut.size(); ++i)
        ParamCom.CarDebProg[std::size_t(i) + 1] = static_cast<unsigned char>(debut[i]);
    m_poste->Charge(texte);
    ParamCom.TailleTamponEmis = 8;
    Confirme();
    m_operateur->Presse(Dialogue, Demarre);
    m_operateur->Presse(Dialogue, Demarre, Fini);
    m_operateur->Presse(Dialogue, Annule, Fini);
    Emet();
    const qsizetype total = 2 * attendu.size();
    QVERIFY(machine.Attend([total](const EtatMachine &etat) { return etat.Recus >= total; }));
    QCOMPARE(Recu(machine), attendu + attendu);
    QVERIFY(!frmPrinc->MSComm1->PortOpen() && !PortOuvert);
    QCOMPARE(frmPrinc->Text1->Text().size(), texte.size());
}

// The table holds 25000 lines. A text of more leaves the count of the sending before it, and so many of its lines go.
void TestEmission::TropDeLignes()
{
    MachineSimulee machine(Rapide());
    m_poste->Relie(2, machine.Chemin());
    m_poste->Charge("A\r\nB\r\nC");
    ParamCom.Vitesse = QStringLiteral("4000000");
    EmetToutEntier([](QWidget &) { QCOMPARE(NbLignes, 3); });
    frmPrinc->Text1->setText(QStringLiteral("N\r\n").repeated(CapaciteLignes));
    EmetToutEntier([](QWidget &) { QCOMPARE(NbLignes, 3); });
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 2; }));
    QCOMPARE(machine.Programmes()[1].Brut, QByteArray("N\r\nN\r\nN\r\n\x04"));
}

// While the machine holds the line in the third piece, the dialog shows how far the sending is; at the end it shows the
// end. Nothing is lost over the hold.
void TestEmission::Affichage_data()
{
    QTest::addColumn<int>("typeEnvoi");
    QTest::addColumn<int>("echo");
    QTest::addColumn<QString>("statut");
    QTest::addColumn<QString>("echoLu");
    QTest::newRow("file, no echo") << 1 << 0 << "Emission du fichier. Bloc :  301"
                                   << "";
    QTest::newRow("file, echo") << 1 << 1 << "Emission du fichier. Bloc :  301"
                                << "301";
    QTest::newRow("lines, no echo") << 0 << 0 << "Emission ligne  2"
                                    << "";
    QTest::newRow("lines, echo") << 0 << 1 << "Emission ligne  2"
                                 << "C␍␊";
}

void TestEmission::Affichage()
{
    QFETCH(int, typeEnvoi);
    QFETCH(int, echo);
    QFETCH(QString, statut);
    QFETCH(QString, echoLu);
    ReglageMachine reglage = Rapide();
    reglage.Tampon.Arrets = {{210, -1}};
    MachineSimulee machine(reglage);
    m_poste->Relie(2, machine.Chemin());
    ParamCom.TypeEnvoi = typeEnvoi;
    ParamCom.Echo = echo;
    const QByteArray corps = QByteArray(98, 'A') + "\r\n" + QByteArray(98, 'B') + "\r\n" + QByteArray(98, 'C') +
                             "\r\n" + QByteArray(98, 'D');
    m_poste->Charge(corps);
    ParamCom.Vitesse = QStringLiteral("9600");
    ParamCom.TailleTamponEmis = 100;
    const auto echoVisible = [](QWidget &fenetre) {
        return fenetre.findChild<QWidget *>(QStringLiteral("Label3"))->isVisible();
    };
    Confirme();
    m_operateur->Presse(Dialogue, Demarre);
    m_operateur->Fait(
        Dialogue,
        [&](QWidget &fenetre) {
            QCOMPARE(Operateur::Lu(Statut), statut);
            QCOMPARE(echoVisible(fenetre), echo == 1);
            if (echo == 1)
                QCOMPARE(Operateur::Lu(QStringLiteral("Label3")).right(3), echoLu.right(3));
            QVERIFY(!fenetre.findChild<QWidget *>(QStringLiteral("Label4"))->isVisible());
            QVERIFY(!fenetre.findChild<QWidget *>(QStringLiteral("Frame2"))->isVisible());
            QVERIFY(!fenetre.findChild<QWidget *>(Demarre)->isEnabled());
            QCOMPARE(frmPrinc->shpSend->FillColor(), Lampe::Verte);
            machine.Reprend();
        },
        [&machine] { return machine.Etat().Retenu && machine.Etat().Recus >= 210; });
    m_operateur->Fait(
        Dialogue,
        [&](QWidget &fenetre) {
            QCOMPARE(echoVisible(fenetre), echo == 1);
            if (echo == 1)
                QCOMPARE(Operateur::Lu(QStringLiteral("Label3")), QStringLiteral("␄"));
            QCOMPARE(Operateur::Lu(Annule), QStringLiteral("&Annuler"));
            QCOMPARE(frmPrinc->shpSend->FillColor(), Lampe::Rouge);
        },
        Fini);
    m_operateur->Presse(Dialogue, Annule);
    Emet();
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }));
    QCOMPARE(Recu(machine), typeEnvoi == 1 ? corps + "\x04" : corps + "\n\x04");
}

// The operator cancels, closes the dialog or the machine is switched off, in the middle and while the machine holds the
// line: told once, port closed, lamps red, no end of transfer; and the next sending is whole.
void TestEmission::Coupure_data()
{
    QTest::addColumn<int>("typeEnvoi");
    QTest::addColumn<QString>("geste");
    QTest::addColumn<bool>("retenue");
    for (const int type : {0, 1}) {
        for (const char *geste : {"cancel", "close box", "machine off"}) {
            for (const bool retenue : {false, true})
                QTest::addRow("%s: %s%s", type == 0 ? "lines" : "file", geste, retenue ? ", held" : "")
                    << type << QString::fromLatin1(geste) << retenue;
        }
    }
}

void TestEmission::Coupure()
{
    QFETCH(int, typeEnvoi);
    QFETCH(QString, geste);
    QFETCH(bool, retenue);
    ReglageMachine reglage = Rapide();
    if (retenue)
        reglage.Tampon.Arrets = {{100, -1}};
    MachineSimulee machine(reglage);
    m_poste->Relie(2, machine.Chemin());
    ParamCom.TypeEnvoi = typeEnvoi;
    m_poste->Charge(QByteArray("N10 G1 X1\r\n").repeated(3000));
    const auto auMilieu = [&] { return machine.Etat().Recus >= 100 && machine.Etat().Retenu == retenue; };
    Confirme();
    m_operateur->Presse(Dialogue, Demarre);
    if (geste == QLatin1String("machine off")) {
        m_operateur->Fait(
            Dialogue, [&machine](QWidget &) { machine.Arrete(); }, auMilieu);
        AnnonceErreur(8020, QStringLiteral("Erreur de lecture du périphérique de communication"));
        m_operateur->Presse(Dialogue, Annule);
    } else {
        if (geste == QLatin1String("cancel"))
            m_operateur->Presse(Dialogue, Annule, auMilieu);
        else
            m_operateur->Ferme(Dialogue, auMilieu);
        AnnonceErreur(8018, PortFerme);
    }
    frmPrinc->UpdateTimer.setInterval(1);
    Emet();
    QVERIFY(!frmPrinc->MSComm1->PortOpen() && !PortOuvert);
    QTRY_COMPARE(frmPrinc->shpSend->FillColor(), Lampe::Rouge);
    QTRY_COMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Rouge);
    QVERIFY(machine.Programmes().empty() && Recu(machine).size() < 33000);

    if (geste == QLatin1String("machine off")) {
        MachineSimulee autre(Rapide());
        m_poste->Relie(2, autre.Chemin());
        OuvreDocument(m_poste->Ecrit(QStringLiteral("PIECE.iso"), "G0"));
        EmetToutEntier([](QWidget &) {});
        QVERIFY(autre.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }));
        QCOMPARE(Recu(autre), typeEnvoi == 0 ? QByteArray("G0\n\x04") : QByteArray("G0\x04"));
        return;
    }
    machine.Reprend();
    machine.RemiseAZero();
    OuvreDocument(m_poste->Ecrit(QStringLiteral("PIECE.iso"), "G0"));
    EmetToutEntier([](QWidget &) {});
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }));
    QCOMPARE(Recu(machine), typeEnvoi == 0 ? QByteArray("G0\n\x04") : QByteArray("G0\x04"));
}

// What stands behind the port's name is no line that can be used: told at the opening, then at the first operation. An
// empty text in one piece has none, so it ends as if it had gone.
void TestEmission::PortInutilisable_data()
{
    QTest::addColumn<QString>("cas");
    QTest::addColumn<int>("numero");
    QTest::addColumn<QString>("texte");
    QTest::newRow("no device") << "absent" << 8002 << "Numéro de port non valide";
    QTest::newRow("held by another program") << "occupe" << 8005 << "Port déjà ouvert";
    QTest::newRow("no serial line") << "fichier" << 8006
                                    << "Identificateur du périphérique non valide ou non pris en charge";
}

void TestEmission::PortInutilisable()
{
    QFETCH(QString, cas);
    QFETCH(int, numero);
    QFETCH(QString, texte);
    MachineSimulee machine(Rapide());
    int autreProgramme = -1;
    if (cas == QLatin1String("occupe")) {
        m_poste->Relie(2, machine.Chemin());
        autreProgramme = open(qPrintable(machine.Chemin()), O_RDWR | O_NOCTTY | O_CLOEXEC);
        QCOMPARE(flock(autreProgramme, LOCK_EX | LOCK_NB), 0);
    } else if (cas == QLatin1String("fichier")) {
        m_poste->Relie(2, m_poste->Ecrit(QStringLiteral("fichier"), "x"));
    } else {
        m_poste->Relie(2, m_poste->Chemin(QStringLiteral("absent")));
    }
    for (const int type : {0, 1}) {
        ParamCom.TypeEnvoi = type;
        m_poste->Charge("G0");
        ParamCom.NumPort = cas == QLatin1String("absent") ? 16 : 2;
        Confirme();
        m_operateur->Presse(Dialogue, Demarre);
        AnnonceErreur(numero, texte);
        AnnonceErreur(8018, PortFerme);
        m_operateur->Presse(Dialogue, Annule);
        Emet();
        QVERIFY(!frmPrinc->MSComm1->PortOpen() && !PortOuvert);
    }
    frmPrinc->Text1->setText(QString());
    Confirme();
    m_operateur->Presse(Dialogue, Demarre);
    AnnonceErreur(numero, texte);
    m_operateur->Presse(Dialogue, Annule, Fini);
    Emet();
    close(autreProgramme);
    QCOMPARE(m_poste->Lit(QStringLiteral("fichier")), cas == QLatin1String("fichier") ? QByteArray("x") : QByteArray());
}

QTEST_MAIN(TestEmission)
#include "TestEmission.moc"
