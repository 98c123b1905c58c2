#include "Essais.h"
#include "machine/PaireTerminaux.h"
#include "platform/serie/AppelsSysteme.h"
#include "platform/serie/DecodeurMarques.h"
#include "platform/serie/ErreurPort.h"
#include "platform/serie/posix/LignePosix.h"
#include "platform/serie/posix/TerminalPosix.h"

#include <QDir>
#include <QTemporaryDir>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

namespace {

int NumeroOuverture(const QString &chemin)
{
    return NumeroErreur([&] { LignePosix ligne(chemin); });
}

const std::tuple<const char *, int, QByteArrayList> Refus[] = {
    {"speed", ErreurPort::Vitesse, {"", "rapide,n,8,1", "0,n,8,1", "-9600,n,8,1", "49,n,8,1", "99999999999,n,8,1"}},
    {"data bits", ErreurPort::BitsDonnees, {"9600,n,4,1", "9600,n,9,1", "9600,n,,1"}},
    {"the rest",
     ErreurPort::Reglage,
     {"9600,x,8,1", "9600,,8,1", "9600,n,8", "9600,n,8,1.5", "9600,n,5,2", "9600,n,8,1,1"}}};

/// What comes from the driver, the characters in it and the places of those that are marked.
const std::tuple<const char *, const char *, const char *, QList<qsizetype>> Marques[] = {
    {"a doubled FF", "61 FF FF 00 62", "61 FF 00 62", {}},
    {"a wrong character", "61 FF 00 58 62", "61 58 62", {1}},
    {"a break, and a wrong FF", "FF 00 00 FF 00 FF", "00 FF", {0, 1}},
    {"an FF that is not doubled", "FF 61", "FF 61", {}}};

const std::tuple<const char *, Appel, int, int> AppelsRates[] = {
    {"open, no device", Appel::Ouvre, ENXIO, ErreurPort::Inconnu},
    {"open, held", Appel::Ouvre, EBUSY, ErreurPort::Occupe},
    {"no terminal", Appel::Interroge, ENOTTY, ErreurPort::PasUneLigne},
    {"settings", Appel::Regle, EIO, ErreurPort::Inconnu},
    {"write", Appel::Ecrit, EIO, ErreurPort::Lecture},
    {"read", Appel::Lit, EIO, ErreurPort::Lecture}};

/// Settings, and the characters that the flow control takes.
const std::tuple<const char *, ControleFlux, QByteArray> Reglages[] = {
    {"9600,n,8,1", ControleFlux::Aucun, ""},
    {"128000,s,8,1", ControleFlux::XonXoff, "\x11\x13"},
    {"14400,e,7,2", ControleFlux::RtsXonXoff, "\x11\x13"}};

/// The speed that the device makes of the one asked for, the settings, the number.
const std::tuple<const char *, unsigned, const char *, int> Ecarts[] = {
    {"7 data bits", 0, "9600,n,7,1", ErreurPort::BitsDonnees},
    {"parity", 0, "9600,e,8,1", ErreurPort::Reglage},
    {"3 % too slow", 9312, "9600,n,8,1", 0},
    {"more than 3 % too slow", 9311, "9600,n,8,1", ErreurPort::Vitesse}};

/// A machine on a pseudo-terminal that bears the name of a port.
struct Com2
{
    Com2() { QFile::link(machine.Chemin(), chemin); }

    PaireTerminaux machine;
    const QTemporaryDir dossier;
    const QString chemin = dossier.filePath(QStringLiteral("Com2"));
};

} // namespace

