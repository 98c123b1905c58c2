#include "EssaiTransfert.h"

#include "donnees/Lignes.h"
#include "donnees/ParamCom.h"
#include "shell/Document.h"
#include "shell/SauvegardeAuto.h"

#include <QApplication>

namespace {

constexpr char Dialogue[] = "Em_Rc";

/// A line at a time, as the receptions by line and by character ask for.
QByteArrayList ParLignes(const QByteArray &programme)
{
    QByteArrayList pieces;
    const QByteArrayList lignes = programme.split('\n');
    for (const QByteArray &ligne : lignes.first(lignes.size() - 1))
        pieces << ligne + '\n';
    if (!lignes.last().isEmpty())
        pieces << lignes.last();
    return pieces;
}

constexpr Genre Entier = Genre::FichierEntier, ParLigne = Genre::LigneParLigne;
const QByteArray Tous = TousLesOctets();
/// The text, the beginning of the program, the type of line end: 0 LF, 3 CR LF; and what the machine gets.
const std::tuple<const char *, Genre, QByteArray, QByteArray, int, QByteArray> Envois[] = {
    {"whole: empty", Entier, "", "%O", 3, "%O\r\n\x04"},
    {"whole: exactly a buffer", Entier, "12345678", "", 3, "12345678\x04"},
    {"whole: one more", Entier, "123456789", "", 3, "123456789\x04"},
    {"whole: line ends", Entier, " A\r\nB\nC\rD \r\n", "", 3, " A\r\nB\nC\rD \r\n\x04"},
    {"whole: every byte", Entier, Tous, "\xFF", 0, "\xFF\n" + Tous + "\x04"},
    {"lines: empty", ParLigne, "", "", 3, "\r\n\x04"},
    {"lines: a beginning", ParLigne, "A\r\nB", "%", 0, "%\nA\r\nB\n\x04"},
    {"lines: CR LF for each", ParLigne, "A\r\nB", "", 3, "A\r\r\nB\r\n\x04"},
    {"lines: blanks", ParLigne, "  A \r\n B \r\n\r\n C  ", "", 0, "A \r\n B \r\n\r\n C\n\x04"},
    {"lines: LF alone cuts none", ParLigne, "\tA\r\r\nB\rC\n\rD\t\n", "", 3, "\tA\r\r\r\nB\rC\n\rD\t\n\r\n\x04"},
    {"lines: every byte", ParLigne, Tous, "", 0, Tous + "\n\x04"}};

const QByteArray SansEot = QByteArray(Tous).replace(FinTrans, "");
const QByteArray Avale = QByteArray(SansEot).replace('\r', "").replace("\n", "\r\n");
const QByteArray Deux = "N10 G0\r\n\r\nN20 M30\r\n";
const QByteArray Milieu = "A\x04 B\r\n";
/// Type of line end, or by file the size of a reading; what the operator has added to each line; what the machine
/// sends, and the file.
const std::tuple<const char *, Genre, int, int, QByteArray, QByteArray> Programmes[] = {
    {"lines: nothing", Genre::Ligne, 3, 0, "", "\r\n"},
    {"lines: a program", Genre::Ligne, 3, 0, Deux, Deux + "\r\n"},
    {"lines: CR LF added", Genre::Ligne, 3, 3, "A\r\nB\r\n", "A\r\n\r\nB\r\n\r\n\r\n"},
    {"lines: LF, CR LF added", Genre::Ligne, 0, 1, "A\nB\n", "A\n\r\nB\n\r\n\r\n"},
    {"lines: every byte", Genre::Ligne, 3, 0, Milieu + Tous + "\r\n", Milieu + Tous + "\r\n\r\n"},
    {"characters: nothing", Genre::Caractere, 3, 0, "", "\r\n"},
    {"characters: a program", Genre::Caractere, 3, 0, Deux, Deux + "\r\n"},
    {"characters: a line end of the operator's", Genre::Caractere, 4, 0, "A\r\r\nB\r\r\n", "A\r\nB\r\n\r\n"},
    {"characters: the end in the middle", Genre::Caractere, 3, 0, "A\r\n" + Milieu, "A\r\n\r\n"},
    {"characters: every byte", Genre::Caractere, 3, 0, SansEot + "\r\n", Avale + "\r\n\r\n"},
    {"file: nothing", Genre::Fichier, 512, 0, "", "\r\n"},
    {"file: every byte", Genre::Fichier, 512, 0, Milieu + Tous, Milieu + Tous + "\r\n"},
    {"file: the end of a reading is the end", Genre::Fichier, 1, 0, Milieu, "A\r\n"}};

} // namespace

