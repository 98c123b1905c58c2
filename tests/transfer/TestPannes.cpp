#include "EssaiTransfert.h"

#include "donnees/Jauge.h"
#include "donnees/Lignes.h"
#include "donnees/ParamCom.h"
#include "platform/base/Horloge.h"
#include "shell/Document.h"
#include "shell/SauvegardeAuto.h"

namespace {

// The boxes that he may read, by their titles.
const QString Offre = QStringLiteral("Enregistrer le texte reçu");
const QString OffreBanc = QStringLiteral("Enregistrer le texte du banc");
const QString AnnuleDite = QStringLiteral("Bouton Annuler cliqué"); // a reception by file

QString ErreurN(int numero)
{
    return u"Erreur N°:  %1Fermeture du port de communication"_s.arg(numero);
}

QStringList Titres(const Pilote::Deroulement &deroulement)
{
    QStringList titres;
    for (const Pilote::Avis &avis : deroulement.avis)
        titres << avis.titre;
    return titres;
}

/// What no file holds of a reception once that many characters have come, as it is to be saved. A bench writes each
/// measure that is whole.
QByteArray Venu(const EssaiTransfert &essai, qsizetype nombre)
{
    QByteArray venu = essai.Envoye().left(nombre);
    if (essai.genre == Genre::Banc) {
        const qsizetype mesure = essai.charge.pieces[0].size();
        return nombre % mesure == 0 ? QByteArray() : nombre < mesure ? venu : venu.insert(mesure, "\r\n");
    }
    if (venu.endsWith(FinTrans))
        venu.chop(1);
    return essai.genre == Genre::Caractere && venu.endsWith('\r') ? venu.chopped(1) : venu;
}

/// A transfer that the plug or the operator cuts short once that many characters have crossed the line. At the very end
/// of a reception it is the answer that finds the line gone.
Pilote::Deroulement Coupe(EssaiTransfert &essai, bool debranche, qsizetype position)
{
    essai.ligne = std::make_shared<Scenario>();
    const bool reponse = !EstEmission(essai.genre) && position == essai.Envoye().size();
    essai.ligne->accepte = reponse ? 0 : EstEmission(essai.genre) ? int(position) : 1'000'000;
    essai.ligne->casse = debranche;
    if (debranche && essai.ligne->accepte <= position)
        return essai.Joue();
    return essai.Joue(position, [&](QDialog &transfert) {
        const bool fait = debranche || position % 2 == 0; // a close box asks first
        if (debranche && position % 2 == 1 && essai.genre != Genre::Banc) {
            // while he is asked whether to force the end
            essai.pilote.Fait("MsgBox", [&essai, position](QWidget &boite) {
                essai.ligne->Debranche();
                Operateur::Clique(position % 4 == 1 ? QMessageBox::Yes : QMessageBox::No)(boite);
            });
            Pilote::Presse(transfert, "Command7");
        } else if (debranche)
            essai.ligne->Debranche();
        else if (position % 2 == 0)
            Pilote::Annule(essai.genre, transfert);
        else
            transfert.close();
        return fait;
    });
}

} // namespace

/// Whatever happens to the line or to the disk in the midst of a transfer: it is told, the port is closed, what had
/// come is whole, and the next transfer goes through as if nothing had been.
class TestPannes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Coupures_data() { RangsGenres(); }
    void Coupures();
    void LigneDebranchee_data() { RangsGenres(2, 4); }
    void LigneDebranchee();
    void BancDebranche_data() { OuiEtNon("encore", "another tool", "the end"); }
    void BancDebranche();
    void PortPris_data() { RangsGenres(); }
    void PortPris();
    void LigneFautive_data() { RangsGenres(2); }
    void LigneFautive();
    void Retenue_data() { RangsGenres(0, 1); }
    void Retenue();
    void Disque_data() { RangsGenres(2); }
    void Disque();
};

