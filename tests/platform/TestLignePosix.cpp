#include "BoutTerminal.h"
#include "platform/Erreur.h"
#include "platform/ErreurPort.h"
#include "platform/LignePosix.h"

#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/stat.h>
#include <sys/time.h>
#include <termios.h>
#include <unistd.h>

namespace {

template <typename Operation>
int NumeroErreur(Operation operation)
{
    try {
        operation();
    } catch (const Erreur &erreur) {
        return erreur.Numero();
    }
    return 0;
}

int NumeroOuverture(const QString &chemin)
{
    return NumeroErreur([&] { LignePosix ligne(chemin); });
}

QByteArray TousLesOctets()
{
    QByteArray octets;
    for (int i = 0; i < 256; ++i)
        octets.append(static_cast<char>(i));
    return octets;
}

QByteArray LitTout(LignePosix &ligne, qsizetype attendus)
{
    QByteArray lus;
    const bool venus = QTest::qWaitFor([&] { return (lus += ligne.Lit(100).octets).size() >= attendus; });
    return venus ? lus : QByteArray("too few: ") + lus;
}

} // namespace

class TestLignePosix : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void ouvertureRefusee();
    void droitsManquants();
    void usageExclusif();
    void reglages_data();
    void reglages();
    void octetsExacts_data();
    void octetsExacts();
    void signaux();
    void xoffOublie();
    void machineEteinte();
};

void TestLignePosix::ouvertureRefusee()
{
    const QTemporaryDir dossier;
    const QString fichier = dossier.filePath(QStringLiteral("Com1"));
    QCOMPARE(NumeroOuverture(fichier), ErreurPort::Inconnu);
    QVERIFY(QFile(fichier).open(QIODevice::WriteOnly));
    QCOMPARE(NumeroOuverture(fichier), ErreurPort::PasUneLigne);
    QCOMPARE(NumeroOuverture(dossier.path()), ErreurPort::PasUneLigne);
    QCOMPARE(NumeroOuverture(QStringLiteral("/dev/null")), ErreurPort::PasUneLigne);
    QVERIFY(QFile::link(dossier.filePath(QStringLiteral("nowhere")), dossier.filePath(QStringLiteral("Com2"))));
    QCOMPARE(NumeroOuverture(dossier.filePath(QStringLiteral("Com2"))), ErreurPort::Inconnu);
}

void TestLignePosix::droitsManquants()
{
    const BoutTerminal machine;
    QCOMPARE(chmod(qPrintable(machine.Chemin()), 0), 0);
    const uid_t avant = geteuid();
    if (avant == 0)
        QCOMPARE(seteuid(65534), 0);
    QString description;
    int numero = 0;
    try {
        const LignePosix ligne(machine.Chemin());
    } catch (const Erreur &erreur) {
        numero = erreur.Numero();
        description = erreur.Description();
    }
    QCOMPARE(seteuid(avant), 0);
    QCOMPARE(numero, Erreur::AccesRefuse);
    QVERIFY(description.contains(machine.Chemin()));
}

void TestLignePosix::usageExclusif()
{
    const BoutTerminal machine;
    {
        const LignePosix ligne(machine.Chemin());
        QCOMPARE(NumeroOuverture(machine.Chemin()), ErreurPort::Occupe);
    }
    QCOMPARE(NumeroOuverture(machine.Chemin()), 0);
}

void TestLignePosix::reglages_data()
{
    QTest::addColumn<ControleFlux>("flux");
    QTest::addColumn<bool>("xonXoff");
    for (const char *texte : {"9600,n,8,1", "14400,e,7,2", "56000,m,5,1.5", "128000,s,8,1", "256000,o,6,1"}) {
        QTest::addRow("%s", texte) << ControleFlux::Aucun << false;
        QTest::addRow("%s, XON/XOFF", texte) << ControleFlux::XonXoff << true;
        QTest::addRow("%s, RTS/CTS", texte) << ControleFlux::RtsCts << false;
        QTest::addRow("%s, both", texte) << ControleFlux::RtsXonXoff << true;
    }
}

// What a pseudo-terminal drops is no failure; what it keeps must be there.
void TestLignePosix::reglages()
{
    QFETCH(ControleFlux, flux);
    QFETCH(bool, xonXoff);
    const BoutTerminal machine;
    LignePosix ligne(machine.Chemin());
    ReglagePort reglage = LitReglagePort(QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(','), 0, 3));
    reglage.flux = flux;
    ligne.Regle(reglage);
    termios terminal{};
    QCOMPARE(tcgetattr(machine.Descripteur(), &terminal), 0);
    QCOMPARE(terminal.c_iflag & (IXON | IXOFF | IXANY), tcflag_t(xonXoff ? IXON | IXOFF : 0));
    QCOMPARE(terminal.c_iflag & (ICRNL | INLCR | IGNCR | ISTRIP), tcflag_t(0));
    QCOMPARE(terminal.c_oflag & OPOST, tcflag_t(0));
    QCOMPARE(terminal.c_lflag & (ICANON | ECHO | ISIG), tcflag_t(0));
    QVERIFY(!ligne.Etats());
    QCOMPARE(ligne.NonEmis(), 0);
}

