#include "LigneScenario.h"
#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "gauges/Lignes.h"
#include "machine/MachineSimulee.h"
#include "platform/Boites.h"
#include "platform/ErreurPort.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "transfer/Transfert.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace {

const QString Fichier = QStringLiteral("Rc_Fic");
const QString Dialogue = QStringLiteral("Em_Rc");
constexpr int Demande = Boite::Question | Boite::OuiNon | Boite::SecondBouton;
constexpr int Offre = Boite::Exclamation | Boite::OuiNon;

enum Genre { ParLigne, ParCaractere, ParFichier };

/// A workstation with a machine at the other end of Com2, ready to receive a program as PIECE.ISO.
struct Atelier
{
    explicit Atelier(int typeRecep, int langue = 0)
        : machine(Reglage())
    {
        poste.Demarre(langue);
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

    static ReglageMachine Reglage()
    {
        ReglageMachine reglage;
        reglage.Ligne.Vitesse = 0;
        return reglage;
    }

    /// The operator names the file, and confirms on the port.
    void Nomme()
    {
        operateur.Fait(Fichier, [](QWidget &fenetre) {
            fenetre.findChild<QLineEdit *>(QStringLiteral("Text1"))->setText(QStringLiteral("piece"));
            fenetre.findChild<QPushButton *>(QStringLiteral("Command2"))->click();
        });
        const QString titre = QStringLiteral("Réception d'un programme CN");
        operateur.Repond(titre,
                         titre + QStringLiteral("\rConfirmez la réception du programme PIECE.ISO sur le port Com2 ?"),
                         Demande, QMessageBox::Yes);
    }

    /// The machine sends once the program waits for it; a line at a time, as the receptions by line and character ask.
    void Envoie(const Envoi &envoi)
    {
        operateur.Fait(
            Dialogue, [this, envoi](QWidget &) { machine.Emet(envoi); }, [] { return PortOuvert; });
    }

    void Envoie(const QByteArray &texte, bool sansFin = false)
    {
        Envoi envoi;
        envoi.Texte = texte;
        envoi.PauseLigneMs = ParamCom.TypeRecep == ParFichier ? 0 : 20;
        envoi.SansFin = sansFin;
        Envoie(envoi);
    }

    /// Once the condition holds, the operator forces the end.
    void Force(const Operateur::Condition &quand)
    {
        operateur.Presse(Dialogue, QStringLiteral("Command7"), quand);
        operateur.Repond(QStringLiteral("Forcer la fin de réception"),
                         QStringLiteral("Fermer la réception et enregistrer les lignes reçues !\r"
                                        "Confirmez la fin de réception ?"),
                         Demande, QMessageBox::Yes);
    }

    void Erreur(int numero, const QString &texte)
    {
        operateur.Repond(QStringLiteral("Erreur N°:  %1Fermeture du port de communication").arg(numero), texte,
                         Boite::Critique, QMessageBox::Ok);
    }

    void Reste(QMessageBox::StandardButton bouton)
    {
        operateur.Repond(
            QStringLiteral("Enregistrer les lignes reçues"),
            QStringLiteral("La réception n'a pas abouti, les lignes déjà reçues ne sont pas enregistrées.\r"
                           "Les enregistrer dans un fichier ?"),
            Offre, bouton);
    }

    /// Closes the dialog after a reception that has ended.
    void Sort()
    {
        operateur.Presse(Dialogue, QStringLiteral("Command1"), [] { return FinTransfert == 1 && !PortOuvert; });
        Operateur::Menu(QStringLiteral("Mnu_RecepProg"));
    }

    /// Closes both dialogs after a reception that has failed or was cancelled.
    void Renonce()
    {
        operateur.Presse(Dialogue, QStringLiteral("Command1"), [] { return !PortOuvert; });
        Abandonne();
    }
    void Abandonne()
    {
        operateur.Presse(Fichier, QStringLiteral("Command1"));
        Operateur::Menu(QStringLiteral("Mnu_RecepProg"));
    }

    bool RienRecu() const { return !QFile::exists(poste.Chemin(QStringLiteral("PIECE.ISO"))); }
    QByteArray Recu() const { return poste.Lit(QStringLiteral("PIECE.ISO")); }

    Poste poste;
    MachineSimulee machine;
    Operateur operateur;
};

QByteArray TousLesOctets()
{
    QByteArray octets;
    for (int i = 0; i < 256; ++i)
        octets += static_cast<char>(i);
    return octets.remove(4, 1).replace('\x11', "").replace('\x13', ""); // the end chain; XON and XOFF steer the line
}

} // namespace

