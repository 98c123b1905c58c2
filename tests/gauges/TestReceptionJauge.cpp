#include "LigneScenario.h"
#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "gauges/Jauge.h"
#include "machine/Banc.h"
#include "platform/Erreur.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"
#include "transfer/Transfert.h"

#include <QComboBox>
#include <QDir>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Fichier[] = "Rc_Fic";
constexpr char Dialogue[] = "Em_Rc";

/// Tool k as the bench sends it, and its line in the gauge file of a mill.
QByteArray Outil(int k)
{
    return Banc::Salve(QByteArray::number(k), QByteArray::number(100 + k) + ".5", QByteArray::number(k), "D");
}
QByteArray LigneD(int k)
{
    return u"D%1 L%2.5 R%1\r\n"_s.arg(k).arg(100 + k).toLatin1();
}

/// What the disk holds behind the tools 1 to nombre.
QByteArray Brut(int nombre)
{
    QByteArray brut;
    for (int k = 1; k <= nombre; ++k)
        brut += Outil(k) + "\r\n";
    return brut;
}

QString Recue(int k)
{
    return u"Jauges Outil N°  %1 reçues"_s.arg(k);
}
Operateur::Condition Mesure(int k)
{
    return [k] { return Operateur::Lu("Label2") == Recue(k); };
}

/// A workstation before the first tool of a lathe (0) or mill (1), with a bench on Com2 whose characters the test
/// gives.
struct Atelier
{
    explicit Atelier(int nbCorrecteurs = 32, int typeMachine = 1)
        : poste(0)
    {
        poste.Charge("ANCIEN");
        frmPrinc->MSComm1->setFabrique(LigneScenario::Fabrique(banc));
        ParamCom.TailleRecep = int(Banc::TailleSalve);
        ParamCom.NbCarLecture = 512;
        ParamCom.Echo = 1;
        DosJauge = poste.Dossier();
        mac = poste.Ecrit(
            "M.mac", u"%1\n0\n0\n0\n1\n1000\n1000\n%2\ncor\nP\n0"_s.arg(typeMachine).arg(nbCorrecteurs).toLatin1());
    }

