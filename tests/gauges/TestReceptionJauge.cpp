#include "LigneScenario.h"
#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "gauges/Jauge.h"
#include "gauges/Lignes.h"
#include "gauges/ParamMac.h"
#include "machine/Banc.h"
#include "platform/Erreur.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"
#include "transfer/Transfert.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Fichier[] = "Rc_Fic";
constexpr char Dialogue[] = "Em_Rc";

/// Tool k of a mill, and its line in the gauge file.
QByteArray Outil(int k)
{
    return Banc::Salve(QByteArray::number(k), QByteArray::number(100 + k) + ".5", QByteArray::number(k), "D");
}

QByteArray LigneD(int k)
{
    const QByteArray n = QByteArray::number(k);
    return "D" + n + " L" + QByteArray::number(100 + k) + ".5 R" + n + "\r\n";
}

QString Recue(int k)
{
    return u"Jauges Outil N°  %1 reçues"_s.arg(k);
}

/// A workstation before the first tool of a mill, with a bench on Com2 whose characters the test gives.
struct Atelier
{
    explicit Atelier(int nbCorrecteurs = 32)
        : poste(0)
    {
        poste.Charge("ANCIEN");
        frmPrinc->MSComm1->setFabrique(LigneScenario::Fabrique(banc));
        ParamCom.TailleRecep = int(Banc::TailleSalve);
        ParamCom.NbCarLecture = 512;
        ParamCom.Echo = 1;
        DosJauge = poste.Dossier();
        mac = poste.Ecrit("Fraiseuse.mac", "1\r\n0\r\n0\r\n0\r\n1\r\n1000\r\n1000\r\n" +
                                               QByteArray::number(nbCorrecteurs) + "\r\n\"cor\"\r\n\"%1\"\r\n0\r\n");
    }

    /// The operator chooses the machine, names the file, and confirms or not.
    void Nomme(QMessageBox::StandardButton reponse = QMessageBox::Yes)
    {
        operateur.Choisit(mac);
        operateur.Fait(Fichier, [](QWidget &fenetre) {
            QCOMPARE(fenetre.windowTitle(), u"Création d'un fichier jauges outils"_s);
            QVERIFY(!fenetre.findChild<QComboBox *>(u"Combo1"_s)->isEnabled());
            fenetre.findChild<QLineEdit *>(u"Text1"_s)->setText(u"jauges"_s);
        });
        Recoit(reponse);
    }
    void Recoit(QMessageBox::StandardButton reponse)
    {
        operateur.Presse(Fichier, "Command2");
        operateur.Repond("Réception des jauges outils à partir du banc de préréglage",
                         "\rConfirmez la réception des jauges outils JAUGES.COR sur le port Com2 ?", Operateur::Demande,
                         reponse);
    }

    /// The bench sends, once the program has read all that came before.
    void Envoie(const QByteArray &octets)
    {
        operateur.Fait(
            Dialogue, [this, octets](QWidget &) { banc->Envoie(octets); }, [this] { return Lu(); });
    }
    bool Lu() const { return PortOuvert && banc->EnAttente() == 0 && frmPrinc->MSComm1->InBufferCount() == 0; }

    /// The measure number k has been taken; the operator presses a button.
    void Puis(int k, const char *bouton)
    {
        operateur.Presse(Dialogue, bouton, [k] { return Operateur::Lu("Label2") == Recue(k); });
    }

    /// Tools 1 to nombre, up to the last one received.
    void Outils(int nombre)
    {
        for (int k = 1; k <= nombre; ++k) {
            Envoie(Outil(k));
            if (k < nombre)
                Puis(k, "Command5");
        }
    }

    /// The command; the file dialog, which is left behind, is closed.
    void Abandonne()
    {
        operateur.Presse(Fichier, "Command1");
        Operateur::Menu("Mnu_RecepBanc");
    }

    QByteArray Disque() const { return poste.Lit("JAUGES.COR"); }

    Poste poste;
    QString mac;
    std::shared_ptr<Scenario> banc = std::make_shared<Scenario>();
    Operateur operateur;
};

} // namespace

class TestReceptionJauge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Guide();
    void Salves();
    void Annule();
    void Debranche();
    void Limite();
    void DossierDisparu();
    void SansConfiguration();
};