class TestReception : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Recoit_data();
    void Recoit();
    void Force_data();
    void Force();
    void Annule_data();
    void Annule();
    void Debranche_data();
    void Debranche();
    void DossierDisparu_data();
    void DossierDisparu();
    void TropDeLignes();
    void FichierExistant();
    void Evenements_data();
    void Evenements();
};

// Each way of receiving, to the file on the disk, the pane, the answer to the machine and the names of the document.
void TestReception::Recoit_data()
{
    QTest::addColumn<int>("genre");
    QTest::addColumn<int>("finLigne");
    QTest::addColumn<int>("option");
    QTest::addColumn<QByteArray>("envoye");
    QTest::addColumn<QByteArray>("fichier");
    const QByteArray deux = "N10 G0\r\n\r\nN20 M30\r\n";
    QTest::newRow("by line") << int(ParLigne) << 3 << 0 << deux << deux + "\r\n";
    QTest::newRow("by line, CR + LF added")
        << int(ParLigne) << 3 << 3 << QByteArray("A\r\nB\r\n") << QByteArray("A\r\n\r\nB\r\n\r\n\r\n");
    QTest::newRow("by line, LF") << int(ParLigne) << 0 << 1 << QByteArray("A\nB\n") << QByteArray("A\n\r\nB\n\r\n\r\n");
    QTest::newRow("by character") << int(ParCaractere) << 3 << 0 << deux << deux + "\r\n";
    QTest::newRow("by character, own chain")
        << int(ParCaractere) << 4 << 0 << QByteArray("A\r\r\nB\r\r\n") << QByteArray("A\r\nB\r\n\r\n");
    QTest::newRow("by file") << int(ParFichier) << 3 << 0 << deux << deux + "\r\n";
    QTest::newRow("by file, nothing") << int(ParFichier) << 3 << 0 << QByteArray() << QByteArray("\r\n");
    QTest::newRow("by file, all bytes") << int(ParFichier) << 3 << 0 << TousLesOctets() << TousLesOctets() + "\r\n";
}

void TestReception::Recoit()
{
    QFETCH(int, genre);
    QFETCH(int, finLigne);
    QFETCH(int, option);
    QFETCH(QByteArray, envoye);
    QFETCH(QByteArray, fichier);
    Atelier atelier(genre);
    ParamCom.TypeFinLig = finLigne;
    ParamCom.FinLigRecep = option;
    ParamCom.NbCarFinLig = 3;
    ParamCom.CarFinLig = {0, 13, 13, 10};
    BatirChaines();
    atelier.Nomme();
    atelier.Envoie(envoye);
    QString statut;
    QString bouton;
    atelier.operateur.Fait(
        Dialogue,
        [&](QWidget &) {
            statut = Operateur::Lu(QStringLiteral("Label2"));
            bouton = Operateur::Lu(QStringLiteral("Command1"));
        },
        [] { return FinTransfert == 1 && !PortOuvert; });
    atelier.Sort();

    QCOMPARE(atelier.Recu(), fichier);
    QCOMPARE(statut, QStringLiteral("Transfert réalisé avec succès !"));
    QCOMPARE(bouton, genre == ParFichier ? QStringLiteral("&Annuler") : QStringLiteral("&Fermer"));
    const QString texte = frmPrinc->Text1->Text();
    QCOMPARE(texte.size(), genre == ParFichier ? fichier.size() - 2 : fichier.size());
    QCOMPARE(FichierModifie, 0);
    QCOMPARE(frmPrinc->Label2->text(), QStringLiteral("PIECE.ISO"));
    QCOMPARE(TitreFichier, genre == ParFichier ? QStringLiteral("PIECE.iso") : QStringLiteral("PIECE.ISO"));
    QVERIFY(atelier.machine.Attend([](const EtatMachine &etat) { return etat.Envoi.Reponse == Retour::Juste; }));
    QVERIFY(frmPrinc->Text2->isHidden());
}

// The operator ends what the machine does not end. By line and by character the unfinished line goes; of a file all
// stays.
void TestReception::Force_data()
{
    QTest::addColumn<int>("genre");
    QTest::addColumn<QByteArray>("fichier");
    QTest::newRow("by line") << int(ParLigne) << QByteArray("A\r\nB\r\nC\r\n\r\n");
    QTest::newRow("by character") << int(ParCaractere) << QByteArray("A\r\nB\r\nC\r\n\r\n");
    QTest::newRow("by file") << int(ParFichier) << QByteArray("A\r\nB\r\nC\r\nmoit\r\n");
}