/// Transfers to the last byte: what goes out for a text, and what stays of what comes in.
class TestTransferts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Emissions_data() { Rangees(Envois); }
    void Emissions();
    void Receptions_data() { Rangees(Programmes); }
    void Receptions();
    void ReceptionForcee_data() { RangsGenres(2, 4); }
    void ReceptionForcee();
    void ArretDemande_data() { RangsGenres(2, 4); }
    void ArretDemande();
    void ReceptionTenue_data() { RangsGenres(2, 4); }
    void ReceptionTenue();
    void TropDeLignes();
    void TropGrand();
    void AnnuleeALaFin();
};

// What the machine gets, byte for byte, twice in a row: so nothing follows the end of the first.
void TestTransferts::Emissions()
{
    const auto &[nom, genre, texte, debut, finLigne, attendu] = Rangee(Envois);
    EssaiTransfert essai(genre);
    ParamCom.TypeFinLig = finLigne;
    ParamCom.NbCarDebProg = int(debut.size());
    for (int i = 0; i < debut.size(); ++i)
        ParamCom.CarDebProg[std::size_t(i) + 1] = static_cast<unsigned char>(debut[i]);
    BatirChaines();
    ParamCom.TailleTamponEmis = 8;
    essai.charge.texte = texte;
    for (int fois = 1; fois <= 2; ++fois) {
        const auto passe = Passe(QString::number(fois));
        QCOMPARE(essai.Joue().statut, u"Transfert terminé avec succès !"_s);
        QCOMPARE(essai.ligne->ecrits, attendu.repeated(fois));
        QCOMPARE(frmPrinc->Text1->Text().size(), texte.size());
    }
}

// What a machine may send: nothing, a program, the end string in the middle or not alone, any byte. To the file on the
// disk, the pane, the answer to the machine and the names of the document.
void TestTransferts::Receptions()
{
    const auto &[nom, genre, finOuLecture, option, envoye, attendu] = Rangee(Programmes);
    EssaiTransfert essai(genre);
    ParamCom.Echo = 1;
    const bool parFichier = genre == Genre::Fichier;
    (parFichier ? ParamCom.NbCarLecture : ParamCom.TypeFinLig) = finOuLecture;
    ParamCom.FinLigRecep = option;
    ParamCom.NbCarFinLig = 3;
    ParamCom.CarFinLig = {0, 13, 13, 10};
    BatirChaines();
    essai.charge.pieces = ParLignes(envoye) << FinTrans;
    essai.pilote.Fait(
        Dialogue,
        [parFichier](QWidget &) { QCOMPARE(Operateur::Lu("Command1"), parFichier ? u"&Annuler"_s : u"&Fermer"_s); },
        [] { return Operateur::Lu("Label2") == u"Transfert réalisé avec succès !" && !frmPrinc->PortOuvert; });
    QCOMPARE(essai.Joue().avis.size(), 0);
    QCOMPARE(essai.Disque(), attendu);
    QCOMPARE(essai.ligne->ecrits, QByteArray(FinTrans));
    QCOMPARE(frmPrinc->Text1->Text().size(), attendu.size() - (parFichier ? 2 : 0));
    QVERIFY(!Document.FichierModifie);
    QCOMPARE(frmPrinc->Label2->text(), u"PIECE.ISO"_s);
    QCOMPARE(Document.TitreFichier, parFichier ? u"PIECE.iso"_s : u"PIECE.ISO"_s);
    QVERIFY(frmPrinc->Text2->isHidden());
}

