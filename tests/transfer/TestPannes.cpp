#include "Etabli.h"

#include "comconfig/ParamCom.h"
#include "gauges/Jauge.h"

#include <chrono>

using namespace Qt::Literals::StringLiterals;

namespace {

std::chrono::nanoseconds avance{0}; // of the program's clock

// The boxes that he may read, by their titles.
const QString Offre = QStringLiteral("Enregistrer les lignes reçues");
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

/// What there is of a reception once that many characters have come.
QByteArray Venu(const Etabli &etabli, qsizetype nombre)
{
    QByteArray venu = etabli.Envoye().left(nombre);
    if (etabli.genre == Genre::Banc)
        return {};
    if (venu.endsWith(FinTrans))
        venu.chop(1);
    return etabli.genre == Genre::Caractere && venu.endsWith('\r') ? venu.chopped(1) : venu;
}

/// A transfer that the plug or the operator cuts short once that many characters have crossed the line. At the very end
/// of a reception it is the answer that finds the line gone.
QStringList Coupe(Etabli &etabli, bool debranche, qsizetype position)
{
    etabli.ligne = std::make_shared<Scenario>();
    const bool reponse = !EstEmission(etabli.genre) && position == etabli.Envoye().size();
    etabli.ligne->accepte = reponse ? 0 : EstEmission(etabli.genre) ? int(position) : 1'000'000;
    etabli.ligne->casse = debranche;
    if (debranche && etabli.ligne->accepte <= position)
        return Titres(etabli.Joue());
    return Titres(etabli.Joue(position, [&](QDialog &transfert) {
        if (debranche)
            etabli.ligne->Debranche();
        else if (position % 2 == 0)
            Pilote::Annule(etabli.genre, transfert);
        else
            transfert.close();
        return true;
    }));
}

} // namespace

// The linker puts this in the place of the system's clock.
// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's
extern "C" std::chrono::steady_clock::time_point __real__ZNSt6chrono3_V212steady_clock3nowEv() noexcept;
extern "C" std::chrono::steady_clock::time_point __wrap__ZNSt6chrono3_V212steady_clock3nowEv() noexcept
{
    return __real__ZNSt6chrono3_V212steady_clock3nowEv() + avance;
}
// NOLINTEND(bugprone-reserved-identifier)

/// Whatever happens to the line or to the disk in the midst of a transfer: it is told, the port is closed, what had
/// come is whole, and the next transfer goes through as if nothing had been.
class TestPannes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Coupures_data() { RangsGenres(); }
    void Coupures();
    void BancDebranche();
    void PortPris_data() { RangsGenres(); }
    void PortPris();
    void LigneFautive_data() { RangsGenres(2); }
    void LigneFautive();
    void Retenue_data() { RangsGenres(0, 1); }
    void Retenue();
    void MachineRelancee_data() { RangsGenres(); }
    void MachineRelancee();
    void Disque();
};

// The plug is pulled, or the operator cancels or closes the dialog, at every character. What the disk had is still
// there, and what a line that has gone leaves can be saved to the last character.
void TestPannes::Coupures()
{
    QFETCH(int, rang);
    Etabli etabli(Genres[rang]);
    const bool emission = EstEmission(etabli.genre), banc = etabli.genre == Genre::Banc;
    const qsizetype total = emission ? etabli.charge.attendu.size() - 1 : etabli.Envoye().size();
    for (const bool debranche : {true, false}) {
        for (qsizetype position = 0; position <= total; position += banc ? 23 : 1) {
            if (!emission && !debranche && position == total)
                break; // it is over
            etabli.poste.Ecrit("PIECE.ISO", "ANCIEN");
            const QString volet = emission ? QString::fromLatin1(etabli.charge.texte) : frmPrinc->Text1->Text();
            const QStringList dits = Coupe(etabli, debranche, position);
            const QByteArray venu = Venu(etabli, position);
            QStringList attendus;
            if (debranche)
                attendus =
                    QStringList(ErreurN(8020)) + (emission || venu.isEmpty() ? QStringList() : QStringList(Offre));
            else if (emission || etabli.genre == Genre::Fichier)
                attendus = {emission ? ErreurN(8018) : AnnuleDite};
            QCOMPARE(dits, attendus);
            QCOMPARE(frmPrinc->Text1->Text(), volet);
            if (emission)
                QCOMPARE(etabli.ligne->ecrits, etabli.charge.attendu.left(position));
            else if (banc)
                QCOMPARE(etabli.Disque(), position < 70 ? QByteArray() : etabli.charge.pieces[0] + "\r\n");
            else
                QCOMPARE(etabli.Disque() + etabli.ligne->ecrits, QByteArray("ANCIEN"));
            if (dits.contains(Offre))
                QCOMPARE(etabli.poste.Lit("sauve.txt"), venu);
            etabli.VerifiePret();
            if (QTest::currentTestFailed())
                return;
        }
    }
}