// The plug is pulled, or the operator cancels or closes the dialog, at every character. What the disk had is still
// there, and what a line that has gone leaves can be saved to the last character.
void TestPannes::Coupures()
{
    QFETCH(int, rang);
    EssaiTransfert essai(Genres[rang]);
    const bool emission = EstEmission(essai.genre), banc = essai.genre == Genre::Banc;
    const qsizetype total = emission ? essai.charge.attendu.size() - 1 : essai.Envoye().size();
    for (const bool debranche : {true, false}) {
        for (qsizetype position = 0; position <= total; position += banc ? 23 : 1) {
            const auto passe = Passe(u"%1 at %2"_s.arg(debranche ? u"unplugged"_s : u"cancelled"_s).arg(position));
            if (!emission && !debranche && position == total)
                break; // it is over
            essai.poste.Ecrit("PIECE.ISO", "ANCIEN");
            const QString volet = emission ? QString::fromLatin1(essai.charge.texte) : frmPrinc->Text1->Text();
            const Pilote::Deroulement joue = Coupe(essai, debranche, position);
            const QStringList dits = Titres(joue);
            const QByteArray venu = Venu(essai, position);
            QStringList attendus;
            if (debranche)
                attendus = QStringList(ErreurN(8020)) +
                           (emission || venu.isEmpty() ? QStringList() : QStringList(banc ? OffreBanc : Offre));
            else if (emission || essai.genre == Genre::Fichier)
                attendus = {emission ? ErreurN(8018) : AnnuleDite};
            QCOMPARE(dits, attendus);
            QCOMPARE(frmPrinc->Text1->Text(), volet);
            if (emission && debranche)
                QVERIFY2(joue.bilan.startsWith(u"Emission interrompue ! %1 caractère"_s.arg(position)),
                         qPrintable(joue.bilan));
            if (emission)
                QCOMPARE(essai.ligne->ecrits, essai.charge.attendu.left(position));
            else if (banc)
                QCOMPARE(essai.Disque(), position < 70 ? QByteArray() : essai.charge.pieces[0] + "\r\n");
            else
                QCOMPARE((QByteArrayList{essai.Disque(), essai.ligne->ecrits}), (QByteArrayList{"ANCIEN", ""}));
            if (dits.contains(OffreBanc))
                QCOMPARE(essai.poste.Lit("sauve.txt"), venu);
            if (dits.contains(Offre)) {
                QCOMPARE(essai.poste.Lit("sauve.txt"), venu + "\r\n");
                QVERIFY(joue.avis[1].texte.startsWith(position == total ? u"La réception est terminée, mais "_s
                                                                        : u"La réception n'a pas abouti, "_s));
            }
            essai.VerifiePret();
            if (QTest::currentTestFailed())
                return;
        }
    }
}

// Lines wait while the operator is asked whether to force the end, and the plug is pulled: a session that ends then, or
// while the failure is told, keeps them, and they can be saved, whatever he answers.
void TestPannes::LigneDebranchee()
{
    QFETCH(int, rang);
    for (const auto reponse : {QMessageBox::Yes, QMessageBox::No}) {
        EssaiTransfert essai(Genres[rang]);
        ParamCom.SeuilRecep = 256;
        QByteArrayList gardes;
        bool debranche = false;
        essai.PreditEnsuite();
        essai.pilote.Fait("MsgBox", [&](QWidget &boite) {
            essai.ligne->Envoie("AB\r\n");
            QVERIFY(QTest::qWaitFor([] { return frmPrinc->MSComm1->InBufferCount() == 4; }));
            RetientTexte();
            gardes << essai.Gardes();
            essai.ligne->Envoie("CD\r\n");
            QVERIFY(QTest::qWaitFor([] { return frmPrinc->MSComm1->InBufferCount() == 8; }));
            essai.ligne->Debranche();
            debranche = true;
            Operateur::Clique(reponse)(boite);
        });
        essai.pilote.Fait(
            "MsgBox",
            [&](QWidget &boite) {
                RetientTexte();
                gardes << essai.Gardes();
                Operateur::Clique(QMessageBox::Ok)(boite);
            },
            [&] { return debranche; });
        essai.Joue(0, [](const QDialog &transfert) {
            Pilote::Presse(transfert, "Command7");
            return true;
        });
        QCOMPARE(gardes, (QByteArrayList{"AB\r\n", "AB\r\nCD\r\n"}));
        QCOMPARE(essai.poste.Lit("sauve.txt"), QByteArray("AB\r\nCD\r\n\r\n"));
    }
}