// The operator forces the end, or thinks better of it while characters come: before the first character, behind a line
// and in the midst of one.
void TestTransferts::ReceptionForcee()
{
    QFETCH(int, rang);
    EssaiTransfert essai(Genres[rang]);
    const QByteArray programme = essai.Envoye().chopped(1);
    for (const qsizetype position : {0, 4, 5}) {
        for (const bool force : {true, false}) {
            const auto passe = Passe(u"at %1%2"_s.arg(position).arg(force ? u", forced"_s : QString()));
            essai.ligne = std::make_shared<Scenario>();
            essai.PreditEnsuite();
            if (force) {
                essai.pilote.Repond(
                    "Forcer la fin de réception",
                    "Fermer la réception et enregistrer les lignes reçues !\rConfirmez la fin de réception ?",
                    Operateur::Demande, QMessageBox::Yes);
            } else {
                essai.pilote.Fait("MsgBox", [&](QWidget &) { essai.ligne->Envoie("Z\r\n"); });
                essai.pilote.Fait("MsgBox", Operateur::Clique(QMessageBox::No),
                                  [] { return frmPrinc->MSComm1->InBufferCount() == 3; });
            }
            bool presse = false;
            const auto deroulement = essai.Joue(position, [&](const QDialog &transfert) {
                if (std::exchange(presse, true))
                    return !force;
                Operateur::Presse(transfert, "Command7");
                return false;
            });
            QCOMPARE(deroulement.avis.size(), 0);
            const bool coupeLigne = position == 5 && essai.genre != Genre::Fichier;
            const QByteArray venu =
                force ? programme.left(coupeLigne ? 4 : position) : QByteArray(programme).insert(position, "Z\r\n");
            QCOMPARE(essai.Disque(), venu + "\r\n");
            QCOMPARE(essai.ligne->ecrits, QByteArray(FinTrans));
        }
    }
}

// The close box asks, and no more than that: what comes meanwhile is received as it comes, whether he says No at last
// or the end of the transfer takes the question away. What has come is kept once when the system ends the session.
void TestTransferts::ArretDemande()
{
    QFETCH(int, rang);
    EssaiTransfert essai(Genres[rang]);
    const QByteArray programme = essai.Envoye().chopped(1);
    const auto pris = [&essai] { return essai.Pris(); };
    for (const auto &[position, non] : {std::pair{0, true}, {5, true}, {5, false}}) {
        const auto passe = Passe(u"at %1%2"_s.arg(position).arg(non ? u", answered"_s : QString()));
        essai.ligne = std::make_shared<Scenario>();
        essai.PreditEnsuite();
        for (const QByteArray piece : {"Z", "\r\n"})
            essai.pilote.Fait(
                "MsgBox", [&essai, piece](QWidget &) { essai.ligne->Envoie(piece); }, pris);
        essai.pilote.Fait(
            "MsgBox",
            [&essai, non = non](QWidget &boite) {
                if (non)
                    return Operateur::Clique(QMessageBox::No)(boite);
                essai.pilote.Habitude("MsgBox", [](QWidget &) {}); // he thinks about it until it is gone
                essai.ligne->Envoie(FinTrans);
            },
            pris);
        bool presse = false;
        const auto deroulement = essai.Joue(position, [&](QDialog &transfert) {
            if (std::exchange(presse, true))
                return true;
            for (int fois = 1; fois <= 2; ++fois) { // he is asked once
                transfert.close();
                RetientTexte();
            }
            return false;
        });
        QCOMPARE(deroulement.statut, u"Transfert réalisé avec succès !"_s);
        QCOMPARE(essai.Gardes(), position > 0 ? QByteArrayList{programme.left(position)} : QByteArrayList());
        const QByteArray venu =
            non ? QByteArray(programme).insert(position, "Z\r\n") : programme.left(position) + "Z\r\n";
        QCOMPARE(essai.Disque(), venu + "\r\n");
        QCOMPARE(essai.ligne->ecrits, QByteArray(FinTrans));
    }
}

// A machine that holds the line until the end, by CTS or by XOFF, gets no end string, and the reception does not wait
// for it.
void TestTransferts::ReceptionTenue()
{
    QFETCH(int, rang);
    EssaiTransfert essai(Genres[rang]);
    for (const bool parCts : {true, false}) {
        const auto passe = Passe(parCts ? u"CTS"_s : u"XOFF"_s);
        essai.ligne = std::make_shared<Scenario>();
        ParamCom.ControleFlux = parCts ? 2 : 1;
        essai.ligne->accepte = parCts ? 1'000'000 : 0;
        const auto deroulement = essai.Joue(2, [&](const QDialog &) {
            essai.ligne->etats->cts = !parCts;
            return frmPrinc->MSComm1->CTSHolding() != parCts;
        });
        QCOMPARE(deroulement.avis.size(), 0);
        QCOMPARE(essai.Disque(), essai.charge.attendu);
        QCOMPARE(essai.ligne->ecrits, QByteArray());
        QVERIFY(!essai.ligne->ouverte);
    }
}