// The plug is pulled while the operator of a bench decides: another tool is not to be had, but the end is, and either
// way the disk has the tool that came.
void TestPannes::BancDebranche()
{
    for (const bool encore : {true, false}) {
        Etabli etabli(Genre::Banc);
        const QByteArray outil = etabli.charge.pieces[0];
        const QStringList dits = Titres(etabli.Joue(outil.size(), [&](const QDialog &transfert) {
            if (NbJauges != 1 || LigneJauge != 2)
                return false;
            etabli.ligne->Debranche();
            Pilote::Presse(transfert, encore ? "Command5" : "Command6");
            return true;
        }));
        QCOMPARE(dits, encore ? QStringList(ErreurN(8020)) : QStringList());
        QCOMPARE(etabli.Disque(), encore ? outil + "\r\n" : ChargeDe(Genre::Banc, {"1 101.5 12 D"}).attendu);
        etabli.VerifiePret();
    }
}

// Between two transfers another program has taken the port, or the adapter has gone. A reception waits until the
// operator cancels, a sending ends by itself; one that has nothing to send does not even notice.
void TestPannes::PortPris()
{
    QFETCH(int, rang);
    Etabli etabli(Genres[rang]);
    const Charge charge = etabli.charge;
    for (const auto &[refus, vide] : {std::pair{8005, false}, {8002, false}, {8002, true}}) {
        etabli.refus = refus;
        if (vide)
            etabli.charge.texte.clear();
        const QStringList dits = Titres(etabli.Joue(0, [&](QDialog &transfert) {
            if (!EstEmission(etabli.genre))
                Pilote::Annule(etabli.genre, transfert);
            return true;
        }));
        QStringList attendus{ErreurN(refus)};
        if (etabli.genre == Genre::LigneParLigne || (etabli.genre == Genre::FichierEntier && !vide))
            attendus << ErreurN(8018);
        else if (etabli.genre == Genre::Fichier)
            attendus << AnnuleDite;
        QCOMPARE(dits, attendus);
        etabli.charge = charge;
        etabli.VerifiePret();
    }
}

// A parity or framing error, a break, lost characters behind every character of a reception: it goes on, and nothing
// that came is touched. What waits when the system has lost some goes with them, but for a bench.
void TestPannes::LigneFautive()
{
    QFETCH(int, rang);
    Etabli etabli(Genres[rang]);
    QList<int> evenements;
    connect(frmPrinc->MSComm1, &MSComm::OnComm, this, [&] { evenements << frmPrinc->MSComm1->CommEvent(); });
    for (const auto &[code, compteur] : {std::pair{1009, &CompteursLigne::parite},
                                         {1004, &CompteursLigne::trame},
                                         {1001, &CompteursLigne::pauses},
                                         {1006, &CompteursLigne::cadence},
                                         {1008, &CompteursLigne::debordements}}) {
        QByteArray file;
        qsizetype fautes = 0;
        evenements.clear();
        bool envoye = false;
        const int cran = etabli.genre == Genre::Banc ? 24 : 1;
        const auto deroulement = etabli.pilote.Joue(etabli.genre, etabli.charge, [&](const QDialog &transfert) {
            if (file.isEmpty() && !envoye)
                etabli.pilote.Poursuit(transfert, [&](const QByteArray &piece) { file = piece; });
            if ((file.isEmpty() && !envoye) || !etabli.Pris() || evenements.count(code) < fautes)
                return;
            envoye = !envoye;
            if (envoye) {
                etabli.ligne->Envoie(file.left(cran), {0});
                file.remove(0, cran);
                return;
            }
            ++fautes;
            ++((*etabli.ligne).compteurs.*compteur);
            if (code == 1008 && etabli.genre != Genre::Banc) {
                etabli.ligne->Envoie("Z", {0}); // before the reception has its next turn
                QVERIFY(QTest::qWaitFor([&] { return evenements.count(code) == fautes; }));
            }
        });
        QCOMPARE(Titres(deroulement), QStringList());
        QCOMPARE(etabli.Disque(), etabli.charge.attendu);
        QVERIFY(fautes >= 5);
    }
}

