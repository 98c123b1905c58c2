#include "LigneScenario.h"
#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "transfer/Transfert.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Fichier[] = "Rc_Fic";
constexpr char Dialogue[] = "Em_Rc";

enum Genre { ParLigne, ParCaractere, ParFichier };
constexpr Genre Genres[] = {ParLigne, ParCaractere, ParFichier};

bool Finie()
{
    return FinTransfert == 1 && !PortOuvert;
}

QByteArray TousLesOctets()
{
    QByteArray tous;
    for (int i = 0; i < 256; ++i)
        tous += static_cast<char>(i);
    return tous;
}

/// A reception of PIECE.ISO from a machine on a scripted line. The machine takes its steps one by one, each when the
/// program has dealt with all that came before.
class Banc
{
public:
    explicit Banc(int genre)
    {
        poste.Charge("ANCIEN");
        ParamCom.TypeRecep = genre;
        ParamCom.NbCarLecture = genre == ParCaractere ? 1 : 512;
        ParamCom.SeuilRecep = 1;
        ParamCom.Echo = 1;
        ParamCom.TypeFinLig = 3;
        ParamCom.DosRecep = poste.Dossier();
        BatirChaines();
        MSComm &controle = *frmPrinc->MSComm1;
        controle.setFabrique(LigneScenario::Fabrique(ligne));
        QObject::connect(&controle, &MSComm::OnComm, &m_machine,
                         [this, &controle] { evenements << controle.CommEvent(); });
        QObject::connect(&m_machine, &QTimer::timeout, &m_machine, [this] { Avance(); });
        m_machine.start(0);
        operateur.Fait(Fichier, [](QWidget &fenetre) {
            fenetre.findChild<QLineEdit *>(u"Text1"_s)->setText(u"piece"_s);
            fenetre.findChild<QPushButton *>(u"Command2"_s)->click();
        });
        operateur.Fait("MsgBox", Operateur::Clique(QMessageBox::Yes));
    }

    void Fait(const std::function<void()> &geste, const Operateur::Condition &quand = {})
    {
        m_etapes.push_back({geste, quand});
    }
    void Envoie(const QByteArray &octets, const Operateur::Condition &quand = {})
    {
        Fait([this, octets] { ligne->Envoie(octets); }, quand);
    }

    /// The operator presses Command7, and then the button of the box that asks.
    void Force(QMessageBox::StandardButton reponse, const Operateur::Condition &quand = {})
    {
        operateur.Presse(Dialogue, "Command7", [this] { return ToutPris(); });
        if (reponse == QMessageBox::No)
            operateur.Fait("MsgBox", Operateur::Clique(reponse), quand);
        else
            operateur.Repond("Forcer la fin de réception",
                             "Fermer la réception et enregistrer les lignes reçues !\rConfirmez la fin de réception ?",
                             Operateur::Demande, reponse);
    }

    /// The whole of it, up to the success; gives the file.
    QByteArray Recoit()
    {
        operateur.Presse(Dialogue, "Command1", Finie);
        Operateur::Menu("Mnu_RecepProg");
        return poste.Lit("PIECE.ISO");
    }
    /// The whole of a cancelled one, up to the file dialog, which is given up.
    void Abandonne()
    {
        if (ParamCom.TypeRecep == ParFichier)
            operateur.Repond("Bouton Annuler cliqué", "AnnuleRECEPT% = 1", 0, QMessageBox::Ok);
        operateur.Presse(Fichier, "Command1");
        Operateur::Menu("Mnu_RecepProg");
    }

    bool ToutPris() const { return m_etapes.empty() && LignePrise(); }

    Poste poste{0};
    std::shared_ptr<Scenario> ligne = std::make_shared<Scenario>();
    Operateur operateur;
    QList<int> evenements; ///< codes that OnComm has brought

private:
    struct Etape
    {
        std::function<void()> geste;
        Operateur::Condition quand;
    };