// The table holds 25000 lines. A text of more leaves the count of the sending before it, and so many of its lines go. A
// reception has no place for the empty line at its end: told, and all of them can be saved.
void TestTransferts::TropDeLignes()
{
    const QByteArray pleine = QByteArray("N\r\n").repeated(CapaciteLignes);
    {
        EssaiTransfert essai(Genre::LigneParLigne);
        essai.charge.texte = pleine;
        for (const int avant : {3, 0}) { // by what the table held before
            const auto passe = Passe(QString::number(avant));
            Lignes.NbLignes = avant;
            essai.ligne->ecrits.clear();
            const auto joue = essai.Joue();
            QCOMPARE(joue.avis.size(), 1);
            QVERIFY2(joue.avis[0].texte.contains(avant == 0 ? u" Rien du programme ne partirait."_s
                                                            : u" Partiraient seulement : 3 lignes sur 25\u202F000."_s),
                     qPrintable(joue.avis[0].texte));
            QCOMPARE(joue.bilan.section(u'\n', 1),
                     u"Le programme n'est pas parti en entier : %1 sur 25\u202F000 !"_s.arg(
                         avant == 0 ? u"0 ligne"_s : u"3 lignes"_s));
            QCOMPARE(essai.ligne->ecrits, QByteArray("N\r\n").repeated(avant) + FinTrans);
        }
    }
    EssaiTransfert essai(Genre::Ligne);
    essai.ligne->parLecture = ParamCom.TailleTamponRecep = 2; // one line waits behind a line end, and is thrown away
    ParamCom.TypeFinLig = 0;
    BatirChaines();
    essai.charge.pieces = {QByteArray("N\n").repeated(2 * CapaciteLignes)};
    essai.PreditEnsuite();
    essai.pilote.LitErreur(Erreur::IndiceHorsPlage, u"La table est pleine.\rLa réception dépasse 25000 lignes."_s);
    essai.pilote.Ferme("CommonDialog"); // he thinks better of it: offered once more
    const QString bilan = essai.Joue().bilan;
    QVERIFY2(bilan.contains(u"sauve.txt\n100\u202F000 caractères reçus en "_s), qPrintable(bilan));
    QVERIFY2(bilan.contains(u"\n50\u202F000 caractères jetés : "_s), qPrintable(bilan));
    QCOMPARE(essai.poste.Lit("sauve.txt"), pleine + "\r\n");
}

// A file that is too large for the pane stands whole on the disk; the pane gives way to the word processor, which is
// offered at the end and once more when the dialog closes. A new program brings the pane back.
void TestTransferts::TropGrand()
{
    EssaiTransfert essai(Genre::Ligne);
    const QByteArray programme = (QByteArray(900, 'X') + "\r\n").repeated(73);
    essai.charge.pieces = ParLignes(programme) << FinTrans;
    essai.PreditEnsuite();
    for (int fois = 1; fois <= 2; ++fois)
        essai.pilote.Repond("Message",
                            "Le fichier PIECE.ISO est trop volumineux pour être ouvert par Brovane.\r"
                            "           Voulez-vous utiliser WordPad pour lire ce fichier ?",
                            Boite::Information | Boite::OuiNon, QMessageBox::No);
    QCOMPARE(essai.Joue().avis.size(), 0);
    QCOMPARE(essai.Disque(), programme + "\r\n");
    QVERIFY(frmPrinc->Text1->isHidden());
    QVERIFY(frmPrinc->Text1->Text().isEmpty());
    QCOMPARE(Document.NomFichier, essai.poste.Chemin("PIECE.ISO"));
    essai.pilote.Fait("MsgBox", Operateur::Clique(QMessageBox::Yes));
    Operateur::Menu("Mnu_Nouveau");
    QVERIFY(frmPrinc->Text1->isVisible());
}

// Cancelled in the very moment in which the end has come: nothing is stored, and the file dialog waits for another try.
void TestTransferts::AnnuleeALaFin()
{
    EssaiTransfert essai(Genre::Fichier);
    connect(frmPrinc->MSComm1, &MSComm::OnComm, this, [&essai] {
        if (Transfert.FinTransfert && !Transfert.AnnuleRECEPT)
            Pilote::Annule(essai.genre, *QApplication::activeModalWidget());
    });
    const auto avis = essai.Joue().avis;
    QCOMPARE(avis, (QList<Pilote::Avis>{{u"Bouton Annuler cliqué"_s, u"AnnuleRECEPT% = 1"_s}}));
    QCOMPARE(essai.Disque(), QByteArray("ANCIEN"));
    QVERIFY(!Transfert.FinTransfert);
}

QTEST_MAIN(TestTransferts)
#include "TestTransferts.moc"
