#include "LigneScenario.h"
#include "Operateur.h"
#include "platform/Essais.h"

#include "AppelsSysteme.h"
#include "comconfig/ParamCom.h"
#include "endurance/Pilote.h"
#include "locale/Langue.h"
#include "machine/MachineSimulee.h"
#include "platform/FichierTexte.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"
#include "transfer/Transfert.h"

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype Jamais = 1'000'000;
constexpr int Offre = 0;       // to save what had come
constexpr int AnnuleDite = -1; // a cancelled reception by file
const QByteArray Fin = "\x04";

/// What the operator is told, by number.
const std::pair<int, Texte3> Dits[] = {
    {Offre, {u"Enregistrer les lignes reçues", u"Save the received lines", u"Guardar las líneas recibidas"}},
    {AnnuleDite, {u"Bouton Annuler cliqué", u"Button Cancel Clicked", u"Botón cancelar pulsado"}},
    {8002, {u"Numéro de port non valide", u"Nonvalid number of port", u"Número de puerto no válido"}},
    {8005, {u"Port déjà ouvert", u"Already open port", u"Port ya abierto"}},
    {8018,
     {u"Opération valide uniquement quand le port est ouvert", u"Operation validates only when the port is open ",
      u"Operación válida solamente cuando el puerto está abierto"}},
    {8020,
     {u"Erreur de lecture du périphérique de communication", u"Misreading of the peripheral of communication",
      u"Error de lectura del periférico de comunicación"}}};
constexpr Texte3 TitreErreur{u"Erreur N°:  %1Fermeture du port de communication",
                             u"Error N°:  %1Closing of the port of communication",
                             u"Error N°:  %1Cierre del puerto de comunicación"};

/// What was told, by number; a text that does not go with its title, in the language, counts as another.
QList<int> Numeros(const Pilote::Deroulement &deroulement)
{
    QList<int> numeros;
    for (const auto &[titre, texte] : deroulement.avis) {
        QString chiffres = titre;
        const int lu = chiffres.removeIf([](QChar c) { return !c.isDigit(); }).toInt();
        int trouve = titre == Texte(TitreErreur).arg(lu) ? lu : INT_MAX;
        for (const auto &[numero, dit] : Dits) {
            if (numero > 0 ? numero == trouve && texte != Texte(dit) : titre == Texte(dit))
                trouve = numero > 0 ? -numero : numero;
        }
        numeros << trouve;
    }
    return numeros;
}

QByteArrayList Lignes(Genre genre)
{
    return genre == Genre::Banc ? QByteArrayList{"1 101.5 12 D", "2 98.5 7 D"} : QByteArrayList{"AB", "C"};
}

/// What there is of a reception once that many characters have come: with it the operator goes on.
QByteArray Venu(Genre genre, const Charge &charge, qsizetype nombre)
{
    QByteArray venu = charge.pieces.join().left(nombre);
    if (genre == Genre::Banc)
        return {};
    if (venu.endsWith(Fin))
        venu.chop(1);
    return genre == Genre::Caractere && venu.endsWith('\r') ? venu.chopped(1) : venu;
}

/// A workstation in one of the languages, whose operator plays transfers of a kind with a machine on a scripted line.
class Etabli
{
public:
    Etabli(Genre leGenre, int langue)
        : genre(leGenre)
        , charge(ChargeDe(leGenre, Lignes(leGenre)))
        , poste(langue)
        , pilote(poste)
    {
        frmPrinc->MSComm1->setFabrique([this](int) -> std::unique_ptr<LigneSerie> {
            if (refus != 0)
                throw Erreur(refus, u"refused"_s);
            return std::make_unique<LigneScenario>(ligne);
        });
        frmPrinc->UpdateTimer.setInterval(1);
        pilote.Regle(genre);
        pilote.Sauvegarde = poste.Chemin("sauve.txt");
        poste.Ecrit("PIECE.ISO", "ANCIEN");
    }

    using Faute = std::function<bool(const QDialog &transfert)>;