    bool LignePrise() const
    {
        const MSComm &controle = *frmPrinc->MSComm1;
        return controle.PortOpen() && ligne->EnAttente() == 0 && controle.InBufferCount() == 0;
    }
    void Avance()
    {
        if (m_etapes.empty() || !LignePrise() || (m_etapes.front().quand && !m_etapes.front().quand()))
            return;
        const auto geste = m_etapes.front().geste;
        m_etapes.pop_front();
        geste();
    }

    std::deque<Etape> m_etapes;
    QTimer m_machine;
};

} // namespace

class TestReceptionFautes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Ligne();
    void Operateurs();
    void Contenus();
    void AnnuleALaFin();
};

// What happens on the line between two lines of a program is told and ends nothing; only the character that came wrong
// is replaced. A machine that holds the line until the end gets no end string, and the reception does not wait for it.
void TestReceptionFautes::Ligne()
{
    struct Faute
    {
        int evenement; ///< 0: none comes
        std::function<void(Scenario &)> debut, fin;
        QByteArray ajout, reponse;
    };
    const auto compte = [](unsigned CompteursLigne::*champ) {
        return [champ](Scenario &ligne) { ++(ligne.compteurs.*champ); };
    };
    const auto cts = [](bool etat) { return [etat](Scenario &ligne) { ligne.etats->cts = etat; }; };
    const auto parite = [](Scenario &ligne) {
        ++ligne.compteurs.parite;
        ligne.Envoie("X\r\n", {0});
    };
    const std::function<void(Scenario &)> rien;
    const QByteArray eot = "\x04";
    const Faute fautes[] = {{1009, parite, rien, "?\r\n", eot},
                            {1004, compte(&CompteursLigne::trame), rien, "", eot},
                            {1001, compte(&CompteursLigne::pauses), rien, "", eot},
                            {1006, compte(&CompteursLigne::cadence), rien, "", eot},
                            {1008, compte(&CompteursLigne::debordements), rien, "", eot},
                            {3, cts(false), cts(true), "", eot},
                            {3, cts(false), rien, "", ""},
                            {0, [](Scenario &ligne) { ligne.accepte = 0; }, rien, "", ""}};
    for (const Genre genre : Genres) {
        for (const Faute &faute : fautes) {
            Banc banc(genre);
            ParamCom.ControleFlux = faute.evenement == 3 ? 2 : 1;
            ParamCom.CarRemplace = u"?"_s;
            qsizetype attendus = faute.evenement == 0 ? 0 : 1;
            const auto vu = [&] { return banc.evenements.count(faute.evenement) >= attendus; };
            banc.Envoie("A\r\n");
            banc.Fait([&] { faute.debut(*banc.ligne); });
            banc.Envoie("B\r\n", vu);
            if (faute.fin)
                banc.Fait([&] { faute.fin(*banc.ligne), ++attendus; });
            banc.Envoie(eot, vu);
            QCOMPARE(banc.Recoit(), "A\r\n" + faute.ajout + "B\r\n\r\n");
            QCOMPARE(banc.ligne->ecrits, faute.reponse);
            QVERIFY(!banc.ligne->ouverte);
        }
    }
}

// The operator cancels, closes the dialog, forces the end, or thinks better of it while characters come: before the
// first character, behind a line and in the middle of one.
void TestReceptionFautes::Operateurs()
{
    enum Geste { Annuler, Fermer, Forcer, Renoncer };
    for (const Genre genre : Genres) {
        for (const QByteArray &venu : {QByteArray(), QByteArray("A\r\n"), QByteArray("A\r\nmoi")}) {
            for (const Geste geste : {Annuler, Fermer, Forcer, Renoncer}) {
                Banc banc(genre);
                if (!venu.isEmpty())
                    banc.Envoie(venu.left(3));
                if (venu.size() > 3)
                    banc.Envoie(venu.mid(3));
                const auto tout = [&] { return banc.ToutPris(); };
                if (geste == Annuler || geste == Fermer) {
                    geste == Annuler ? banc.operateur.Presse(Dialogue, "Command1", tout)
                                     : banc.operateur.Ferme(Dialogue, tout);
                    banc.Abandonne();
                    QVERIFY(!QFile::exists(banc.poste.Chemin("PIECE.ISO")));
                    QCOMPARE(frmPrinc->Text1->Text(), u"ANCIEN"_s);
                    QCOMPARE(frmPrinc->shpReceive->FillColor(), int(Lampe::Rouge));
                } else if (geste == Forcer) {
                    banc.Force(QMessageBox::Yes);
                    QCOMPARE(banc.Recoit(), (genre == ParFichier ? venu : venu.left(3)) + "\r\n");
                } else {
                    const auto &controle = *frmPrinc->MSComm1;
                    banc.Force(QMessageBox::No, [&] {
                        if (banc.ligne->EnAttente() == 0 && controle.InBufferCount() == 0)
                            banc.ligne->Envoie("B\r\n");
                        else if (controle.InBufferCount() == 3)
                            banc.Envoie("\x04");
                        return controle.InBufferCount() == 3;
                    });
                    QCOMPARE(banc.Recoit(), venu + "B\r\n\r\n");
                }
                QCOMPARE(banc.ligne->ecrits, QByteArray(geste == Annuler || geste == Fermer ? "" : "\x04"));
                QVERIFY(!PortOuvert && !banc.ligne->ouverte && frmPrinc->Text2->isHidden());
            }
        }
    }
}

