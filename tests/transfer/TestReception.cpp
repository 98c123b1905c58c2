#include "LigneScenario.h"
#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "gauges/Lignes.h"
#include "machine/MachineSimulee.h"
#include "platform/ErreurPort.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "transfer/Transfert.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Fichier[] = "Rc_Fic";
constexpr char Dialogue[] = "Em_Rc";

enum Genre { ParLigne, ParCaractere, ParFichier };

bool Finie()
{
    return FinTransfert == 1 && !PortOuvert;
}

ReglageMachine Rapide()
{
    ReglageMachine reglage;
    reglage.Ligne.Vitesse = 0;
    return reglage;
}

/// A workstation with a machine at the other end of Com2, ready to receive a program as PIECE.ISO.
struct Atelier
{
    explicit Atelier(int typeRecep, int langue = 0)
        : poste(langue)
    {
        poste.Relie(2, machine.Chemin());
        poste.Charge("ANCIEN");
        ParamCom.TypeRecep = typeRecep;
        ParamCom.NbCarLecture = typeRecep == ParCaractere ? 1 : 512;
        ParamCom.SeuilRecep = 1;
        ParamCom.Echo = 1;
        ParamCom.TypeFinLig = 3;
        ParamCom.DosRecep = poste.Dossier();
        BatirChaines();
    }

    /// The operator names the file, and confirms on the port.
    void Nomme()
    {
        operateur.Fait(Fichier, [](QWidget &fenetre) {
            fenetre.findChild<QLineEdit *>(u"Text1"_s)->setText(u"piece"_s);
            fenetre.findChild<QPushButton *>(u"Command2"_s)->click();
        });
        operateur.Repond(
            "Réception d'un programme CN",
            "Réception d'un programme CN\rConfirmez la réception du programme PIECE.ISO sur le port Com2 ?",
            Operateur::Demande, QMessageBox::Yes);
    }

    /// The machine sends once the program waits for it; a line at a time, as the receptions by line and character ask.
    void Envoie(const QByteArray &texte, bool sansFin = false)
    {
        Envoi envoi;
        envoi.Texte = texte;
        // The PC may stall for longer than a short pause.
        envoi.PauseLigneMs = ParamCom.TypeRecep == ParFichier ? 0 : 150;
        envoi.SansFin = sansFin;
        operateur.Fait(
            Dialogue, [this, envoi](QWidget &) { machine.Emet(envoi); }, [] { return PortOuvert; });
    }

    void Reste()
    {
        operateur.Repond("Enregistrer les lignes reçues",
                         "La réception n'a pas abouti, les lignes déjà reçues ne sont pas enregistrées.\r"
                         "Les enregistrer dans un fichier ?",
                         Operateur::DemandeSimple, QMessageBox::Yes);
    }

    /// Closes the dialog after a reception that has ended.
    void Sort()
    {
        operateur.Presse(Dialogue, "Command1", Finie);
        Operateur::Menu("Mnu_RecepProg");
    }

    /// Closes the file dialog, behind one that has ended without a file.
    void Abandonne()
    {
        operateur.Presse(Fichier, "Command1");
        Operateur::Menu("Mnu_RecepProg");
    }

    /// What had come is saved under another name, and both dialogs are closed.
    QByteArray Sauve()
    {
        Reste();
        operateur.Choisit(poste.Chemin("sauve.txt"));
        operateur.Presse(Dialogue, "Command1", [] { return !PortOuvert; });
        Abandonne();
        return poste.Lit("sauve.txt");
    }

    Poste poste;
    MachineSimulee machine{Rapide()};
    Operateur operateur;
};

} // namespace

class TestReception : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Recoit();
    void Debranche();
    void DossierDisparu();
    void TropDeLignes();
    void FichierExistant();
    void Evenements();
};