    /// A transfer on a line of its own. Once position characters have crossed it, faute is called again and again
    /// until it says that it is over; the rest follows.
    Pilote::Deroulement Joue(qsizetype laPosition = Jamais, const Faute &laFaute = {})
    {
        QFile::remove(pilote.Sauvegarde);
        position = laPosition;
        faute = laFaute;
        passes = 0;
        reste.clear();
        return pilote.Joue(genre, charge, [this](const QDialog &transfert) { Pendant(transfert); });
    }
    /// The same, unplugged at that position. The answer to the end of a reception counts as a position too.
    Pilote::Deroulement Debranche(qsizetype laPosition)
    {
        ligne = std::make_shared<Scenario>();
        const bool reponse = laPosition == charge.pieces.join().size();
        ligne->casse = EstEmission(genre) || reponse;
        ligne->accepte = int(EstEmission(genre) ? laPosition : 0);
        return Joue(ligne->casse ? Jamais : laPosition, [this](const QDialog &) {
            ligne->Debranche();
            return true;
        });
    }

    /// Lamps, port and pane as they have to be between two transfers, and the next transfer is whole.
    void VerifiePret()
    {
        QVERIFY(!PortOuvert && !frmPrinc->MSComm1->PortOpen() && !ligne->ouverte && !TransfertEnCours());
        QTRY_VERIFY(frmPrinc->shpPortOpen->FillColor() == Lampe::Rouge &&
                    frmPrinc->shpSend->FillColor() == Lampe::Rouge &&
                    frmPrinc->shpReceive->FillColor() == Lampe::Rouge);
        QVERIFY(frmPrinc->Text2->isHidden());
        ligne = std::make_shared<Scenario>();
        refus = 0;
        QCOMPARE(Numeros(Joue()), QList<int>());
        QCOMPARE(EstEmission(genre) ? ligne->ecrits : Disque(), charge.attendu);
        QCOMPARE(ligne->ecrits.right(1), genre == Genre::Banc ? QByteArray() : Fin);
    }

    QByteArray Disque() const { return poste.Lit(genre == Genre::Banc ? "PIECE.COR" : "PIECE.ISO"); }
    /// All that came is with the program.
    bool Pris() const
    {
        bool pris = false;
        Saute([&] { pris = PortOuvert && ligne->EnAttente() == 0 && frmPrinc->MSComm1->InBufferCount() == 0; });
        return pris;
    }

    const Genre genre;
    const Charge charge;
    const Poste poste;
    Pilote pilote;
    std::shared_ptr<Scenario> ligne = std::make_shared<Scenario>();
    int refus = 0; ///< number with which the port is refused

private:
    void Pendant(const QDialog &transfert)
    {
        const bool atteint = refus != 0 || (EstEmission(genre) ? PortOuvert && ligne->ecrits.size() == position
                                                               : Pris() && passes >= position);
        if (faute && atteint && faute(transfert)) {
            faute = nullptr;
            ligne->Envoie(reste);
        } else if (!faute || passes < position) {
            pilote.Poursuit(transfert, [this](const QByteArray &piece) {
                const qsizetype coupe = faute ? std::min(piece.size(), position - passes) : piece.size();
                ligne->Envoie(piece.left(coupe));
                reste = piece.mid(coupe);
                passes += coupe;
            });
        }
    }

    qsizetype position = Jamais;
    Faute faute;
    qsizetype passes = 0;
    QByteArray reste;
};

/// A row for each kind from premier to dernier, as Genre counts them.
void Rangs(int premier = 0, int dernier = 5)
{
    QTest::addColumn<int>("rang");
    const char *const noms[] = {"whole file", "line by line", "by character", "by line", "by file", "bench"};
    for (int rang = premier; rang <= dernier; ++rang)
        QTest::newRow(noms[rang]) << rang;
}

} // namespace

/// Whatever happens to the line or to the disk in the midst of a transfer: it is told in the operator's language, the
/// port is closed, what had come is whole, and the next transfer goes through as if nothing had been.
class TestPannes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Debranche_data() { Rangs(); }
    void Debranche();
    void PortPris_data() { Rangs(); }
    void PortPris();
    void LigneFautive_data() { Rangs(2); }
    void LigneFautive();
    void Retenue_data() { Rangs(0, 1); }
    void Retenue();
    void MachineRelancee_data() { Rangs(); }
    void MachineRelancee();
    void XoffPerdu();
    void AppelsInterrompus_data() { Rangs(); }
    void AppelsInterrompus();
    void AppelsRates();
    void Disque();
};

