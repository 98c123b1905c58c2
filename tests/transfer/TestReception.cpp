#include "LigneScenario.h"
#include "Operateur.h"
#include "platform/ErreurPort.h"
#include "platform/Essais.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "gauges/Lignes.h"
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
        operateur.Fait(Fichier, [](QWidget &fenetre) {
            fenetre.findChild<QLineEdit *>(u"Text1"_s)->setText(u"piece"_s);
            fenetre.findChild<QPushButton *>(u"Command2"_s)->click();
        });
        operateur.Repond(
            "Réception d'un programme CN",
            "Réception d'un programme CN\rConfirmez la réception du programme PIECE.ISO sur le port Com2 ?",
            Operateur::Demande, QMessageBox::Yes);
    }

    void Fait(const std::function<void()> &geste, const Operateur::Condition &quand = {})
    {
        m_etapes.push_back({geste, quand});
        m_machine.start(0);
    }
    void Envoie(const QByteArray &octets, const Operateur::Condition &quand = {})
    {
        Fait([this, octets] { ligne->Envoie(octets); }, quand);
    }
    /// A line at a time, as the receptions by line and by character ask for.
    void EnvoieLignes(const QByteArray &programme)
    {
        const QByteArrayList lignes = programme.split('\n');
        for (const QByteArray &une : lignes.first(lignes.size() - 1))
            Envoie(une + '\n');
        if (!lignes.last().isEmpty())
            Envoie(lignes.last());
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
        operateur.Presse(Dialogue, "Command1", [] { return FinTransfert == 1 && !PortOuvert; });
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
    /// The whole of a failed one: what had come is saved under another name, at the second try. fini: the end had come.
    QByteArray Sauve(bool fini = false)
    {
        for (int essai = 1; essai <= 2; ++essai) {
            operateur.Repond("Enregistrer les lignes reçues",
                             "La réception n'a pas abouti, les lignes déjà reçues ne sont pas enregistrées.\r"
                             "Les enregistrer dans un fichier ?",
                             Operateur::DemandeSimple, QMessageBox::Yes);
            if (essai == 1)
                operateur.Ferme("CommonDialog");
        }
        operateur.Choisit(poste.Chemin("sauve.txt"));
        operateur.Presse(Dialogue, "Command1", [] { return !PortOuvert; });
        if (!fini)
            operateur.Presse(Fichier, "Command1");
        Operateur::Menu("Mnu_RecepProg");
        return poste.Lit("sauve.txt");
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
        if (m_etapes.empty())
            m_machine.stop();
        else if (LignePrise() && (!m_etapes.front().quand || m_etapes.front().quand()))
            FaitSuivante();
    }
    void FaitSuivante()
    {
        const auto geste = m_etapes.front().geste;
        m_etapes.pop_front();
        geste();
    }

    std::deque<Etape> m_etapes;
    QTimer m_machine;
};

} // namespace