void TestReception::Force()
{
    QFETCH(int, genre);
    QFETCH(QByteArray, fichier);
    Atelier atelier(genre);
    atelier.Nomme();
    atelier.Envoie("A\r\nB\r\nC\r\nmoit", true);
    atelier.Force([&atelier, genre] {
        return !atelier.machine.Etat().Envoi.EnCours &&
               (genre == ParFichier ? frmPrinc->Text2->FinitPar(QStringLiteral("moit"))
                                    : Operateur::Lu(QStringLiteral("Label2"))
                                          .contains(genre == ParLigne ? QStringLiteral("4") : QStringLiteral("3")));
    });
    atelier.Sort();
    QCOMPARE(atelier.Recu(), fichier);
}

// Cancelled: nothing is stored, the machine gets nothing, the file dialog waits for another try.
void TestReception::Annule_data()
{
    QTest::addColumn<int>("genre");
    QTest::addColumn<bool>("boiteDeFermeture");
    for (const int genre : {ParLigne, ParCaractere, ParFichier}) {
        QTest::addRow("button, %d", genre) << genre << false;
        QTest::addRow("close box, %d", genre) << genre << true;
    }
}

void TestReception::Annule()
{
    QFETCH(int, genre);
    QFETCH(bool, boiteDeFermeture);
    Atelier atelier(genre);
    atelier.Nomme();
    atelier.Envoie("A\r\nB\r\n", true);
    const auto venu = [&atelier] { return atelier.machine.Etat().Envoi.Emis == 6; };
    if (boiteDeFermeture)
        atelier.operateur.Ferme(Dialogue, venu);
    else
        atelier.operateur.Presse(Dialogue, QStringLiteral("Command1"), venu);
    if (genre == ParFichier)
        atelier.operateur.Repond(QStringLiteral("Bouton Annuler cliqué"), QStringLiteral("AnnuleRECEPT% = 1"), 0,
                                 QMessageBox::Ok);
    atelier.Abandonne();
    QVERIFY(atelier.RienRecu());
    QVERIFY(!PortOuvert);
    QVERIFY(frmPrinc->Text2->isHidden());
    QCOMPARE(frmPrinc->shpReceive->FillColor(), int(Lampe::Rouge));
    QCOMPARE(frmPrinc->Text1->Text(), QStringLiteral("ANCIEN"));
    QCOMPARE(atelier.machine.Etat().Envoi.Octets, QByteArray());
}

// Unplugged in the middle: told, and what had come can be saved.
void TestReception::Debranche_data()
{
    QTest::addColumn<int>("genre");
    QTest::addColumn<QByteArray>("sauve");
    QTest::newRow("by line") << int(ParLigne) << QByteArray("A\r\nB\r\nmoi");
    QTest::newRow("by character") << int(ParCaractere) << QByteArray("A\r\nB\r\nmoi");
    QTest::newRow("by file") << int(ParFichier) << QByteArray("A\r\nB\r\nmoi");
}

void TestReception::Debranche()
{
    QFETCH(int, genre);
    QFETCH(QByteArray, sauve);
    Atelier atelier(genre);
    atelier.Nomme();
    atelier.Envoie("A\r\nB\r\nmoi", true);
    atelier.operateur.Fait(
        Dialogue, [&atelier](QWidget &) { atelier.machine.Arrete(); },
        [genre] {
            return genre == ParFichier ? frmPrinc->Text2->FinitPar(QStringLiteral("moi"))
                                       : Operateur::Lu(QStringLiteral("Label3")) == QStringLiteral("moi") ||
                                             (genre == ParLigne && Lignes[2] == QStringLiteral("B"));
        });
    atelier.Erreur(ErreurPort::Lecture, QStringLiteral("Erreur de lecture du périphérique de communication"));
    atelier.Reste(QMessageBox::Yes);
    atelier.operateur.Choisit(atelier.poste.Chemin(QStringLiteral("sauve.txt")));
    atelier.Renonce();
    QVERIFY(atelier.RienRecu());
    // By line the machine may be gone before its last characters were read.
    QVERIFY(sauve.startsWith(atelier.poste.Lit(QStringLiteral("sauve.txt"))));
    QVERIFY(atelier.poste.Lit(QStringLiteral("sauve.txt")).startsWith("A\r\nB\r\n"));
    QVERIFY(!PortOuvert);
}

// The folder has gone when the file is to be written: told, and saved elsewhere at the second try.
void TestReception::DossierDisparu_data()
{
    QTest::addColumn<int>("genre");
    QTest::newRow("by line") << int(ParLigne);
    QTest::newRow("by character") << int(ParCaractere);
    QTest::newRow("by file") << int(ParFichier);
}