/// The line of the system, the settings as they are written down, and the marks on wrong characters.
class TestLignePosix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { systeme = {}; }

    void reglageLu()
    {
        const ReglagePort reglage = LitReglagePort(QStringLiteral(" 110 , O, 5 ,1.5"));
        QCOMPARE(reglage.vitesse, 110);
        QCOMPARE(reglage.parite, Parite::Impaire);
        QCOMPARE(reglage.BitsParCaractere(), 8.5);
    }

    void reglageFaux_data() { Rangees(Refus); }
    void reglageFaux()
    {
        const auto &[nom, numero, textes] = Rangee(Refus);
        for (const QByteArray &texte : textes) {
            const auto passe = Passe(QString::fromLatin1(texte));
            QCOMPARE(NumeroErreur([&] { LitReglagePort(QString::fromLatin1(texte)); }), numero);
        }
    }

    // Wherever a reading ends, the marks are the same.
    void marques_data() { Rangees(Marques); }
    void marques()
    {
        const auto &[nom, hexa, octets, marques] = Rangee(Marques);
        const QByteArray lus = QByteArray::fromHex(hexa);
        for (qsizetype coupe = 0; coupe <= lus.size(); ++coupe) {
            const auto passe = Passe(QStringLiteral("cut at %1").arg(coupe));
            DecodeurMarques decodeur;
            DecodeurMarques::Resultat tout = decodeur.Decode(lus.left(coupe));
            const DecodeurMarques::Resultat suite = decodeur.Decode(lus.mid(coupe));
            for (const qsizetype position : suite.marques)
                tout.marques.append(tout.octets.size() + position);
            QCOMPARE(tout.octets + suite.octets, QByteArray::fromHex(octets));
            QCOMPARE(tout.marques, marques);
        }
    }

    // A NUL and a letter are marked: taken for a break and a parity error, then both for parity errors.
    void sensDesMarques()
    {
        CompteursLigne comptes;
        const DecodeurMarques::Resultat resultat{QByteArray("a\0Xb", 4), {1, 2}};
        LectureLigne lecture = QualifieMarques(resultat, {true, true}, comptes);
        QCOMPARE(lecture.octets, QByteArray("aXb"));
        QCOMPARE(lecture.fausses, QList<qsizetype>{1});
        lecture = QualifieMarques(resultat, {false, true}, comptes);
        QCOMPARE(lecture.octets, resultat.octets);
        QCOMPARE(lecture.fausses, resultat.marques);
        lecture = QualifieMarques(resultat, {true, false}, comptes);
        QCOMPARE((QList<unsigned>{comptes.pauses, comptes.trame, comptes.parite}), (QList<unsigned>{2, 1, 3}));
    }

    void ouvertures()
    {
        const QTemporaryDir dossier;
        for (const QString &chemin : {dossier.path(), QStringLiteral("/dev/null"), QStringLiteral("/etc/passwd")})
            QCOMPARE(NumeroOuverture(chemin), ErreurPort::PasUneLigne);
        QCOMPARE(NumeroOuverture(dossier.filePath(QStringLiteral("Com1"))), ErreurPort::Inconnu);
        PaireTerminaux machine;
        {
            const LignePosix ligne(machine.Chemin());
            QCOMPARE(NumeroOuverture(machine.Chemin()), ErreurPort::Occupe);
        }
        QCOMPARE(NumeroOuverture(machine.Chemin()), 0);
        QCOMPARE(chmod(qPrintable(machine.Chemin()), 0), 0);
        const uid_t avant = geteuid();
        if (avant == 0)
            QCOMPARE(seteuid(65534), 0);
        const int numero = NumeroOuverture(machine.Chemin());
        QCOMPARE(seteuid(avant), 0);
        QCOMPARE(numero, Erreur::AccesRefuse);
    }

    // Each call to the system fails: the operation raises its number, and nothing stays open.
    void appelsRates_data() { Rangees(AppelsRates); }
    void appelsRates()
    {
        const auto &[nom, appel, erreur, numero] = Rangee(AppelsRates);
        const Com2 com2;
        const auto ouverts = [] { return QDir(QStringLiteral("/proc/self/fd")).count(); };
        const auto avant = ouverts();
        systeme = {appel, erreur};
        QCOMPARE(NumeroErreur([&] {
                     LignePosix ligne(com2.chemin);
                     ligne.Ecrit("a", 1);
                     ligne.Lit(1);
                 }),
                 numero);
        QCOMPARE(ouverts(), avant);
        systeme = {};
        LignePosix ligne(com2.chemin);
        systeme = {Appel::Regle, EINVAL};
        QCOMPARE(NumeroErreur([&] { ligne.Regle(ReglagePort()); }), ErreurPort::Reglage);
    }

    // Every byte, both ways, even when signals interrupt the calls and the system takes and gives one character at a
    // time; with XON/XOFF the flow control takes its two. What a pseudo-terminal drops of the settings is no failure;
    // what it keeps must be there.
    void octetsExacts_data() { Rangees(Reglages); }
    void octetsExacts()
    {
        const auto &[texte, flux, pris] = Rangee(Reglages);
        const QByteArray tous = TousLesOctets();
        Com2 com2;
        systeme.tempete = pris.isEmpty();
        LignePosix ligne(com2.chemin);
        ReglagePort reglage = LitReglagePort(QString::fromLatin1(texte));
        reglage.flux = flux;
        ligne.Regle(reglage);
        termios terminal{};
        QCOMPARE(tcgetattr(com2.machine.Maitre(), &terminal), 0);
        QCOMPARE(terminal.c_iflag & (IXON | IXOFF | IXANY), tcflag_t(pris.isEmpty() ? 0 : IXON | IXOFF));

        for (int ecrits = 0; ecrits < 256;)
            ecrits += ligne.Ecrit(tous.constData() + ecrits, 256 - ecrits);
        QByteArray venus;
        QTRY_VERIFY((venus += com2.machine.Lit(65536)).size() >= 256);
        QCOMPARE(venus, tous);

        QCOMPARE(com2.machine.Ecrit(tous), 256);
        QByteArray attendus = tous;
        attendus.removeIf([pris = pris](char octet) { return pris.contains(octet); });
        QByteArray lus;
        const auto toutLu = [&] {
            for (int fois = 0; fois < 1000; ++fois) // in a storm most readings give nothing
                lus += ligne.Lit(100).octets;
            return lus.size() >= attendus.size();
        };
        QTRY_VERIFY(toutLu());
        QCOMPARE(lus, attendus);
        QCOMPARE(systeme.coups > 1000, systeme.tempete);
    }

    // An XOFF that an earlier use left behind holds no one; the same settings again do not let a held line go.
    void xoffOublie()
    {
        PaireTerminaux machine;
        ReglagePort reglage;
        reglage.flux = ControleFlux::XonXoff;
        {
            LignePosix ligne(machine.Chemin());
            ligne.Regle(reglage);
            machine.Ecrit("\x13");
            QTRY_COMPARE(ligne.Ecrit("a", 1), 0);
            ligne.Regle(reglage);
            QCOMPARE(ligne.Ecrit("a", 1), 0);
        }
        machine.Lit(65536);
        LignePosix ligne(machine.Chemin());
        ligne.Regle(reglage);
        QCOMPARE(ligne.Ecrit("b", 1), 1);
        QByteArray venus;
        QTRY_VERIFY(!(venus += machine.Lit(65536)).isEmpty());
        QCOMPARE(venus, QByteArray("b"));
    }

    // What a serial chip tells, each in its place: lines, counters, and by them the sense of a mark.
    void puce()
    {
        using C = CompteursLigne;
        Com2 com2;
        Puce puce;
        systeme.puce = &puce;
        puce.compteurs = {1, 2, 3, 4, 0, 0, 5, 6, 7, 8, 9, {}};
        LignePosix ligne(com2.chemin);
        const auto etats = [&](int lignes) {
            puce.lignes = lignes;
            const EtatsLigne lus = ligne.Etats().value_or(EtatsLigne());
            return QList<bool>{lus.cts, lus.dsr, lus.cd, lus.anneau};
        };
        QCOMPARE(etats(TIOCM_CTS | TIOCM_CD | TIOCM_DTR), QList<bool>({true, false, true, false}));
        QCOMPARE(etats(TIOCM_DSR | TIOCM_RI), QList<bool>({false, true, false, true}));
        unsigned rang = 0;
        for (const auto champ :
             {&C::cts, &C::dsr, &C::anneau, &C::cd, &C::trame, &C::cadence, &C::parite, &C::pauses, &C::debordements})
            QCOMPARE(ligne.Compteurs().*champ, ++rang);

        // The driver's marks come from the other end, past the terminal's own.
        const auto recoit = [&](const char *hexa) {
            termios terminal{};
            tcgetattr(com2.machine.Maitre(), &terminal);
            terminal.c_iflag = 0;
            tcsetattr(com2.machine.Maitre(), TCSANOW, &terminal);
            com2.machine.Ecrit(QByteArray::fromHex(hexa));
            LectureLigne lecture;
            const bool venue = QTest::qWaitFor([&] { return (lecture = ligne.Lit(100)).erreur; });
            return venue ? lecture : LectureLigne();
        };
        ++puce.compteurs.parity;
        QCOMPARE(recoit("FF0058").fausses, QList<qsizetype>{0});
        ++puce.compteurs.frame;
        QCOMPARE(recoit("FF0058").fausses, QList<qsizetype>());
        QCOMPARE(recoit("FF0000").octets, QByteArray(1, '\0'));
        ++puce.compteurs.brk;
        QCOMPARE(recoit("FF0000").octets, QByteArray());
        const unsigned pauses = ligne.Compteurs().pauses;
        systeme.puce = nullptr; // a driver that does not count, or has gone
        QCOMPARE(ligne.Compteurs().pauses, pauses);
        ligne.Regle(LitReglagePort(QStringLiteral("9600,e,8,1")));
        QCOMPARE(recoit("FF0000FF0058").fausses, QList<qsizetype>{0});
        QCOMPARE(ligne.Compteurs().pauses, pauses + 1);
        QVERIFY(!ligne.Etats());
    }

    // What a device takes otherwise than asked is refused with its number, and what it had stands again.
    void reglageRefuse_data() { Rangees(Ecarts); }
    void reglageRefuse()
    {
        const auto &[nom, vitesse, texte, numero] = Rangee(Ecarts);
        const Com2 com2;
        const int ligne = open(qPrintable(com2.chemin), O_RDWR | O_NOCTTY);
        Puce puce;
        systeme.puce = &puce;
        RegleTerminal(ligne, LitReglagePort(QStringLiteral("9600,n,8,2")), true);
        puce.vitesse = vitesse;
        const ReglagePort voulu = LitReglagePort(QLatin1String(texte));
        QCOMPARE(NumeroErreur([&] { RegleTerminal(ligne, voulu, true); }), numero);
        termios terminal{};
        QCOMPARE(tcgetattr(ligne, &terminal), 0);
        QCOMPARE((terminal.c_cflag & CSTOPB) != 0, numero != 0);
        close(ligne);
    }
};

QTEST_GUILESS_MAIN(TestLignePosix)
#include "TestLignePosix.moc"