// The plug is pulled while the operator of a bench decides: another tool is not to be had, but the end is, and either
// way the disk has the tool that came.
void TestPannes::BancDebranche()
{
    QFETCH(bool, encore);
    EssaiTransfert essai(Genre::Banc);
    const QByteArray outil = essai.charge.pieces[0];
    const QStringList dits = Titres(essai.Joue(outil.size(), [&](const QDialog &transfert) {
        if (Jauges.NbJauges != 1 || Lignes(1).isEmpty())
            return false;
        essai.ligne->Debranche();
        Pilote::Presse(transfert, encore ? "Command5" : "Command6");
        return true;
    }));
    QCOMPARE(dits, encore ? QStringList(ErreurN(8020)) : QStringList());
    QCOMPARE(essai.Disque(), encore ? outil + "\r\n" : ChargeDe(Genre::Banc, {"1 101.5 12 D"}).attendu);
    essai.VerifiePret();
}

// Between two transfers another program has taken the port, or the adapter has gone. A reception waits until the
// operator cancels, a sending ends by itself; one that has nothing to send does not even notice.
void TestPannes::PortPris()
{
    QFETCH(int, rang);
    EssaiTransfert essai(Genres[rang]);
    const Charge charge = essai.charge;
    for (const auto &[refus, vide] : {std::pair{8005, false}, {8002, false}, {8002, true}}) {
        const auto passe = Passe(u"%1%2"_s.arg(refus).arg(vide ? u", nothing to send"_s : QString()));
        essai.refus = refus;
        bool ferme = true;
        if (vide)
            essai.charge.texte.clear();
        const QStringList dits = Titres(essai.Joue(0, [&](QDialog &transfert) {
            if (!EstEmission(essai.genre) && vide)
                Pilote::Annule(essai.genre, transfert);
            else if (!EstEmission(essai.genre))
                ferme = transfert.close(); // asks nothing: there is nothing to end
            return true;
        }));
        QVERIFY(ferme);
        QStringList attendus{ErreurN(refus)};
        if (vide && EstEmission(essai.genre))
            attendus.prepend(u"Emission d'un programme CN"_s); // asked once more
        if (essai.genre == Genre::LigneParLigne || (essai.genre == Genre::FichierEntier && !vide))
            attendus << ErreurN(8018);
        else if (essai.genre == Genre::Fichier)
            attendus << AnnuleDite;
        QCOMPARE(dits, attendus);
        essai.charge = charge;
        essai.VerifiePret();
    }
}

// A parity or framing error, a break, lost characters behind every character of a reception: it goes on, and nothing
// that came is touched. What waits when the system has lost some goes with them, but for a bench.
void TestPannes::LigneFautive()
{
    QFETCH(int, rang);
    EssaiTransfert essai(Genres[rang]);
    QList<int> evenements;
    connect(frmPrinc->MSComm1, &MSComm::OnComm, this, [&] { evenements << frmPrinc->MSComm1->CommEvent(); });
    for (const auto &[code, compteur, nom] :
         {std::tuple{1009, &CompteursLigne::parite, u"erreurs de parité : vérifier la vitesse"_s},
          {1004, &CompteursLigne::trame, u"erreurs de cadrage : "_s},
          {1001, &CompteursLigne::pauses, u"interruptions de la ligne : "_s},
          {1006, &CompteursLigne::cadence, u"caractères perdus par le port : régler"_s},
          {1008, &CompteursLigne::debordements,
           u"caractères perdus par le PC, %1 caractères jetés avec eux : régler"_s}}) {
        const auto passe = Passe(nom);
        QByteArray file;
        qsizetype fautes = 0;
        evenements.clear();
        bool envoye = false;
        const int cran = essai.genre == Genre::Banc ? 24 : 1;
        const auto deroulement = essai.pilote.Joue(essai.genre, essai.charge, [&](const QDialog &transfert) {
            if (file.isEmpty() && !envoye)
                essai.pilote.Poursuit(transfert, [&](const QByteArray &piece) { file = piece; });
            if ((file.isEmpty() && !envoye) || !essai.Pris() || evenements.count(code) < fautes)
                return;
            envoye = !envoye;
            if (envoye) {
                essai.ligne->Envoie(file.left(cran), {0});
                file.remove(0, cran);
                return;
            }
            ++fautes;
            ++((*essai.ligne).compteurs.*compteur);
            if (code == 1008 && essai.genre != Genre::Banc) {
                essai.ligne->Envoie("Z", {0}); // before the reception has its next turn
                QVERIFY(QTest::qWaitFor([&] { return evenements.count(code) == fautes; }));
            }
        });
        QCOMPARE(Titres(deroulement), QStringList());
        QCOMPARE(essai.Disque(), essai.charge.attendu);
        QVERIFY(fautes >= 5);
        if (essai.genre != Genre::Banc) // whose dialog closes by itself
            QVERIFY2(deroulement.bilan.contains((u"\n%1 "_s + nom).arg(fautes)), qPrintable(deroulement.bilan));
    }
}