// Each way of receiving, to the file on the disk, the pane, the answer to the machine and the names of the document.
void TestReception::Recoit()
{
    QByteArray tous;
    for (int i = 0; i < 256; ++i)
        tous += static_cast<char>(i);
    tous.replace('\x04', "").replace('\x11', "").replace('\x13', ""); // the end chain; XON and XOFF steer the line
    const QByteArray deux = "N10 G0\r\n\r\nN20 M30\r\n";
    const std::tuple<int, int, int, QByteArray, QByteArray> cas[] = {
        {ParLigne, 3, 0, deux, deux + "\r\n"},
        {ParLigne, 3, 3, "A\r\nB\r\n", "A\r\n\r\nB\r\n\r\n\r\n"}, // CR + LF added
        {ParLigne, 0, 1, "A\nB\n", "A\n\r\nB\n\r\n\r\n"},
        {ParCaractere, 3, 0, deux, deux + "\r\n"},
        {ParCaractere, 4, 0, "A\r\r\nB\r\r\n", "A\r\nB\r\n\r\n"}, // a chain of the operator's own
        {ParFichier, 3, 0, "", "\r\n"},
        {ParFichier, 3, 0, tous, tous + "\r\n"}};
    for (const auto &[genre, finLigne, option, envoye, fichier] : cas) {
        Atelier atelier(genre);
        ParamCom.TypeFinLig = finLigne;
        ParamCom.FinLigRecep = option;
        ParamCom.NbCarFinLig = 3;
        ParamCom.CarFinLig = {0, 13, 13, 10};
        BatirChaines();
        atelier.Nomme();
        atelier.Envoie(envoye);
        const bool parFichier = genre == ParFichier;
        atelier.operateur.Fait(
            Dialogue,
            [parFichier](QWidget &) {
                QCOMPARE(Operateur::Lu("Label2"), u"Transfert réalisé avec succès !"_s);
                QCOMPARE(Operateur::Lu("Command1"), parFichier ? u"&Annuler"_s : u"&Fermer"_s);
            },
            Finie);
        atelier.Sort();

        QCOMPARE(atelier.poste.Lit("PIECE.ISO"), fichier);
        QCOMPARE(frmPrinc->Text1->Text().size(), fichier.size() - (parFichier ? 2 : 0));
        QCOMPARE(FichierModifie, 0);
        QCOMPARE(frmPrinc->Label2->text(), u"PIECE.ISO"_s);
        QCOMPARE(TitreFichier, parFichier ? u"PIECE.iso"_s : u"PIECE.ISO"_s);
        QVERIFY(atelier.machine.Attend([](const EtatMachine &etat) { return etat.Envoi.Reponse == Retour::Juste; }));
        QVERIFY(frmPrinc->Text2->isHidden());
    }
}

// Unplugged in the middle: told, and what had come can be saved.
void TestReception::Debranche()
{
    for (const int genre : {ParLigne, ParCaractere, ParFichier}) {
        Atelier atelier(genre);
        atelier.Nomme();
        atelier.Envoie("A\r\nB\r\nmoi", true);
        atelier.operateur.Fait(
            Dialogue, [&atelier](QWidget &) { atelier.machine.Arrete(); },
            [genre] {
                return genre == ParFichier
                           ? frmPrinc->Text2->FinitPar(u"moi"_s)
                           : Operateur::Lu("Label3") == u"moi" || (genre == ParLigne && Lignes[2] == u"B");
            });
        atelier.operateur.LitErreur(ErreurPort::Lecture, u"Erreur de lecture du périphérique de communication"_s);
        const QByteArray sauve = atelier.Sauve();
        QVERIFY(!QFile::exists(atelier.poste.Chemin("PIECE.ISO")));
        // By line the machine may be gone before its last characters were read.
        QVERIFY(QByteArray("A\r\nB\r\nmoi").startsWith(sauve) && sauve.startsWith("A\r\nB\r\n"));
        QVERIFY(!PortOuvert);
    }
}

// The folder has gone when the file is to be written: told, and saved elsewhere at the second try.
void TestReception::DossierDisparu()
{
    for (const int genre : {ParLigne, ParCaractere, ParFichier}) {
        Atelier atelier(genre);
        ParamCom.DosRecep = atelier.poste.Chemin("disparu");
        atelier.Nomme();
        atelier.Envoie("A\r\nB\r\n");
        atelier.operateur.Fait("MsgBox", [](QWidget &fenetre) {
            QVERIFY(fenetre.windowTitle().endsWith("Fermeture du port de communication"_L1));
            dynamic_cast<QDialog &>(fenetre).accept();
        });
        atelier.Reste();
        atelier.operateur.Ferme("CommonDialog");
        atelier.Reste();
        atelier.operateur.Choisit(atelier.poste.Chemin("ailleurs.txt"));
        atelier.operateur.Presse(Dialogue, "Command1");
        Operateur::Menu("Mnu_RecepProg");
        QCOMPARE(atelier.poste.Lit("ailleurs.txt"), QByteArray("A\r\nB\r\n"));
    }
}