// The plug is pulled at every character, and while the machine is given its answer. What the disk had is still there,
// and what had come can be saved to the last character.
void TestPannes::Debranche()
{
    QFETCH(int, rang);
    Etabli etabli(Genres[rang], rang % 3);
    const bool emission = EstEmission(etabli.genre), banc = etabli.genre == Genre::Banc;
    const qsizetype total = emission ? etabli.charge.attendu.size() : etabli.charge.pieces.join().size();
    for (qsizetype position = 0; position <= total; position += banc ? 23 : 1) {
        if (emission && position == total)
            continue;
        etabli.poste.Ecrit("PIECE.ISO", "ANCIEN");
        const QString volet =
            EstEmission(etabli.genre) ? QString::fromLatin1(etabli.charge.texte) : frmPrinc->Text1->Text();
        const QList<int> dits = Numeros(etabli.Debranche(position));
        const QByteArray venu = Venu(etabli.genre, etabli.charge, position);
        QCOMPARE(dits, emission || venu.isEmpty() ? QList<int>{8020} : QList<int>({8020, Offre}));
        QCOMPARE(frmPrinc->Text1->Text(), volet);
        if (emission)
            QCOMPARE(etabli.ligne->ecrits, etabli.charge.attendu.left(position));
        else if (banc)
            QCOMPARE(etabli.Disque(), position < 70 ? QByteArray() : etabli.charge.pieces[0] + "\r\n");
        else
            QCOMPARE(etabli.Disque(), QByteArray("ANCIEN"));
        if (dits.contains(Offre))
            QCOMPARE(etabli.poste.Lit("sauve.txt"), venu);
        etabli.VerifiePret();
        if (QTest::currentTestFailed())
            return;
    }
}

// Between two transfers another program has taken the port, or the adapter has gone. A reception waits until the
// operator cancels, a sending ends by itself.
void TestPannes::PortPris()
{
    QFETCH(int, rang);
    Etabli etabli(Genres[rang], (rang + 1) % 3);
    for (const int refus : {8005, 8002}) {
        etabli.refus = refus;
        const QList<int> dits = Numeros(etabli.Joue(0, [&](const QDialog &transfert) {
            if (!EstEmission(etabli.genre))
                Pilote::Annule(etabli.genre, transfert);
            return true;
        }));
        QList<int> attendus{refus};
        if (EstEmission(etabli.genre))
            attendus << 8018;
        else if (etabli.genre == Genre::Fichier)
            attendus << AnnuleDite;
        QCOMPARE(dits, attendus);
        etabli.VerifiePret();
    }
}

// A parity or framing error, a break, lost characters behind every character of a reception: it goes on, and nothing
// that came is touched.
void TestPannes::LigneFautive()
{
    QFETCH(int, rang);
    Etabli etabli(Genres[rang], (rang + 2) % 3);
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
            if (envoye) {
                ++fautes;
                ++((*etabli.ligne).compteurs.*compteur);
            } else {
                etabli.ligne->Envoie(file.left(cran), {0});
                file.remove(0, cran);
            }
            envoye = !envoye;
        });
        QCOMPARE(Numeros(deroulement), QList<int>());
        QCOMPARE(etabli.Disque(), etabli.charge.attendu);
        QVERIFY(fautes >= 5);
    }
    etabli.VerifiePret();
}

// CTS low for a minute behind every character that goes out: nothing goes meanwhile, nothing is told, nothing is lost.
void TestPannes::Retenue()
{
    QFETCH(int, rang);
    Etabli etabli(Genres[rang], 0);
    ParamCom.ControleFlux = 2;
    HorlogeAvancee horloge;
    for (qsizetype position = 0; position < etabli.charge.attendu.size(); ++position) {
        etabli.ligne = std::make_shared<Scenario>();
        etabli.ligne->accepte = int(position);
        int regards = 0;
        const auto deroulement = etabli.Joue(position, [&](const QDialog &) {
            etabli.ligne->etats->cts = regards != 0 && etabli.ligne->regards > regards + 3;
            if (frmPrinc->MSComm1->CTSHolding())
                return false;
            if (regards == 0) {
                horloge.Avance(std::chrono::minutes(1));
                etabli.ligne->accepte = 1'000'000;
                regards = std::max(1, etabli.ligne->regards);
            }
            return etabli.ligne->etats->cts;
        });
        QCOMPARE(Numeros(deroulement), QList<int>());
        QCOMPARE(etabli.ligne->ecrits, etabli.charge.attendu);
    }
    etabli.VerifiePret();
}