class TestReception : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What a machine may send: nothing, a program, the end string in the middle or not alone, any byte. To the file on
    // the disk, the pane, the answer to the machine and the names of the document; what comes behind the end changes
    // nothing.
    void Contenus()
    {
        const QByteArray tous = TousLesOctets();
        const QByteArray sansFin = QByteArray(tous).replace('\x04', "");
        const QByteArray avale = QByteArray(sansFin).replace('\r', "").replace("\n", "\r\n");
        const QByteArray deux = "N10 G0\r\n\r\nN20 M30\r\n";
        const QByteArray milieu = "A\x04 B\r\n";
        // type of line end; what the operator has added to each; whether the end must be forced, as it comes with the
        // rest
        const std::tuple<Genre, int, int, QByteArray, bool, QByteArray> cas[] = {
            {ParLigne, 3, 0, "", false, "\r\n"},
            {ParLigne, 3, 0, deux, false, deux + "\r\n"},
            {ParLigne, 3, 3, "A\r\nB\r\n", false, "A\r\n\r\nB\r\n\r\n\r\n"},
            {ParLigne, 0, 1, "A\nB\n", false, "A\n\r\nB\n\r\n\r\n"},
            {ParLigne, 3, 0, milieu, false, milieu + "\r\n"},
            {ParLigne, 3, 0, "A\r\n", true, "A\r\r\n\r\n"},
            {ParLigne, 3, 0, tous + "\r\n", false, tous + "\r\n\r\n"},
            {ParCaractere, 3, 0, "", false, "\r\n"},
            {ParCaractere, 3, 0, deux, false, deux + "\r\n"},
            {ParCaractere, 4, 0, "A\r\r\nB\r\r\n", false, "A\r\nB\r\n\r\n"}, // a chain of the operator's own
            {ParCaractere, 3, 0, "A\r\n" + milieu, false, "A\r\n\r\n"},
            {ParCaractere, 3, 0, sansFin + "\r\n", false, avale + "\r\n\r\n"},
            {ParFichier, 3, 0, "", false, "\r\n"},
            {ParFichier, 3, 0, milieu, false, milieu + "\r\n"},
            {ParFichier, 3, 0, tous, false, tous + "\r\n"}};
        for (const auto &[genre, finLigne, option, envoye, force, fichier] : cas) {
            Banc banc(genre);
            ParamCom.TypeFinLig = finLigne;
            ParamCom.FinLigRecep = option;
            ParamCom.NbCarFinLig = 3;
            ParamCom.CarFinLig = {0, 13, 13, 10};
            BatirChaines();
            if (force) {
                banc.Envoie(envoye + '\x04');
                banc.Force(QMessageBox::Yes);
            } else {
                banc.EnvoieLignes(envoye);
                banc.Envoie("\x04", [] { return FinTransfert == 0; });
                banc.Envoie("\r\n\x04", [] { return FinTransfert == 1; });
            }
            const bool parFichier = genre == ParFichier;
            banc.operateur.Fait(
                Dialogue,
                [parFichier](QWidget &) {
                    QCOMPARE(Operateur::Lu("Label2"), u"Transfert réalisé avec succès !"_s);
                    QCOMPARE(Operateur::Lu("Command1"), parFichier ? u"&Annuler"_s : u"&Fermer"_s);
                },
                [] { return FinTransfert == 1 && !PortOuvert; });
            QCOMPARE(banc.Recoit(), fichier);
            QCOMPARE(banc.ligne->ecrits, QByteArray("\x04"));
            QCOMPARE(frmPrinc->Text1->Text().size(), fichier.size() - (parFichier ? 2 : 0));
            QCOMPARE(FichierModifie, 0);
            QCOMPARE(frmPrinc->Label2->text(), u"PIECE.ISO"_s);
            QCOMPARE(TitreFichier, parFichier ? u"PIECE.iso"_s : u"PIECE.ISO"_s);
            QVERIFY(frmPrinc->Text2->isHidden());
        }
    }

    // Only a character that came wrong is replaced; CTS that falls and comes back ends nothing. A machine that holds
    // the line until the end gets no end string, and the reception does not wait for it.
    void Ligne()
    {
        struct Faute
        {
            int evenement; ///< 0: none comes
            std::function<void(Scenario &)> debut, fin;
            QByteArray ajout, reponse;
        };
        const auto cts = [](bool etat) { return [etat](Scenario &ligne) { ligne.etats->cts = etat; }; };
        const auto parite = [](Scenario &ligne) {
            ++ligne.compteurs.parite;
            ligne.Envoie("X\r\n", {0});
        };
        const std::function<void(Scenario &)> rien;
        const QByteArray eot = "\x04";
        const Faute fautes[] = {{1009, parite, rien, "?\r\n", eot},
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
    void Operateurs()
    {
        enum Geste { Annuler, Fermer, Forcer, Renoncer };
        for (const Genre genre : Genres) {
            for (const QByteArray &venu : {QByteArray(), QByteArray("A\r\n"), QByteArray("A\r\nmoi")}) {
                for (const Geste geste : {Annuler, Fermer, Forcer, Renoncer}) {
                    Banc banc(genre);
                    banc.EnvoieLignes(venu);
                    const auto tout = [&] { return banc.ToutPris(); };
                    const bool annule = geste == Annuler || geste == Fermer;
                    if (annule) {
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
                    QCOMPARE(banc.ligne->ecrits, QByteArray(annule ? "" : "\x04"));
                    QVERIFY(!PortOuvert && !banc.ligne->ouverte && frmPrinc->Text2->isHidden());
                }
            }
        }
    }

    // As many lines as the table holds leave no place for the empty one at the end: told, and all of them can be saved.
    void TropDeLignes()
    {
        Banc banc(ParLigne);
        banc.ligne->sansVidage = true; // all stands ready at once
        ParamCom.Echo = 0;
        ParamCom.TypeFinLig = 0;
        BatirChaines();
        ParamCom.TailleTamponRecep = 2; // so that nothing waits behind a line end
        ParamCom.SeuilRecep = 0;        // nor is each line told
        banc.ligne->Envoie(QByteArray("N\n").repeated(CapaciteLignes));
        banc.operateur.LitErreur(Erreur::IndiceHorsPlage, u"La réception dépasse 25000 lignes."_s);
        QCOMPARE(banc.Sauve(), QByteArray("N\r\n").repeated(CapaciteLignes));
    }

    // A file that is too large for the pane stands whole on the disk; the pane gives way to the word processor, which
    // is offered at the end and once more when the dialog closes.
    void TropGrand()
    {
        Banc banc(ParLigne);
        const QByteArray programme = (QByteArray(900, 'X') + "\r\n").repeated(73);
        banc.EnvoieLignes(programme + '\x04');
        const auto offre = [&banc] {
            banc.operateur.Repond("Message",
                                  "Le fichier PIECE.ISO est trop volumineux pour être ouvert par Brovane.\r"
                                  "           Voulez-vous utiliser WordPad pour lire ce fichier ?",
                                  Boite::Information | Boite::OuiNon, QMessageBox::No);
        };
        offre();
        banc.operateur.Presse(Dialogue, "Command1", [] { return FinTransfert == 1 && !PortOuvert; });
        offre();
        Operateur::Menu("Mnu_RecepProg");
        QCOMPARE(banc.poste.Lit("PIECE.ISO"), programme + "\r\n");
        QVERIFY(frmPrinc->Text1->isHidden() && frmPrinc->Text1->Text().isEmpty());
        QCOMPARE(NomFichier, banc.poste.Chemin("PIECE.ISO"));
    }

    // Cancelled in the very moment in which the end has come: nothing is stored, and the file dialog waits for another
    // try.
    void AnnuleALaFin()
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

    // An existing file is replaced only when the operator says so.
    void FichierExistant()
    {
        const Poste poste(0);
        Operateur operateur;
        poste.Charge("ANCIEN");
        ParamCom.DosRecep = poste.Dossier();
        poste.Ecrit("PIECE.ISO", "PRECIEUX");
        operateur.Fait(Fichier, [](QWidget &fenetre) {
            auto *const nom = fenetre.findChild<QLineEdit *>(u"Text1"_s);
            auto *const recevoir = fenetre.findChild<QPushButton *>(u"Command2"_s);
            QVERIFY(!recevoir->isEnabled());
            QTest::keyClicks(nom, u"pi ,e/c\"e"_s);
            nom->insert(u"é°"_s);
            QCOMPARE(nom->text(), u"piece"_s);
            recevoir->click();
        });
        operateur.Repond("Fichier existant !",
                         u"Remplacer le fichier PIECE.ISO\rDans le dossier %1\rConfirmez  ?"_s.arg(poste.Dossier()),
                         Operateur::Demande, QMessageBox::No);
        operateur.Presse(Fichier, "Command1");
        Operateur::Menu("Mnu_RecepProg");
        QCOMPARE(poste.Lit("PIECE.ISO"), QByteArray("PRECIEUX"));
    }

    // What happens on the line is told in the operator's language; lost characters empty the buffer.
    void Evenements()
    {
        using Compteurs = CompteursLigne;
        const std::tuple<int, unsigned Compteurs::*, QString> evenements[] = {
            {0, &Compteurs::parite, u"Erreur de parité"_s},
            {1, &Compteurs::pauses, u"Pauses received"_s},
            {2, &Compteurs::trame, u"Error de encuadre"_s},
            {1, &Compteurs::debordements, u"Going beyond of the plug of receiving"_s},
            {2, &Compteurs::cts, u"Cambio de Préstamo que debe emitirse (CTS) detectado"_s}};
        for (const auto &[langue, compteur, texte] : evenements) {
            const Poste poste(langue);
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
};

QTEST_MAIN(TestReception)
#include "TestReception.moc"