/// A line on which all stands ready at once, and nothing of it can be thrown away.
class LigneSansVidage : public LigneScenario
{
public:
    using LigneScenario::LigneScenario;
    void JetteReception() override {}
};

// As many lines as the table holds leave no place for the empty one at the end: told, and all of them can be saved.
void TestReception::TropDeLignes()
{
    Atelier atelier(ParCaractere);
    const auto scenario = std::make_shared<Scenario>();
    frmPrinc->MSComm1->setFabrique([&scenario](int) { return std::make_unique<LigneSansVidage>(scenario); });
    ParamCom.Echo = 0;
    ParamCom.TypeFinLig = 0;
    BatirChaines();
    ParamCom.TailleTamponRecep = 1; // so that nothing waits behind a line end
    atelier.Nomme();
    scenario->Envoie(QByteArray("N\n").repeated(CapaciteLignes));
    atelier.operateur.LitErreur(Erreur::IndiceHorsPlage, u"La réception dépasse 25000 lignes."_s);
    QCOMPARE(atelier.Sauve(), QByteArray("N\r\n").repeated(CapaciteLignes));
}

// An existing file is replaced only when the operator says so.
void TestReception::FichierExistant()
{
    Atelier atelier(ParFichier);
    atelier.poste.Ecrit("PIECE.ISO", "PRECIEUX");
    atelier.operateur.Fait(Fichier, [](QWidget &fenetre) {
        auto *const nom = fenetre.findChild<QLineEdit *>(u"Text1"_s);
        auto *const recevoir = fenetre.findChild<QPushButton *>(u"Command2"_s);
        QVERIFY(!recevoir->isEnabled());
        QTest::keyClicks(nom, u"pi ,e/c\"e"_s);
        nom->insert(u"é°"_s);
        QCOMPARE(nom->text(), u"piece"_s);
        recevoir->click();
    });
    atelier.operateur.Repond(
        "Fichier existant !",
        u"Remplacer le fichier PIECE.ISO\rDans le dossier %1\rConfirmez  ?"_s.arg(atelier.poste.Dossier()),
        Operateur::Demande, QMessageBox::No);
    atelier.Abandonne();
    QCOMPARE(atelier.poste.Lit("PIECE.ISO"), QByteArray("PRECIEUX"));
}

// What happens on the line is told in the operator's language; lost characters empty the buffer.
void TestReception::Evenements()
{
    using Compteurs = CompteursLigne;
    const std::tuple<int, unsigned Compteurs::*, QString> evenements[] = {
        {0, &Compteurs::parite, u"Erreur de parité"_s},
        {1, &Compteurs::pauses, u"Pauses received"_s},
        {2, &Compteurs::trame, u"Error de encuadre"_s},
        {1, &Compteurs::debordements, u"Going beyond of the plug of receiving"_s},
        {2, &Compteurs::cts, u"Cambio de Préstamo que debe emitirse (CTS) detectado"_s}};
    for (const auto &[langue, compteur, texte] : evenements) {
        const Atelier atelier(ParFichier, langue);
        const auto scenario = std::make_shared<Scenario>();
        MSComm &controle = *frmPrinc->MSComm1;
        controle.setFabrique(LigneScenario::Fabrique(scenario));
        controle.setPortOpen(true);
        scenario->Envoie("perdu");
        QTRY_COMPARE(controle.InBufferCount(), 5);
        ++((*scenario).compteurs.*compteur);
        QTRY_COMPARE(frmPrinc->Etat->text(), u"État : "_s + texte);
        QTRY_COMPARE(controle.InBufferCount(), compteur == &Compteurs::debordements ? 0 : 5);
        QCOMPARE(frmPrinc->Etat->isHidden(), compteur != &Compteurs::cts);
        controle.setPortOpen(false);
    }
}

QTEST_MAIN(TestReception)
#include "TestReception.moc"