    /// The operator chooses the machine, names the file, and confirms or not.
    void Nomme(QMessageBox::StandardButton reponse = QMessageBox::Yes)
    {
        operateur.Choisit(mac);
        operateur.Fait(Fichier, [](QWidget &fenetre) {
            QCOMPARE(fenetre.windowTitle(), u"Création d'un fichier jauges outils"_s);
            fenetre.findChild<QComboBox *>(u"Combo1"_s)->setCurrentText(u"iso"_s); // the machine's own counts
        });
        operateur.Saisit(Fichier, "Text1", "jauges");
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

    /// Tools 1 to nombre, up to the last one received.
    void Outils(int nombre)
    {
        for (int k = 1; k <= nombre; ++k) {
            Envoie(Outil(k));
            if (k < nombre)
                operateur.Presse(Dialogue, "Command5", Mesure(k));
        }
    }

    /// The command; the file dialog, which is left behind, is closed.
    void Abandonne()
    {
        operateur.Presse(Fichier, "Command1");
        Operateur::Menu("Mnu_RecepBanc");
        QVERIFY(!PortOuvert && !TransfertEnCours());
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
};

// What the operator reads and may press at each step, what the disk holds meanwhile, and the gauge file at the end.
void TestReceptionJauge::Guide()
{
    const QString touches =
        u"\n\nAppuyer sur la touche < PRINT >\nEntrez le Numéro de correcteur\nAppuyer sur la touche < ENTREE >"_s;
    const QString suite = u"\nCliquez sur le bouton\n < Jauge suivante... >\nPour recevoir de nouvelles jauges"_s;
    const QString attente = u"En attente de réception Jauges Outil N°  "_s;
    const std::pair<QString, QString> etapes[] = {{u"\nPrérégler le premier outil"_s + touches, attente + u'1'},
                                                  {u'\n' + Recue(1) + suite, Recue(1)},
                                                  {u"\nPrérégler l'outil N°  2"_s + touches, attente + u'2'},
                                                  {u'\n' + Recue(2) + suite, Recue(2)}};
    Atelier atelier;
    Jauge[2].Rayon = 8; // of the session before
    atelier.Nomme();
    for (int i = 0; i < 4; ++i) {
        const auto &[consigne, statut] = etapes[i];
        atelier.operateur.Fait(
            Dialogue,
            [=, &atelier](QWidget &fenetre) {
                const auto bouton = [&](QAnyStringView nom) {
                    return fenetre.findChild<QPushButton *>(nom.toString());
                };
                const bool mesuree = i % 2 == 1;
                QCOMPARE(fenetre.windowTitle(), u"Réception des jauges outils à partir du banc"_s);
                QCOMPARE(Operateur::Lu("Label1"), consigne);
                QCOMPARE(Operateur::Lu("Label4"), u"Réception par ligne"_s);
                QVERIFY(bouton("Command4")->isEnabled());
                QVERIFY(bouton("Command5")->isEnabled() == mesuree && bouton("Command6")->isEnabled() == mesuree);
                // A stroke of the space bar too many does not cancel.
                QCOMPARE(fenetre.focusWidget(), mesuree ? bouton("Command5") : nullptr);
                for (const QString &cache : {u"Frame1"_s, u"Frame2"_s, u"Command2"_s, u"Command7"_s})
                    QVERIFY2(!fenetre.findChild<QWidget *>(cache)->isVisible(), qPrintable(cache));
                QCOMPARE(frmPrinc->shpReceive->FillColor(), mesuree ? Lampe::Rouge : Lampe::Verte);
                QCOMPARE(atelier.Disque(), Brut((i + 1) / 2));
                if (mesuree)
                    bouton(i == 1 ? "Command5" : "Command6")->click();
                else
                    atelier.banc->Envoie(Outil(i / 2 + 1));
            },
            [statut = statut] { return PortOuvert && Operateur::Lu("Label2") == statut; });
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
        int lecture; ///< characters that one read gives at most
        QByteArrayList lus;
        QByteArray mesure;
    };
    const QByteArray salve = Outil(1);
    const QByteArray dedans = salve.left(30) + "\a" + salve.mid(30);
    const Cas cas[] = {
        {70, 512, {salve}, salve},
        {70, 512, {salve.left(1), salve.mid(1, 60), salve.mid(61)}, salve},
        {70, 512, {"\a", salve}, salve},
        {70, 512, {salve.left(69), "\a", salve.mid(69)}, salve}, // the bell is not the last character
        {70, 512, {dedans}, dedans},                             // read with others it stays
        {70, 1, {"\a" + dedans + "\a"}, salve},                  // read alone it never does
        {70, 7, {salve + "  \r\n"}, salve + "  \r\n"},           // nothing is left for the next tool
        {0, 512, {"TN:    1"}, "TN:    1"},
        {0, 1, {salve}, salve}, // the next character may come a little late
    };
    Atelier atelier;
    atelier.Nomme();
    QByteArray disque;
    int k = 0;
    for (const Cas &c : cas) {
        atelier.operateur.Fait(
            Dialogue,
            [&c](QWidget &) {
                ParamCom.TailleRecep = c.taille;
                frmPrinc->MSComm1->setInputLen(c.lecture);
            },
            [] { return PortOuvert; });
        for (const QByteArray &lu : c.lus)
            atelier.Envoie(lu);
        atelier.operateur.Presse(Dialogue, &c == std::end(cas) - 1 ? "Command4" : "Command5", Mesure(++k));
        disque += c.mesure + "\r\n";
    }
    atelier.Abandonne();
    QCOMPARE(atelier.Disque(), disque);
}

// Given up at any step, by the button, the close box or the Escape key: the file keeps what had come whole, the pane
// stays, and the file dialog waits for another try.
void TestReceptionJauge::Annule()
{
    enum Etape { AttendPremiere, EnSalve, Mesuree, AttendSuivante };
    const Operateur::Geste bouton = [](QWidget &d) { d.findChild<QPushButton *>(u"Command4"_s)->click(); };
    const Operateur::Geste croix = [](QWidget &d) { d.close(); };
    const Operateur::Geste echap = [](QWidget &d) { QTest::keyClick(&d, Qt::Key_Escape); };
    for (const auto &[etape, geste] :
         {std::pair{AttendPremiere, bouton}, {EnSalve, croix}, {Mesuree, echap}, {AttendSuivante, bouton}}) {
        Atelier atelier;
        atelier.Nomme(QMessageBox::No);
        atelier.Recoit(QMessageBox::Yes);
        if (etape >= Mesuree)
            atelier.Outils(1);
        if (etape == AttendSuivante)
            atelier.operateur.Presse(Dialogue, "Command5", Mesure(1));
        if (etape == EnSalve)
            atelier.Envoie(Outil(1).left(69));
        const Operateur::Condition lu = [&atelier] { return atelier.Lu(); };
        atelier.operateur.Fait(Dialogue, geste, etape == Mesuree ? Mesure(1) : lu);
        atelier.Abandonne();
        QCOMPARE(NbJauges + FinTransfert, 0);
        QCOMPARE(frmPrinc->Text1->Text(), u"ANCIEN"_s);
        QVERIFY(QFile::exists(atelier.poste.Chemin("JAUGES.COR")));
        QCOMPARE(atelier.Disque(), Brut(etape >= Mesuree ? 1 : 0));
    }
}

// The bench is unplugged: told when the program waits for it, and no gauge file is made; when the operator ends, what
// was measured counts.
void TestReceptionJauge::Debranche()
{
    enum Moment { EnSalve, AvantSuivante, ALaFin };
    for (const Moment moment : {EnSalve, AvantSuivante, ALaFin}) {
        Atelier atelier;
        atelier.Nomme();
        atelier.Outils(1);
        if (moment == EnSalve) {
            atelier.operateur.Presse(Dialogue, "Command5", Mesure(1));
            atelier.Envoie(Outil(2).left(40));
        }
        const Operateur::Condition debut = [] { return Operateur::Lu("Label3").size() == 40; };
        atelier.operateur.Fait(
            Dialogue, [&atelier](QWidget &) { atelier.banc->Debranche(); }, moment == EnSalve ? debut : Mesure(1));
        if (moment != EnSalve)
            atelier.operateur.Presse(Dialogue, moment == ALaFin ? "Command6" : "Command5");
        if (moment == ALaFin) {
            Operateur::Menu("Mnu_RecepBanc");
        } else {
            atelier.operateur.LitErreur(ErreurPort::Lecture, u"Erreur de lecture du périphérique de communication"_s);
            atelier.operateur.Presse(Dialogue, "Command4", [] { return !PortOuvert; });
            atelier.Abandonne();
            QCOMPARE(frmPrinc->Text1->Text(), u"ANCIEN"_s);
        }
        QCOMPARE(atelier.Disque(), moment == ALaFin ? "%\r\n" + LigneD(1) : Brut(1));
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
            atelier.operateur.Presse(Dialogue, "Command5", Mesure(nombre));
        const QString limite = u"Nombre de correcteurs reçus > à %1 !"_s.arg(nombre);
        atelier.operateur.Repond("Avertissement", limite, Boite::Critique, QMessageBox::Ok);
        atelier.operateur.Presse(Dialogue, "Command4",
                                 [&limite] { return Operateur::Lu("Label2") == limite && !TransfertEnCours(); });
        atelier.Abandonne();
        QCOMPARE(atelier.Disque(), Brut(nombre));
        QCOMPARE(frmPrinc->Text1->Text().toLatin1(), atelier.Disque());
        QCOMPARE(TitreFichier, u"JAUGES.COR"_s);
    }
    // As many as there can be, on a machine that would take more; all but the first and the last are skipped.
    Atelier atelier(999);
    atelier.Nomme();
    atelier.Outils(1);
    atelier.operateur.Fait(
        Dialogue, [](QWidget &) { NbJauges = CapaciteJauges - 1; }, Mesure(1));
    atelier.operateur.Presse(Dialogue, "Command5");
    atelier.Envoie(Outil(CapaciteJauges));
    atelier.operateur.Presse(Dialogue, "Command6", Mesure(CapaciteJauges));
    Operateur::Menu("Mnu_RecepBanc");
    QCOMPARE(atelier.Disque(),
             "%\r\n" + LigneD(1) + LigneD(CapaciteJauges) + QByteArray("D0 L0 R0\r\n").repeated(CapaciteJauges - 2));
}

// The reception folder is gone, from the first, at the second tool or behind the dial: told, measures that the disk has
// lost are saved elsewhere, and another try begins anew.
void TestReceptionJauge::DossierDisparu()
{
    enum Moment { DesLeDebut, EnCours, ApresCadran };
    for (const Moment moment : {DesLeDebut, EnCours, ApresCadran}) {
        Atelier atelier(32, moment == ApresCadran ? 0 : 1);
        QDir dossier(atelier.poste.Chemin("jauges"));
        DosJauge = dossier.path();
        const auto disparait = [&dossier] { return dossier.removeRecursively(); };
        QVERIFY(moment == DesLeDebut || dossier.mkpath(u"."_s));
        atelier.Nomme();
        if (moment != DesLeDebut) {
            atelier.Outils(1);
            atelier.operateur.Presse(Dialogue, moment == EnCours ? "Command5" : "Command6", Mesure(1));
        }
        if (moment == EnCours)
            atelier.operateur.Fait(
                Dialogue, [&](QWidget &) { atelier.banc->Envoie(Outil(2)); }, disparait);
        if (moment == ApresCadran)
            atelier.operateur.Presse("JauTour", "Command1", disparait);
        atelier.operateur.Fait("MsgBox", Operateur::Clique(QMessageBox::Ok));
        if (moment != DesLeDebut) {
            atelier.operateur.Fait("MsgBox", Operateur::Clique(QMessageBox::Yes)); // saves what the disk has lost
            atelier.operateur.Choisit(atelier.poste.Chemin("sauve.txt"));
        }
        if (moment == ApresCadran) { // the transfer dialog is closed already: the next try meets the same
            atelier.Recoit(QMessageBox::Yes);
            atelier.operateur.Fait("MsgBox", Operateur::Clique(QMessageBox::Ok));
        }
        atelier.operateur.Presse(Dialogue, "Command4", [] { return !TransfertEnCours(); });
        atelier.Abandonne();
        QCOMPARE(atelier.poste.Lit("sauve.txt"), Brut(std::array{0, 2, 1}[moment]));
    }
}

QTEST_MAIN(TestReceptionJauge)
#include "TestReceptionJauge.moc"