// What a machine may send: nothing, the end string in the middle or not alone, something behind it, any byte.
void TestReceptionFautes::Contenus()
{
    const QByteArray tous = TousLesOctets();
    QByteArrayList unParUn;
    for (const char octet : QByteArray(tous).replace('\x04', "") + "\r\n\x04")
        unParUn << QByteArray(1, octet);
    const QByteArray sansFin = QByteArray(tous).replace('\x04', "").replace('\r', "").replace("\n", "\r\n");
    const std::tuple<Genre, QByteArrayList, bool, QByteArray> cas[] = {
        {ParLigne, {"\x04"}, false, "\r\n"},
        {ParCaractere, {"\x04"}, false, "\r\n"},
        {ParFichier, {"\x04"}, false, "\r\n"},
        {ParLigne,
         {"A\x04"
          "B\r\n",
          "\x04"},
         false,
         "A\x04"
         "B\r\n\r\n"},
        {ParCaractere,
         {"A\r\n", "B\x04"
                   "C\r\n"},
         false,
         "A\r\n\r\n"},
        {ParFichier,
         {"A\x04"
          "B\r\n",
          "\x04"},
         false,
         "A\x04"
         "B\r\n\r\n"},
        {ParLigne, {"A\r\n\x04"}, true, "A\r\r\n\r\n"},
        {ParFichier, {"A\x04\r\n"}, true, "A\x04\r\n\r\n"},
        {ParLigne, {tous + "\r\n", "\x04"}, false, tous + "\r\n\r\n"},
        {ParCaractere, unParUn, false, sansFin + "\r\n\r\n"},
        {ParFichier, {tous, "\x04"}, false, tous + "\r\n"}};
    for (const auto &[genre, envois, force, fichier] : cas) {
        Banc banc(genre);
        for (const QByteArray &envoi : envois)
            banc.Envoie(envoi);
        if (force)
            banc.Force(QMessageBox::Yes);
        else // a trailer, such as the blank end of a tape
            banc.Envoie("\r\n\x04", [] { return FinTransfert == 1; });
        QCOMPARE(banc.Recoit(), fichier);
        QCOMPARE(banc.ligne->ecrits, QByteArray("\x04"));
    }
}

// Cancelled in the very moment in which the end has come: nothing is stored, and the file dialog waits for another try.
void TestReceptionFautes::AnnuleALaFin()
{
    Banc banc(ParFichier);
    banc.operateur.Fait(Dialogue, [](QWidget &) {}); // the dialog is known; it goes by the machine's clock
    banc.Envoie("A\x04");
    banc.Fait([] { QApplication::activeModalWidget()->findChild<QPushButton *>(u"Command1"_s)->click(); },
              [] { return FinTransfert == 1; });
    banc.Abandonne();
    QVERIFY(!QFile::exists(banc.poste.Chemin("PIECE.ISO")));
    QCOMPARE(FinTransfert, 0);
}

QTEST_MAIN(TestReceptionFautes)
#include "TestReceptionFautes.moc"