void TestReception::DossierDisparu()
{
    QFETCH(int, genre);
    Atelier atelier(genre);
    const QString dossier = atelier.poste.Chemin(QStringLiteral("disparu"));
    ParamCom.DosRecep = dossier;
    atelier.Nomme();
    atelier.Envoie("A\r\nB\r\n");
    atelier.operateur.Fait(QStringLiteral("MsgBox"), [](QWidget &fenetre) {
        QVERIFY(fenetre.windowTitle().endsWith(QStringLiteral("Fermeture du port de communication")));
        qobject_cast<QDialog *>(&fenetre)->accept();
    });
    atelier.Reste(QMessageBox::Yes);
    atelier.operateur.AnnuleChoix();
    atelier.Reste(QMessageBox::Yes);
    atelier.operateur.Choisit(atelier.poste.Chemin(QStringLiteral("ailleurs.txt")));
    atelier.operateur.Presse(Dialogue, QStringLiteral("Command1"));
    Operateur::Menu(QStringLiteral("Mnu_RecepProg"));
    QCOMPARE(atelier.poste.Lit(QStringLiteral("ailleurs.txt")), QByteArray("A\r\nB\r\n"));
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
    atelier.Erreur(Erreur::IndiceHorsPlage, QStringLiteral("La réception dépasse 25000 lignes."));
    atelier.Reste(QMessageBox::Yes);
    atelier.operateur.Choisit(atelier.poste.Chemin(QStringLiteral("tout.txt")));
    atelier.Renonce();
    QCOMPARE(atelier.poste.Lit(QStringLiteral("tout.txt")), QByteArray("N\r\n").repeated(CapaciteLignes));
}

// An existing file is replaced only when the operator says so.
void TestReception::FichierExistant()
{
    Atelier atelier(ParFichier);
    atelier.poste.Ecrit(QStringLiteral("PIECE.ISO"), "PRECIEUX");
    atelier.operateur.Fait(Fichier, [](QWidget &fenetre) {
        auto *const nom = fenetre.findChild<QLineEdit *>(QStringLiteral("Text1"));
        auto *const recevoir = fenetre.findChild<QPushButton *>(QStringLiteral("Command2"));
        QVERIFY(!recevoir->isEnabled());
        QTest::keyClicks(nom, QStringLiteral("pi ,e/c\"e"));
        nom->insert(QStringLiteral("é°"));
        QCOMPARE(nom->text(), QStringLiteral("piece"));
        recevoir->click();
    });
    atelier.operateur.Repond(QStringLiteral("Fichier existant !"),
                             QStringLiteral("Remplacer le fichier PIECE.ISO\rDans le dossier ") +
                                 atelier.poste.Dossier() + QStringLiteral("\rConfirmez  ?"),
                             Demande, QMessageBox::No);
    atelier.Abandonne();
    QCOMPARE(atelier.Recu(), QByteArray("PRECIEUX"));
}

// What happens on the line is told in the operator's language; lost characters empty the buffer.
void TestReception::Evenements_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<unsigned CompteursLigne::*>("compteur");
    QTest::addColumn<QString>("texte");
    QTest::newRow("parity") << 0 << &CompteursLigne::parite << QStringLiteral("Erreur de parité");
    QTest::newRow("break") << 1 << &CompteursLigne::pauses << QStringLiteral("Pauses received");
    QTest::newRow("framing") << 2 << &CompteursLigne::trame << QStringLiteral("Error de encuadre");
    QTest::newRow("lost") << 1 << &CompteursLigne::debordements
                          << QStringLiteral("Going beyond of the plug of receiving");
    QTest::newRow("CTS") << 2 << &CompteursLigne::cts
                         << QStringLiteral("Cambio de Préstamo que debe emitirse (CTS) detectado");
}

void TestReception::Evenements()
{
    QFETCH(int, langue);
    QFETCH(unsigned CompteursLigne::*, compteur);
    QFETCH(QString, texte);
    Atelier atelier(ParFichier, langue);
    const auto scenario = std::make_shared<Scenario>();
    MSComm &controle = *frmPrinc->MSComm1;
    controle.setFabrique(LigneScenario::Fabrique(scenario));
    controle.setPortOpen(true);
    scenario->Envoie("perdu");
    QTRY_COMPARE(controle.InBufferCount(), 5);
    ++(scenario->compteurs.*compteur);
    QTRY_COMPARE(frmPrinc->Etat->text(), QStringLiteral("État : ") + texte);
    QTRY_COMPARE(controle.InBufferCount(), compteur == &CompteursLigne::debordements ? 0 : 5);
    QCOMPARE(frmPrinc->Etat->isHidden(), compteur != &CompteursLigne::cts);
    controle.setPortOpen(false);
}

QTEST_MAIN(TestReception)
#include "TestReception.moc"