// CTS low for a minute behind every character that goes out: nothing goes meanwhile, nothing is told, nothing is lost.
void TestPannes::Retenue()
{
    QFETCH(int, rang);
    EssaiTransfert essai(Genres[rang]);
    ParamCom.ControleFlux = 2;
    static std::chrono::minutes passees{0};
    Horloge::Maintenant = []() -> Horloge::Instant { return std::chrono::steady_clock::now() + passees; };
    for (qsizetype position = 0; position < essai.charge.attendu.size(); ++position) {
        const auto passe = Passe(u"held at %1"_s.arg(position));
        essai.ligne = std::make_shared<Scenario>();
        essai.ligne->accepte = int(position);
        int regards = 0;
        const auto deroulement = essai.Joue(position, [&](const QDialog &) {
            essai.ligne->etats->cts = regards != 0 && essai.ligne->regards > regards + 3;
            if (frmPrinc->MSComm1->CTSHolding())
                return false;
            if (regards == 0) {
                ++passees;
                essai.ligne->accepte = 1'000'000;
                regards = std::max(1, essai.ligne->regards);
            }
            return essai.ligne->etats->cts;
        });
        QCOMPARE(Titres(deroulement), QStringList());
        QCOMPARE(essai.ligne->ecrits, essai.charge.attendu);
    }
    essai.VerifiePret();
}

// The disk is full, the folder may not be written or has gone, when the file of a reception is to be written: told,
// what came can be saved elsewhere, and the name is asked for again. The text that stands in the pane without a file of
// its own is kept under its own name when it leaves.
void TestPannes::Disque()
{
    QFETCH(int, rang);
    const Genre genre = Genres[rang];
    EssaiTransfert essai(genre);
    const QString bon = essai.poste.Dossier();
    // the folder, or what the file is a link to; where the pseudo-terminals are, not even root makes a file
    const std::pair<const char *, const char *> defauts[] = {
        {nullptr, "/dev/full"}, {"/dev/pts", nullptr}, {"/absent", nullptr}};
    for (const auto &[dossier, cible] : defauts) {
        const auto passe = Passe(QLatin1String(dossier ? dossier : cible));
        ParamCom.DosRecep = Reglages.DosJauge = dossier ? QString::fromLatin1(dossier) : bon;
        QFile::remove(essai.pilote.Chemin(genre));
        if (cible)
            QFile::link(QLatin1String(cible), essai.pilote.Chemin(genre));
        Document.Nomme(u"AVANT.iso"_s);
        const auto deroulement = essai.Joue();
        QVERIFY(!Transfert.FinTransfert);
        QVERIFY(!deroulement.avis.isEmpty());
        QVERIFY(deroulement.avis[0].titre.startsWith(u"Erreur N°: "_s));
        if (genre != Genre::Banc || cible) { // a bench knows before the first tool
            QCOMPARE(deroulement.avis.size(), 2);
            QVERIFY(genre == Genre::Banc ||
                    deroulement.bilan.startsWith(u"Texte reçu enregistré : "_s + essai.pilote.Sauvegarde));
            QVERIFY(deroulement.avis[0].texte.contains(CheminRecep()));
            QCOMPARE(essai.poste.Lit("sauve.txt"),
                     genre == Genre::Banc ? essai.charge.pieces[0] + "\r\n" : essai.charge.attendu);
        }
        QFile::remove(essai.pilote.Chemin(genre));
        ParamCom.DosRecep = Reglages.DosJauge = bon;
        essai.VerifiePret();
        QCOMPARE(essai.Gardes(), genre == Genre::Fichier ? QByteArrayList{"AB\r\nC"} : QByteArrayList());
    }
}

QTEST_MAIN(TestPannes)
#include "TestPannes.moc"