// What the operator reads and may press at each step, what the disk holds meanwhile, and the gauge file at the end.
void TestReceptionJauge::Guide()
{
    struct Etape
    {
        QString consigne, statut; ///< Label1, its lines joined by "|", and Label2
        bool suite;               ///< the next gauge and the end can be pressed
        int lampe;
        QByteArray disque;
        QByteArray salve;
        const char *bouton;
    };
    const QString touches =
        u"Appuyer sur la touche < PRINT >|Entrez le Numéro de correcteur|Appuyer sur la touche < ENTREE >"_s;
    const QString suite = u"|Cliquez sur le bouton| < Jauge suivante... >|Pour recevoir de nouvelles jauges"_s;
    const QByteArray un = Outil(1) + "\r\n";
    const Etape etapes[] = {
        {u"|Prérégler le premier outil||"_s + touches, u"En attente de réception Jauges Outil N°  1"_s, false,
         Lampe::Verte, "", Outil(1), nullptr},
        {u'|' + Recue(1) + suite, Recue(1), true, Lampe::Rouge, un, "", "Command5"},
        {u"|Prérégler l'outil N°  2||"_s + touches, u"En attente de réception Jauges Outil N°  2"_s, false,
         Lampe::Verte, un, Outil(2), nullptr},
        {u'|' + Recue(2) + suite, Recue(2), true, Lampe::Rouge, un + Outil(2) + "\r\n", "", "Command6"}};

    Atelier atelier;
    Jauge[2].Rayon = 8; // of the session before
    atelier.Nomme();
    for (const Etape &etape : etapes) {
        atelier.operateur.Fait(
            Dialogue,
            [&](QWidget &fenetre) {
                QCOMPARE(fenetre.windowTitle(), u"Réception des jauges outils à partir du banc"_s);
                QCOMPARE(Operateur::Lu("Label1"), QString(etape.consigne).replace(u'|', u'\n'));
                QCOMPARE(Operateur::Lu("Label4"), u"Réception par ligne"_s);
                const auto *const suivante = fenetre.findChild<QPushButton *>(u"Command5"_s);
                QCOMPARE(suivante->isEnabled(), etape.suite);
                QCOMPARE(fenetre.focusWidget() == suivante, etape.suite);
                QCOMPARE(fenetre.findChild<QWidget *>(u"Command6"_s)->isEnabled(), etape.suite);
                const auto *const annuler = fenetre.findChild<QWidget *>(u"Command4"_s);
                QVERIFY(annuler->isEnabled() && fenetre.focusWidget() != annuler); // a stroke of the space bar too many
                for (const char *cache : {"Frame1", "Frame2", "Command2", "Command7"})
                    QVERIFY2(!fenetre.findChild<QWidget *>(QLatin1String(cache))->isVisible(), cache);
                QCOMPARE(frmPrinc->shpReceive->FillColor(), etape.lampe);
                QCOMPARE(atelier.Disque(), etape.disque);
                atelier.banc->Envoie(etape.salve);
                if (etape.bouton != nullptr)
                    fenetre.findChild<QPushButton *>(QLatin1String(etape.bouton))->click();
            },
            [&etape] { return PortOuvert && Operateur::Lu("Label2") == etape.statut; });
    }
    Operateur::Barre(13);
    QCOMPARE(atelier.Disque(), "%\r\n" + LigneD(1) + LigneD(2));
    QCOMPARE(frmPrinc->Text1->Text().toLatin1(), atelier.Disque());
    QCOMPARE(NomFichier + u'|' + TitreFichier, atelier.poste.Chemin("JAUGES.COR") + u"|JAUGES.COR"_s);
    QCOMPARE(FichierModifie, 0);
    QCOMPARE(NbJauges, 2);
    QCOMPARE(Jauge[2].Rayon, 0.0F);
    QVERIFY(!PortOuvert && !TransfertEnCours());
}