// The machine is reset in the midst of a transfer: a break and DSR tell of it, the line stays silent. A sending goes
// on into it; the operator cancels a reception, which leaves nothing.
void TestPannes::MachineRelancee()
{
    QFETCH(int, rang);
    Etabli etabli(Genres[rang], rang % 3);
    const bool emission = EstEmission(etabli.genre);
    etabli.ligne->accepte = emission ? 2 : 100;
    int etape = 0;
    const QList<int> dits = Numeros(etabli.Joue(2, [&](const QDialog &transfert) {
        etabli.ligne->compteurs.pauses = 1;
        etabli.ligne->etats->dsr = etape > 0;
        if (frmPrinc->MSComm1->DSRHolding() != (etape > 0))
            return false;
        etabli.ligne->accepte = 100;
        if (etape > 0 && !emission)
            Pilote::Annule(etabli.genre, transfert);
        return ++etape == 2;
    }));
    QCOMPARE(dits, etabli.genre == Genre::Fichier ? QList<int>{AnnuleDite} : QList<int>());
    QCOMPARE(etabli.ligne->ecrits, emission ? etabli.charge.attendu : QByteArray());
    if (!emission)
        QCOMPARE(etabli.Disque(), QByteArray(etabli.genre == Genre::Banc ? "" : "ANCIEN"));
    etabli.VerifiePret();
}

namespace {

/// One transfer over a real line of the system.
struct LigneReelle
{
    explicit LigneReelle(Genre leGenre, const ReglageMachine &reglage = {{0, 20}, {}, {}, Fin, true})
        : genre(leGenre)
        , charge(ChargeDe(leGenre, Lignes(leGenre)))
        , pilote(poste)
        , machine(reglage)
    {
        poste.Relie(2, machine.Chemin());
        pilote.Regle(genre);
        pilote.Sauvegarde = poste.Chemin("sauve.txt");
    }
    QList<int> Joue()
    {
        QFile::remove(pilote.Chemin(genre));
        return Numeros(pilote.Joue(genre, charge, [this](const QDialog &transfert) {
            pilote.Poursuit(transfert, [this](const QByteArray &piece) {
                Envoi envoi{piece};
                envoi.SansFin = true;
                envoi.Salve = genre == Genre::Banc;
                machine.Emet(envoi);
            });
        }));
    }
    void VerifieEntier()
    {
        QCOMPARE(Joue(), QList<int>());
        if (!EstEmission(genre)) {
            QCOMPARE(LitOctets(pilote.Chemin(genre)), charge.attendu);
            QVERIFY(genre == Genre::Banc ||
                    machine.Attend([](const EtatMachine &etat) { return etat.Envoi.Reponse == Retour::Juste; }));
            return;
        }
        QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Programmes > 0; }));
        QCOMPARE(machine.Programmes().back().Brut, charge.attendu);
    }

    const Genre genre;
    Charge charge;
    const Poste poste{0};
    Pilote pilote;
    MachineSimulee machine;
};

} // namespace

// The XOFF of a slow machine does not reach the PC: the machine is overrun, and says so itself; the PC gave each
// character once, and the next machine gets them all.
void TestPannes::XoffPerdu()
{
    LigneReelle reelle(Genre::FichierEntier, {{115200, 20}, {16, 12, 4, 100, {}}, {}, Fin, false});
    reelle.charge = ChargeDe(reelle.genre, {QByteArray(200, 'N')});
    QCOMPARE(reelle.Joue(), QList<int>());
    QVERIFY(reelle.machine.Attend([](const EtatMachine &etat) { return etat.Recus == 201; }));
    QVERIFY(reelle.machine.Etat().Perdus > 0 && reelle.machine.Programmes().empty());
    MachineSimulee rapide;
    reelle.poste.Relie(2, rapide.Chemin());
    QCOMPARE(reelle.Joue(), QList<int>());
    QVERIFY(rapide.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }));
    QCOMPARE(rapide.Programmes()[0].Brut, reelle.charge.attendu);
}