void TestLignePosix::octetsExacts_data()
{
    QTest::addColumn<ControleFlux>("flux");
    QTest::addColumn<QByteArray>("manquants"); // taken by the flow control
    QTest::newRow("none") << ControleFlux::Aucun << QByteArray();
    QTest::newRow("RTS/CTS") << ControleFlux::RtsCts << QByteArray();
    QTest::newRow("XON/XOFF") << ControleFlux::XonXoff << QByteArray("\x11\x13");
}

void TestLignePosix::octetsExacts()
{
    QFETCH(ControleFlux, flux);
    QFETCH(QByteArray, manquants);
    const BoutTerminal machine;
    LignePosix ligne(machine.Chemin());
    ReglagePort reglage;
    reglage.flux = flux;
    ligne.Regle(reglage);
    QVERIFY(ligne.Lit(100).octets.isEmpty());

    const QByteArray tous = TousLesOctets();
    QCOMPARE(ligne.Ecrit(tous.constData(), 256), 256);
    QByteArray venus;
    QTRY_VERIFY((venus += machine.Prend()).size() >= 256);
    QCOMPARE(venus, tous);

    machine.Envoie(tous);
    QByteArray attendus = tous;
    attendus.removeIf([&](char octet) { return manquants.contains(octet); });
    QCOMPARE(LitTout(ligne, attendus.size()), attendus);
}

// Signals that interrupt the system's calls lose and double nothing.
void TestLignePosix::signaux()
{
    struct sigaction action
    {
    };
    action.sa_handler = [](int) {};
    sigaction(SIGALRM, &action, nullptr);
    itimerval periode{};
    periode.it_value.tv_usec = periode.it_interval.tv_usec = 150;
    setitimer(ITIMER_REAL, &periode, nullptr);

    const BoutTerminal machine;
    LignePosix ligne(machine.Chemin());
    ligne.Regle(ReglagePort());
    const QByteArray texte = TousLesOctets().repeated(400);
    QByteArray venus;
    QByteArray lus;
    qsizetype ecrits = 0;
    qsizetype envoyes = 0;
    const auto echange = [&] {
        ecrits += ligne.Ecrit(texte.constData() + ecrits, static_cast<int>(texte.size() - ecrits));
        venus += machine.Prend();
        const ssize_t n = write(machine.Descripteur(), texte.constData() + envoyes,
                                size_t(qMin<qsizetype>(512, texte.size() - envoyes)));
        envoyes += n > 0 ? n : 0;
        lus += ligne.Lit(700).octets;
        return venus.size() >= texte.size() && lus.size() >= texte.size();
    };
    QDeadlineTimer limite(20000);
    while (!echange() && !limite.hasExpired()) {
    }
    periode = {};
    setitimer(ITIMER_REAL, &periode, nullptr);
    QVERIFY(venus == texte);
    QVERIFY(lus == texte);
}

void TestLignePosix::xoffOublie()
{
    const BoutTerminal machine;
    ReglagePort reglage;
    reglage.flux = ControleFlux::XonXoff;
    {
        LignePosix ligne(machine.Chemin());
        ligne.Regle(reglage);
        machine.Envoie("\x13");
        QTRY_COMPARE(ligne.Ecrit("a", 1), 0);
        ligne.Regle(reglage); // the same settings again do not let a held line go
        QCOMPARE(ligne.Ecrit("a", 1), 0);
    }
    machine.Prend();
    LignePosix ligne(machine.Chemin());
    ligne.Regle(reglage);
    QCOMPARE(ligne.Ecrit("b", 1), 1);
    QByteArray venus;
    QTRY_VERIFY(!(venus += machine.Prend()).isEmpty());
    QCOMPARE(venus, QByteArray("b"));
}

void TestLignePosix::machineEteinte()
{
    BoutTerminal machine;
    LignePosix ligne(machine.Chemin());
    ligne.Regle(ReglagePort());
    machine.Coupe();
    QCOMPARE(NumeroErreur([&] { ligne.Lit(10); }), ErreurPort::Lecture);
    QCOMPARE(NumeroErreur([&] { ligne.Ecrit("a", 1); }), ErreurPort::Lecture);
    QCOMPARE(ligne.NonEmis(), 0);
    QVERIFY(!ligne.Etats());
    ligne.JetteReception();
    ligne.JetteEmission();
    QCOMPARE(NumeroErreur([&] { ligne.Regle(ReglagePort()); }), ErreurPort::Reglage);
}

QTEST_GUILESS_MAIN(TestLignePosix)
#include "TestLignePosix.moc"