// What comes over the line, read by read, and the measure that is made of it.
void TestReceptionJauge::Salves()
{
    struct Cas
    {
        int taille;  ///< TailleRecep
        int lecture; ///< NbCarLecture
        QByteArrayList lus;
        QByteArray mesure;
    };
    const QByteArray salve = Outil(1);
    const QByteArray cloche = "\a";
    const QByteArray dedans = salve.left(30) + cloche + salve.mid(30);
    const Cas cas[] = {
        {70, 512, {salve}, salve},
        {70, 512, {salve.left(1), salve.mid(1, 60), salve.mid(61)}, salve},
        {70, 512, {cloche, salve}, salve},
        {70, 512, {salve.left(69), cloche, salve.mid(69)}, salve}, // the bell is not the last character
        {70, 512, {dedans}, dedans},                               // read with others it stays
        {70, 1, {cloche + dedans + cloche}, salve},                // read alone it never does
        {70, 7, {salve + "  \r\n"}, salve + "  \r\n"},             // nothing is left for the next tool
        {0, 512, {"TN:    1"}, "TN:    1"},
        {0, 1, {salve}, salve}, // the next character may come a little late
    };
    for (const Cas &c : cas) {
        Atelier atelier;
        ParamCom.TailleRecep = c.taille;
        ParamCom.NbCarLecture = c.lecture;
        atelier.Nomme();
        for (const QByteArray &lu : c.lus)
            atelier.Envoie(lu);
        atelier.Puis(1, "Command4");
        atelier.Abandonne();
        QCOMPARE(Lignes[1].toLatin1(), c.mesure);
        QCOMPARE(atelier.Disque(), c.mesure + "\r\n");
    }
}

// Given up at any step, by the button, the close box or the Escape key: the file keeps what had come whole, the pane
// stays, and the file dialog waits for another try.
void TestReceptionJauge::Annule()
{
    enum Etape { AttendPremiere, EnSalve, Mesuree, AttendSuivante };
    const std::function<void(QWidget &)> gestes[] = {
        [](QWidget &fenetre) { fenetre.findChild<QPushButton *>(u"Command4"_s)->click(); },
        [](QWidget &fenetre) { fenetre.close(); }, [](QWidget &fenetre) { QTest::keyClick(&fenetre, Qt::Key_Escape); }};
    for (const Etape etape : {AttendPremiere, EnSalve, Mesuree, AttendSuivante}) {
        for (const auto &geste : gestes) {
            Atelier atelier;
            atelier.Nomme(QMessageBox::No);
            atelier.Recoit(QMessageBox::Yes);
            if (etape >= Mesuree)
                atelier.Outils(1);
            if (etape == AttendSuivante)
                atelier.Puis(1, "Command5");
            if (etape == EnSalve)
                atelier.Envoie(Outil(1).left(69));
            atelier.operateur.Fait(Dialogue, geste, [&atelier, etape] {
                return atelier.Lu() && (etape != Mesuree || Operateur::Lu("Label2") == Recue(1));
            });
            atelier.Abandonne();
            QVERIFY(!PortOuvert && !TransfertEnCours());
            QCOMPARE(NbJauges, 0);
            QCOMPARE(FinTransfert, 0);
            QCOMPARE(frmPrinc->Text1->Text(), u"ANCIEN"_s);
            QVERIFY(QFile::exists(atelier.poste.Chemin("JAUGES.COR")));
            QCOMPARE(atelier.Disque(), etape >= Mesuree ? Outil(1) + "\r\n" : QByteArray());
        }
    }
}

// The bench is unplugged: told when the program waits for it, and no gauge file is made; when the operator ends, what
// was measured counts.
void TestReceptionJauge::Debranche()
{
    const QByteArray un = Outil(1) + "\r\n";
    for (const char *moment : {"in a burst", "before the next", "at the end"}) {
        Atelier atelier;
        atelier.Nomme();
        atelier.Outils(1);
        const QByteArray ou = moment;
        if (ou == "in a burst") {
            atelier.Puis(1, "Command5");
            atelier.Envoie(Outil(2).left(40));
        }
        atelier.operateur.Fait(
            Dialogue, [&atelier](QWidget &) { atelier.banc->Debranche(); },
            [&atelier, &ou] {
                return atelier.Lu() && (ou == "in a burst" ? Operateur::Lu("Label3").size() == 40
                                                           : Operateur::Lu("Label2") == Recue(1));
            });
        if (ou == "at the end") {
            atelier.Puis(1, "Command6");
            Operateur::Menu("Mnu_RecepBanc");
            QCOMPARE(atelier.Disque(), "%\r\n" + LigneD(1));
            continue;
        }
        if (ou == "before the next")
            atelier.Puis(1, "Command5");
        atelier.operateur.LitErreur(ErreurPort::Lecture, u"Erreur de lecture du périphérique de communication"_s);
        atelier.operateur.Presse(Dialogue, "Command4", [] { return !PortOuvert; });
        atelier.Abandonne();
        QCOMPARE(atelier.Disque(), un);
        QCOMPARE(frmPrinc->Text1->Text(), u"ANCIEN"_s);
    }
}