// Signals interrupt the calls to the system, it takes and gives one character at a time, or none for now: exact all the
// same, for every byte that there is.
void TestPannes::AppelsInterrompus()
{
    QFETCH(int, rang);
    const QByteArray fin = Genres[rang] == Genre::Fichier ? Fin + Fin : Fin;
    LigneReelle reelle(Genres[rang], {{0, 20}, {}, {}, fin, false});
    ParamCom.ControleFlux = 0;
    if (reelle.genre == Genre::Fichier) {
        ParamCom.TypeFinTrans = 2;
        ParamCom.NbCarFinTrans = 2;
        ParamCom.CarFinTrans[1] = ParamCom.CarFinTrans[2] = 4;
        BatirChaines();
        reelle.charge = {{}, {TousLesOctets() + fin}, TousLesOctets() + "\r\n"};
    }
    const Tempete tempete;
    reelle.VerifieEntier();
    QVERIFY(tempete.Coups() > 10);
}

// Each call of the line fails: told, nothing left open, and ready.
void TestPannes::AppelsRates()
{
    const auto ouverts = [] { return QDir(u"/proc/self/fd"_s).count(); };
    const std::tuple<Appel, int, QList<int>> cas[] = {{Appel::Ouvre, ENXIO, {8002, 8018}},
                                                      {Appel::Ouvre, EBUSY, {8005, 8018}},
                                                      {Appel::Verrouille, EWOULDBLOCK, {8005, 8018}},
                                                      {Appel::Reserve, EBUSY, {8005, 8018}},
                                                      {Appel::Interroge, ENOTTY, {8006, 8018}},
                                                      {Appel::Regle, EIO, {8002, 8018}},
                                                      {Appel::Regle2, EINVAL, {8015, 8018}},
                                                      {Appel::Ecrit, EIO, {8020}},
                                                      {Appel::Lit, EIO, {8020}}};
    for (const auto &[appel, erreur, dits] : cas) {
        LigneReelle reelle(appel == Appel::Lit ? Genre::Caractere : Genre::LigneParLigne);
        const auto avant = ouverts();
        {
            const Rate rate(appel, erreur);
            QCOMPARE(reelle.Joue(), dits);
        }
        QCOMPARE(ouverts(), avant);
        reelle.machine.RemiseAZero();
        reelle.VerifieEntier();
        if (QTest::currentTestFailed())
            return;
    }
}

// The disk is full, the folder may not be written or has gone, when the file of a reception is to be written: told, and
// what came can be saved elsewhere.
void TestPannes::Disque()
{
    for (const Genre genre : {Genre::Caractere, Genre::Ligne, Genre::Fichier, Genre::Banc}) {
        Etabli etabli(genre, 0);
        const QString bon = etabli.poste.Dossier();
        // the folder, or what the file is a link to
        const std::pair<const char *, const char *> defauts[] = {
            {nullptr, "/dev/full"}, {"/sys", nullptr}, {"/absent", nullptr}};
        for (const auto &[dossier, cible] : defauts) {
            ParamCom.DosRecep = DosJauge = dossier ? QString::fromLatin1(dossier) : bon;
            QFile::remove(etabli.pilote.Chemin(genre));
            if (cible)
                QFile::link(QLatin1String(cible), etabli.pilote.Chemin(genre));
            etabli.ligne = std::make_shared<Scenario>();
            const auto deroulement = etabli.Joue();
            QVERIFY(!deroulement.avis.isEmpty() && deroulement.avis[0].titre.startsWith(u"Erreur N°: "_s));
            if (genre != Genre::Banc || cible) { // a bench knows before the first tool
                QCOMPARE(deroulement.avis.size(), 2);
                const QByteArray venu = Venu(genre, etabli.charge, Jamais);
                QCOMPARE(etabli.poste.Lit("sauve.txt"), genre == Genre::Banc ? etabli.charge.pieces[0] + "\r\n" : venu);
            }
            QFile::remove(etabli.pilote.Chemin(genre));
            ParamCom.DosRecep = DosJauge = bon;
            etabli.VerifiePret();
        }
    }
}

QTEST_MAIN(TestPannes)
#include "TestPannes.moc"