// CTS low for a minute behind every character that goes out: nothing goes meanwhile, nothing is told, nothing is lost.
void TestPannes::Retenue()
{
    QFETCH(int, rang);
    Etabli etabli(Genres[rang]);
    ParamCom.ControleFlux = 2;
    for (qsizetype position = 0; position < etabli.charge.attendu.size(); ++position) {
        etabli.ligne = std::make_shared<Scenario>();
        etabli.ligne->accepte = int(position);
        int regards = 0;
        const auto deroulement = etabli.Joue(position, [&](const QDialog &) {
            etabli.ligne->etats->cts = regards != 0 && etabli.ligne->regards > regards + 3;
            if (frmPrinc->MSComm1->CTSHolding())
                return false;
            if (regards == 0) {
                avance += std::chrono::minutes(1);
                etabli.ligne->accepte = 1'000'000;
                regards = std::max(1, etabli.ligne->regards);
            }
            return etabli.ligne->etats->cts;
        });
        QCOMPARE(Titres(deroulement), QStringList());
        QCOMPARE(etabli.ligne->ecrits, etabli.charge.attendu);
    }
    etabli.VerifiePret();
}

// The machine is reset in the midst of a transfer: a break and DSR tell of it, the line stays silent. A sending goes
// on into it; the operator cancels a reception, which leaves nothing.
void TestPannes::MachineRelancee()
{
    QFETCH(int, rang);
    Etabli etabli(Genres[rang]);
    const bool emission = EstEmission(etabli.genre);
    etabli.ligne->accepte = emission ? 2 : 100;
    int etape = 0;
    const QStringList dits = Titres(etabli.Joue(2, [&](const QDialog &transfert) {
        etabli.ligne->compteurs.pauses = 1;
        etabli.ligne->etats->dsr = etape > 0;
        if (frmPrinc->MSComm1->DSRHolding() != (etape > 0))
            return false;
        etabli.ligne->accepte = 100;
        if (etape > 0 && !emission)
            Pilote::Annule(etabli.genre, transfert);
        return ++etape == 2;
    }));
    QCOMPARE(dits, etabli.genre == Genre::Fichier ? QStringList(AnnuleDite) : QStringList());
    QCOMPARE(etabli.ligne->ecrits, emission ? etabli.charge.attendu : QByteArray());
    if (!emission)
        QCOMPARE(etabli.Disque(), QByteArray(etabli.genre == Genre::Banc ? "" : "ANCIEN"));
    etabli.VerifiePret();
}

// The disk is full, the folder may not be written or has gone, when the file of a reception is to be written: told, and
// what came can be saved elsewhere.
void TestPannes::Disque()
{
    for (const Genre genre : {Genre::Caractere, Genre::Ligne, Genre::Fichier, Genre::Banc}) {
        Etabli etabli(genre);
        const QString bon = etabli.poste.Dossier();
        // the folder, or what the file is a link to
        const std::pair<const char *, const char *> defauts[] = {
            {nullptr, "/dev/full"}, {"/sys", nullptr}, {"/absent", nullptr}};
        for (const auto &[dossier, cible] : defauts) {
            ParamCom.DosRecep = DosJauge = dossier ? QString::fromLatin1(dossier) : bon;
            QFile::remove(etabli.pilote.Chemin(genre));
            if (cible)
                QFile::link(QLatin1String(cible), etabli.pilote.Chemin(genre));
            const auto deroulement = etabli.Joue();
            QVERIFY(!deroulement.avis.isEmpty() && deroulement.avis[0].titre.startsWith(u"Erreur N°: "_s));
            if (genre != Genre::Banc || cible) { // a bench knows before the first tool
                QCOMPARE(deroulement.avis.size(), 2);
                QCOMPARE(etabli.poste.Lit("sauve.txt"), genre == Genre::Banc ? etabli.charge.pieces[0] + "\r\n"
                                                                             : Venu(etabli, etabli.Envoye().size()));
            }
            QFile::remove(etabli.pilote.Chemin(genre));
            ParamCom.DosRecep = DosJauge = bon;
            etabli.VerifiePret();
        }
    }
}

QTEST_MAIN(TestPannes)
#include "TestPannes.moc"