// The correctors of the machine are used up: the tools end there, and only the operator's own end makes a gauge file.
void TestReceptionJauge::Limite()
{
    for (const int nombre : {0, 2}) {
        Atelier atelier(nombre);
        atelier.Nomme();
        atelier.Outils(nombre);
        if (nombre > 0)
            atelier.Puis(nombre, "Command5");
        const QString limite = u"Nombre de correcteurs reçus > à %1 !"_s.arg(nombre);
        atelier.operateur.Repond("Avertissement", limite, Boite::Critique, QMessageBox::Ok);
        atelier.operateur.Fait(
            Dialogue,
            [&](QWidget &fenetre) {
                QCOMPARE(Operateur::Lu("Label2"), limite);
                fenetre.close();
            },
            [] { return !TransfertEnCours(); });
        atelier.Abandonne();
        QCOMPARE(atelier.Disque(), nombre == 0 ? QByteArray() : Outil(1) + "\r\n" + Outil(2) + "\r\n");
        QCOMPARE(frmPrinc->Text1->Text().toLatin1(), atelier.Disque());
        QCOMPARE(TitreFichier, u"JAUGES.COR"_s);
    }
    // As many as there can be, on a machine that would take more.
    Atelier atelier(999);
    ParamCom.Echo = 0;
    atelier.Nomme();
    atelier.Outils(CapaciteJauges);
    atelier.Puis(CapaciteJauges, "Command6");
    Operateur::Menu("Mnu_RecepBanc");
    QByteArray attendu = "%\r\n";
    for (int k = 1; k <= CapaciteJauges; ++k)
        attendu += LigneD(k);
    QCOMPARE(atelier.Disque(), attendu);
}

// The reception folder is gone, from the first or later: told, and measures that the disk has lost are saved elsewhere.
void TestReceptionJauge::DossierDisparu()
{
    for (const int mesures : {0, 1}) {
        Atelier atelier;
        const QDir dossier(atelier.poste.Chemin("jauges"));
        DosJauge = dossier.path();
        if (mesures > 0)
            QVERIFY(dossier.mkpath(u"."_s));
        atelier.Nomme();
        if (mesures > 0) {
            atelier.Envoie(Outil(1));
            atelier.operateur.Presse(Dialogue, "Command5", [&dossier] {
                return Operateur::Lu("Label2") == Recue(1) && QDir(dossier).removeRecursively();
            });
            atelier.Envoie(Outil(2));
        }
        atelier.operateur.Fait("MsgBox", [](QWidget &boite) {
            QCOMPARE(boite.windowTitle(), u"Erreur N°:  53Fermeture du port de communication"_s);
            Operateur::Clique(QMessageBox::Ok)(boite);
        });
        if (mesures > 0) {
            atelier.operateur.Repond("Enregistrer les lignes reçues",
                                     "La réception n'a pas abouti, les lignes déjà reçues ne sont pas enregistrées.\r"
                                     "Les enregistrer dans un fichier ?",
                                     Operateur::DemandeSimple, QMessageBox::Yes);
            atelier.operateur.Choisit(atelier.poste.Chemin("sauve.txt"));
        }
        atelier.operateur.Presse(Dialogue, "Command4", [] { return !TransfertEnCours(); });
        atelier.Abandonne();
        QVERIFY(!PortOuvert);
        QCOMPARE(atelier.poste.Lit("sauve.txt"), mesures == 0 ? QByteArray() : Outil(1) + "\r\n" + Outil(2) + "\r\n");
    }
}

// Without a machine configuration nothing begins.
void TestReceptionJauge::SansConfiguration()
{
    Atelier atelier;
    atelier.operateur.Ferme("CommonDialog");
    Operateur::Menu("Mnu_RecepBanc");
    atelier.operateur.Choisit(atelier.poste.Ecrit("Court.mac", "1\r\n0\r\n0\r\n0\r\n1\r\n1000\r\n"));
    Operateur::Menu("Mnu_RecepBanc");
    QCOMPARE(frmPrinc->MSComm1->PortOpen(), false);
}

QTEST_MAIN(TestReceptionJauge)
#include "TestReceptionJauge.moc"
