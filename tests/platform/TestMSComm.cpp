#include "BoutTerminal.h"
#include "LigneScenario.h"
#include "platform/CedeLaMain.h"
#include "platform/MSComm.h"
#include "platform/PageCode1252.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr qsizetype AvanceA9600 = 16;

template <typename Operation>
int Numero(Operation operation)
{
    try {
        operation();
    } catch (const Erreur &erreur) {
        return erreur.Numero();
    }
    return 0;
}

QString Programme(int caracteres)
{
    QString texte;
    for (int bloc = 10; texte.size() < caracteres; bloc += 10)
        texte += QStringLiteral("N%1 G1 X%2 Z-0.5 (é ÿ)\r\n").arg(bloc).arg(bloc * 7);
    return texte.left(caracteres);
}

QString TousLesCaracteres(const QByteArray &sauf = {})
{
    QByteArray octets;
    for (int i = 0; i < 256; ++i) {
        if (!sauf.contains(static_cast<char>(i)))
            octets.append(static_cast<char>(i));
    }
    return TexteDe1252(octets);
}

} // namespace

class TestMSComm : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();

    void chemins();
    void portFerme();
    void proprietesPortOuvert();
    void ouvertureRefusee();
    void reglagesRefuses();
    void lignesDuPc();

    void lecture();
    void tamponPlein_data();
    void tamponPlein();
    void filtres();
    void seuilReception();
    void seuilEmission();
    void evenementsDeLigne_data();
    void evenementsDeLigne();
    void evenementsEmboites();

    void emissionParMorceaux_data();
    void emissionParMorceaux();
    void avanceBornee();
    void ctsRetient();
    void viderEmission();
    void fermeture();
    void debranche();

    void xoffPuisXon();
    void lignesSurTerminal();
    void receptionSurTerminal();
    void machineEteinte();

private:
    void Ouvre(int vitesse = 9600);
    void Branche(const BoutTerminal &machine);
    QString LitTout(int attendus);

    std::shared_ptr<Scenario> m_scenario;
    std::unique_ptr<MSComm> m_port;
    QList<int> m_codes;
};

void TestMSComm::init()
{
    m_scenario = std::make_shared<Scenario>();
    m_port = std::make_unique<MSComm>();
    m_port->setFabrique(LigneScenario::Fabrique(m_scenario));
    m_codes.clear();
    connect(m_port.get(), &MSComm::OnComm, this, [this] { m_codes << m_port->CommEvent(); });
}

void TestMSComm::cleanup()
{
    m_port.reset();
    QVERIFY(!m_scenario->ouverte);
}

void TestMSComm::Ouvre(int vitesse)
{
    m_port->setSettings(QStringLiteral("%1,n,8,1").arg(vitesse));
    m_port->setPortOpen(true);
}

/// Ties the control to a real pseudo-terminal, as link Com3 of the folder of ports.
void TestMSComm::Branche(const BoutTerminal &machine)
{
    static const QTemporaryDir dossier;
    const QString lien = dossier.filePath(QStringLiteral("Com3"));
    QFile::remove(lien);
    QVERIFY(QFile::link(machine.Chemin(), lien));
    m_port->setFabrique({});
    m_port->setDossierPorts(dossier.path());
    m_port->setCommPort(3);
}

QString TestMSComm::LitTout(int attendus)
{
    QString lus;
    QDeadlineTimer limite(5000);
    while (lus.size() < attendus && !limite.hasExpired()) {
        CedeLaMain();
        lus += m_port->Input();
    }
    return lus;
}

// ---- Properties

void TestMSComm::chemins()
{
    const QTemporaryDir dossier;
    QVERIFY(m_port->CheminPort(9999).isEmpty());
    m_port->setDossierPorts(dossier.path());
    QVERIFY(QFile(dossier.filePath(QStringLiteral("Com9999"))).open(QIODevice::WriteOnly));
    QCOMPARE(m_port->CheminPort(9999), dossier.filePath(QStringLiteral("Com9999")));
    m_port->setFabrique({});
    m_port->setCommPort(16);
    QVERIFY(QFile(dossier.filePath(QStringLiteral("Com16"))).open(QIODevice::WriteOnly));
    QCOMPARE(Numero([&] { m_port->setPortOpen(true); }), ErreurPort::PasUneLigne);
}

void TestMSComm::portFerme()
{
    const std::function<void()> operations[] = {
        [&] { m_port->Input(); },          [&] { m_port->Output(QStringLiteral("a")); },
        [&] { m_port->InBufferCount(); },  [&] { m_port->OutBufferCount(); },
        [&] { m_port->ViderReception(); }, [&] { m_port->ViderEmission(); },
    };
    for (const auto &operation : operations)
        QCOMPARE(Numero(operation), ErreurPort::Ferme);
    QVERIFY(!m_port->CTSHolding() && !m_port->DSRHolding() && !m_port->CDHolding());
    m_port->setPortOpen(false);
    QCOMPARE(m_port->CommEvent(), 0);
}

void TestMSComm::proprietesPortOuvert()
{
    for (const int mauvais : {0, 17, -1})
        QCOMPARE(Numero([&] { m_port->setCommPort(mauvais); }), ErreurPort::Inconnu);
    QCOMPARE(Numero([&] { m_port->setHandshaking(4); }), ErreurPort::Reglage);
    Ouvre();
    QCOMPARE(Numero([&] { m_port->setPortOpen(true); }), ErreurPort::Occupe);
    QCOMPARE(Numero([&] { m_port->setCommPort(2); }), ErreurPort::DejaOuvert);
    QCOMPARE(Numero([&] { m_port->setInBufferSize(2048); }), ErreurPort::DejaOuvert);
    QCOMPARE(Numero([&] { m_port->setOutBufferSize(2048); }), ErreurPort::DejaOuvert);
    m_port->setCommPort(1);
    m_port->setInBufferSize(1024);
    m_port->setOutBufferSize(512);
    QVERIFY(m_port->CTSHolding() && m_port->DSRHolding() && m_port->CDHolding());
    m_port->setSettings(QStringLiteral("4800,e,7,2"));
    m_port->setHandshaking(1);
    QCOMPARE(m_scenario->reglages.last().vitesse, 4800);
    QCOMPARE(m_scenario->reglages.last().flux, ControleFlux::XonXoff);
    QCOMPARE(m_port->CaracteresParSeconde(), 4800 / 11.0);
}

void TestMSComm::ouvertureRefusee()
{
    m_port->setFabrique([](int port) -> std::unique_ptr<LigneSerie> { throw Erreur(8000 + port, {}); });
    m_port->setCommPort(5);
    QCOMPARE(Numero([&] { m_port->setPortOpen(true); }), 8005);
    QVERIFY(!m_port->PortOpen());
    m_port->setFabrique(LigneScenario::Fabrique(m_scenario));
    m_scenario->refusReglage = ErreurPort::Vitesse;
    QCOMPARE(Numero([&] { m_port->setPortOpen(true); }), ErreurPort::Vitesse);
    QVERIFY(!m_port->PortOpen() && !m_scenario->ouverte);
    m_scenario->refusReglage = 0;
    m_scenario->Envoie("before the opening");
    m_port->setPortOpen(true);
    QCOMPARE(m_scenario->EnAttente(), 0);
}

void TestMSComm::reglagesRefuses()
{
    QCOMPARE(Numero([&] { m_port->setSettings(QStringLiteral("9600,n,4,1")); }), ErreurPort::BitsDonnees);
    QCOMPARE(m_port->Settings(), QStringLiteral("9600,n,8,1"));
    Ouvre(1200);
    m_scenario->refusReglage = ErreurPort::Reglage;
    QCOMPARE(Numero([&] { m_port->setSettings(QStringLiteral("9600,m,7,1")); }), ErreurPort::Reglage);
    QCOMPARE(Numero([&] { m_port->setHandshaking(2); }), ErreurPort::Reglage);
    QCOMPARE(m_port->Settings(), QStringLiteral("1200,n,8,1"));
    QCOMPARE(m_port->Handshaking(), 0);
    QCOMPARE(m_port->CaracteresParSeconde(), 120.0);
}

void TestMSComm::lignesDuPc()
{
    m_scenario->rts = m_scenario->dtr = true; // the system raises both at the opening
    Ouvre();
    QVERIFY(!m_scenario->rts && !m_scenario->dtr);
    m_port->setRTSEnable(true);
    m_port->setDTREnable(true);
    QVERIFY(m_scenario->rts && m_scenario->dtr);
    m_port->setRTSEnable(false);
    m_port->setHandshaking(2); // else the machine could never begin
    QVERIFY(m_scenario->rts);
    m_port->setRTSEnable(false);
    QVERIFY(m_scenario->rts);
    m_port->setHandshaking(1);
    QVERIFY(!m_scenario->rts);
    m_port->setPortOpen(false);
    m_port->setHandshaking(3);
    m_port->setPortOpen(true);
    QVERIFY(m_scenario->rts);
}

// ---- Receiving

void TestMSComm::lecture()
{
    Ouvre();
    QCOMPARE(m_port->Input(), QString());
    m_scenario->Envoie("N10 G0");
    QTRY_COMPARE(m_port->InBufferCount(), 6);
    m_port->setInputLen(4);
    QCOMPARE(m_port->Input(), QStringLiteral("N10 "));
    QCOMPARE(m_port->Input(), QStringLiteral("G0"));
    m_scenario->Envoie("N20");
    QTRY_COMPARE(m_port->InBufferCount(), 3);
    m_scenario->Envoie("N30");
    m_port->ViderReception();
    QCOMPARE(m_port->InBufferCount(), 0);
    QCOMPARE(m_scenario->EnAttente(), 0);
    m_port->setInputLen(0);
    m_scenario->Envoie(OctetsEn1252(TousLesCaracteres()));
    QCOMPARE(LitTout(256), TousLesCaracteres());
}

void TestMSComm::tamponPlein_data()
{
    QTest::addColumn<int>("taille");
    QTest::addColumn<int>("retenus");
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("usual") << 512 << 512;
    QTest::newRow("0 of a file") << 0 << 1024;
    QTest::newRow("negative") << -5 << 1024;
}

// What the buffer has no room for stays with the system, and nothing is lost.
void TestMSComm::tamponPlein()
{
    QFETCH(int, taille);
    QFETCH(int, retenus);
    m_port->setInBufferSize(taille);
    Ouvre();
    const QString texte = Programme(3000);
    m_scenario->Envoie(OctetsEn1252(texte));
    QTRY_COMPARE(m_port->InBufferCount(), retenus);
    CedeLaMain();
    QCOMPARE(m_scenario->EnAttente(), 3000 - retenus);
    m_port->setInputLen(7);
    QCOMPARE(LitTout(3000), texte);
}

void TestMSComm::filtres()
{
    Ouvre();
    m_scenario->Envoie("a?b", {1});
    QCOMPARE(LitTout(3), QStringLiteral("a?b"));
    m_port->setParityReplace(QStringLiteral("é!"));
    m_scenario->Envoie(QByteArray("a\0b?", 4), {3});
    QCOMPARE(LitTout(4), QStringLiteral("a") + QChar(0) + QStringLiteral("bé"));
    m_port->setNullDiscard(true);
    m_scenario->Envoie(QByteArray("\0a\0\0b\0", 6));
    QCOMPARE(LitTout(2), QStringLiteral("ab"));
    QCOMPARE(m_port->InBufferCount(), 0);
}

// ---- Events

void TestMSComm::seuilReception()
{
    m_port->setRThreshold(3);
    m_port->setInBufferSize(5);
    Ouvre();
    m_scenario->Envoie("ab");
    QTRY_COMPARE(m_port->InBufferCount(), 2);
    CedeLaMain();
    QCOMPARE(m_codes, QList<int>());
    m_scenario->Envoie("c");
    QTRY_COMPARE(m_codes, QList<int>({2}));
    CedeLaMain();
    QCOMPARE(m_codes.size(), 1); // not again for the same characters
    m_scenario->Envoie("d");
    QTRY_COMPARE(m_codes.size(), 2);
    QCOMPARE(m_port->Input(), QStringLiteral("abcd"));
    m_port->setRThreshold(100); // more than the buffer ever holds
    m_scenario->Envoie("efghij");
    QTRY_COMPARE(m_codes.size(), 3);
    m_port->setRThreshold(0);
    m_port->Input();
    m_scenario->Envoie("k");
    QTRY_COMPARE(m_port->InBufferCount(), 2);
    m_port->setRThreshold(1); // these two count
    QCOMPARE(m_codes.size(), 3);
    m_port->ViderReception(); // and are gone before their event could come
    CedeLaMain();
    QCOMPARE(m_codes.size(), 3);
}

void TestMSComm::seuilEmission()
{
    m_port->setSThreshold(10);
    Ouvre(115200);
    m_port->Output(QStringLiteral("short"));
    QCOMPARE(m_codes, QList<int>()); // never inside an operation
    QTRY_COMPARE(m_codes, QList<int>({1}));
    m_port->Output(Programme(1000));
    QTRY_COMPARE(m_codes, QList<int>({1, 1}));
    QVERIFY(m_port->OutBufferCount() < 10);
    QTRY_COMPARE(m_port->OutBufferCount(), 0);
    CedeLaMain();
    QCOMPARE(m_codes.size(), 2);
    m_port->setSThreshold(0);
    m_port->Output(QStringLiteral("last"));
    CedeLaMain();
    QCOMPARE(m_codes.size(), 2);
}

void TestMSComm::evenementsDeLigne_data()
{
    using Action = std::function<void(Scenario &)>;
    QTest::addColumn<Action>("action");
    QTest::addColumn<int>("code");
    QTest::newRow("CTS") << Action([](Scenario &s) { s.etats->cts = false; }) << 3;
    QTest::newRow("DSR") << Action([](Scenario &s) { s.etats->dsr = false; }) << 4;
    QTest::newRow("CD") << Action([](Scenario &s) { s.etats->cd = false; }) << 5;
    QTest::newRow("CTS and back") << Action([](Scenario &s) { s.compteurs.cts += 2; }) << 3;
    QTest::newRow("DSR, counted too") << Action([](Scenario &s) { s.etats->dsr = ++s.compteurs.dsr == 0; }) << 4;
    QTest::newRow("CD and back") << Action([](Scenario &s) { s.compteurs.cd += 2; }) << 5;
    QTest::newRow("ring") << Action([](Scenario &s) { s.etats->anneau = true; }) << 6;
    QTest::newRow("short ring") << Action([](Scenario &s) { ++s.compteurs.anneau; }) << 6;
    QTest::newRow("break") << Action([](Scenario &s) { ++s.compteurs.pauses; }) << 1001;
    QTest::newRow("framing") << Action([](Scenario &s) { ++s.compteurs.trame; }) << 1004;
    QTest::newRow("overrun") << Action([](Scenario &s) { s.compteurs.cadence += 3; }) << 1006;
    QTest::newRow("overflow") << Action([](Scenario &s) { ++s.compteurs.debordements; }) << 1008;
    QTest::newRow("parity") << Action([](Scenario &s) {
        ++s.compteurs.parite;
        s.Envoie("?", {0});
    }) << 1009;
}

void TestMSComm::evenementsDeLigne()
{
    QFETCH(std::function<void(Scenario &)>, action);
    QFETCH(int, code);
    m_scenario->compteurs = {7, 7, 7, 7, 7, 7, 7, 7, 7}; // what had happened before the opening
    Ouvre();
    action(*m_scenario);
    QTRY_COMPARE(m_codes, QList<int>({code}));
    QCOMPARE(m_port->CommEvent(), 0);
    m_scenario->etats->anneau = false; // the end of a ring is no event
    ++m_scenario->compteurs.trame;
    QTRY_COMPARE(m_codes.size(), 2);
    QCOMPARE(m_codes.last(), 1004);
}

// A handler that yields gets the other events inside, and its own again only after it has returned.
void TestMSComm::evenementsEmboites()
{
    m_port->setRThreshold(1);
    Ouvre();
    QStringList ordre;
    connect(m_port.get(), &MSComm::OnComm, this, [&] {
        const int code = m_port->CommEvent();
        ordre << QStringLiteral("+%1").arg(code);
        if (ordre.size() == 1) {
            m_scenario->Envoie("b");
            ++m_scenario->compteurs.parite;
            m_scenario->etats->cts = false;
            QVERIFY(QTest::qWaitFor([&] { return ordre.size() >= 5 && m_port->InBufferCount() == 2; }));
        }
        QCOMPARE(m_port->CommEvent(), code);
        ordre << QStringLiteral("-%1").arg(code);
    });
    m_scenario->Envoie("a");
    QTRY_COMPARE(ordre.join(QLatin1Char(' ')), QStringLiteral("+2 +3 -3 +1009 -1009 -2 +2 -2"));
}

// ---- Sending

void TestMSComm::emissionParMorceaux_data()
{
    QTest::addColumn<int>("parAppel");
    QTest::addColumn<int>("taille");
    QTest::newRow("short writes") << 3 << 700;
    QTest::newRow("one by one") << 1 << 200;
    QTest::newRow("as it comes, longer than the transmit buffer") << 1000 << 3000;
}

// Refusals and short writes lose and double nothing.
void TestMSComm::emissionParMorceaux()
{
    QFETCH(int, parAppel);
    QFETCH(int, taille);
    Ouvre(921600);
    const QString texte = Programme(taille);
    m_scenario->parAppel = parAppel;
    m_scenario->accepte = 40;
    m_port->Output(QString());
    m_port->Output(texte.left(taille / 3));
    m_port->Output(texte.mid(taille / 3));
    QTRY_COMPARE(m_port->OutBufferCount(), taille - 40);
    const int essais = m_scenario->essais;
    QTRY_VERIFY(m_scenario->essais >= essais + 3); // tried again though nothing wakes it
    m_scenario->accepte = 1'000'000;
    QTRY_COMPARE(m_port->OutBufferCount(), 0);
    QCOMPARE(m_scenario->ecrits, OctetsEn1252(texte));
}

// However long a line stands still, with however deep a buffer, no more than the lead is out of reach.
void TestMSComm::avanceBornee()
{
    Ouvre();
    m_scenario->immobile = true;
    m_port->Output(Programme(500));
    QCOMPARE(m_scenario->ecrits.size(), AvanceA9600);
    const int regards = m_scenario->regards;
    QTRY_VERIFY(m_scenario->regards > regards + 10);
    QCOMPARE(m_scenario->ecrits.size(), AvanceA9600);
    QCOMPARE(m_port->OutBufferCount(), 500 - AvanceA9600);
    m_port->ViderEmission(); // it is held: nothing gets any time
    QCOMPARE(m_scenario->ecrits.size(), AvanceA9600);
    QCOMPARE(m_scenario->jetsEmission, 1);

    m_port->Output(Programme(500));
    m_scenario->immobile = false;
    m_scenario->nonEmis = 0;
    QTRY_COMPARE(m_port->OutBufferCount(), 0);
    QCOMPARE(m_scenario->ecrits.mid(AvanceA9600), OctetsEn1252(Programme(500)));
}

void TestMSComm::ctsRetient()
{
    m_port->setHandshaking(2);
    m_scenario->etats->cts = false;
    Ouvre();
    m_port->Output(QStringLiteral("N10 G0"));
    CedeLaMain();
    QCOMPARE(m_port->OutBufferCount(), 6);
    m_scenario->etats->cts = true;
    QTRY_COMPARE(m_port->OutBufferCount(), 0);
    m_scenario->etats->cts = false;
    QTRY_VERIFY(!m_port->CTSHolding());
    m_port->Output(QStringLiteral(" X5"));
    m_port->setHandshaking(0); // the operator gives the handshake up
    QTRY_COMPARE(m_port->OutBufferCount(), 0);
    QCOMPARE(m_scenario->ecrits, QByteArray("N10 G0 X5"));
    m_port->setHandshaking(2);
    m_scenario->etats.reset(); // a device without such lines does not hold
    m_port->setPortOpen(false);
    m_port->setPortOpen(true);
    m_port->Output(QStringLiteral("!"));
    QCOMPARE(m_port->OutBufferCount(), 0);
}

void TestMSComm::viderEmission()
{
    Ouvre();
    m_port->ViderEmission(); // nothing there
    const QString chaine = Programme(100);
    m_port->Output(chaine);
    m_port->ViderEmission();
    QCOMPARE(m_scenario->ecrits, OctetsEn1252(chaine));
    QCOMPARE(m_scenario->jetsEmission, 0);

    m_scenario->ecrits.clear();
    m_port->Output(Programme(5000)); // no chain is as long as that
    m_port->ViderEmission();
    QCOMPARE(m_port->OutBufferCount(), 0);
    QCOMPARE(m_scenario->jetsEmission, 1);
    QVERIFY(m_scenario->ecrits.size() >= 100 && m_scenario->ecrits.size() < 1000);
    QCOMPARE(m_scenario->ecrits, OctetsEn1252(Programme(5000)).left(m_scenario->ecrits.size()));

    m_scenario->ecrits.clear();
    m_scenario->accepte = 0;
    m_port->Output(chaine);
    m_port->ViderEmission();
    QCOMPARE(m_port->OutBufferCount(), 0);
    QCOMPARE(m_scenario->jetsEmission, 2);
    m_scenario->accepte = 100;
    m_port->Output(QStringLiteral("next"));
    QTRY_COMPARE(m_scenario->ecrits, QByteArray("next"));
}

void TestMSComm::fermeture()
{
    Ouvre();
    m_port->Output(QStringLiteral("%"));
    m_port->setPortOpen(false);
    QCOMPARE(m_scenario->jetsEmission, 0); // it has had its line time
    QVERIFY(!m_scenario->ouverte && !m_port->CTSHolding());

    m_port->setPortOpen(true);
    m_scenario->Envoie("left behind");
    QTRY_VERIFY(m_port->InBufferCount() > 0);
    m_port->Output(Programme(500)); // a sending that was cancelled
    m_port->setPortOpen(false);
    QCOMPARE(m_scenario->jetsEmission, 1);

    m_port->setPortOpen(true);
    QCOMPARE(m_port->OutBufferCount() + m_port->InBufferCount(), 0);
    m_port->Output(QStringLiteral("held"));
    m_scenario->nonEmis = 4; // for ever
    m_port->setPortOpen(false);
    QCOMPARE(m_scenario->jetsEmission, 2);
    QVERIFY(!m_port->PortOpen());
}

void TestMSComm::debranche()
{
    Ouvre();
    m_scenario->Envoie("N10");
    QTRY_COMPARE(m_port->InBufferCount(), 3);
    m_scenario->Debranche();
    m_port->Output(QStringLiteral("a")); // the failure shows at the operation after
    QCOMPARE(m_port->Input(), QStringLiteral("N10"));
    const std::function<void()> operations[] = {
        [&] { m_port->Input(); },          [&] { m_port->Output(QStringLiteral("a")); },
        [&] { m_port->InBufferCount(); },  [&] { m_port->OutBufferCount(); },
        [&] { m_port->ViderReception(); }, [&] { m_port->ViderEmission(); },
    };
    for (const auto &operation : operations)
        QCOMPARE(Numero(operation), ErreurPort::Lecture);
    QVERIFY(m_port->PortOpen() && !m_port->CDHolding());
    m_port->setPortOpen(false);
    QVERIFY(!m_port->PortOpen());
    m_scenario->disparue = false;
    m_port->setPortOpen(true);
    QCOMPARE(m_port->OutBufferCount(), 0);
}

// ---- On a real pseudo-terminal

void TestMSComm::xoffPuisXon()
{
    const BoutTerminal machine;
    Branche(machine);
    m_port->setHandshaking(1);
    Ouvre(115200);
    const QString texte = Programme(4000);
    m_port->Output(texte);
    QByteArray venus;
    QTRY_VERIFY((venus += machine.Prend()).size() > 100);
    machine.Envoie("\x13");
    // The system stops by itself; the control finds out when it is refused.
    int calmes = 0;
    QTRY_VERIFY([&] {
        const QByteArray suite = machine.Prend();
        calmes = suite.isEmpty() ? calmes + 1 : 0;
        venus += suite;
        return calmes >= 3;
    }());
    QVERIFY(m_port->OutBufferCount() > 0);
    QCOMPARE(venus.size() + m_port->OutBufferCount(), texte.size());
    machine.Envoie("\x11");
    QTRY_VERIFY((venus += machine.Prend()).size() >= texte.size());
    QCOMPARE(venus, OctetsEn1252(texte));

    machine.Envoie("\x13");
    m_port->Output(texte);
    QTRY_VERIFY(machine.Prend().isEmpty());
    m_port->ViderEmission();
    QCOMPARE(m_port->OutBufferCount(), 0);
    m_port->setPortOpen(false);
    QVERIFY(!m_port->PortOpen());
}

// A program sent line by line, each line when the one before has left the queue, arrives exactly.
void TestMSComm::lignesSurTerminal()
{
    const BoutTerminal machine;
    Branche(machine);
    Ouvre(115200);
    QByteArray venus;
    const QString programme = Programme(3000) + TousLesCaracteres();
    const QStringList lignes = programme.split(QLatin1Char('\n'));
    for (const QString &ligne : lignes) {
        m_port->Output(ligne + QLatin1Char('\n'));
        while (m_port->OutBufferCount() > 0)
            CedeLaMain();
    }
    m_port->setPortOpen(false); // what has left the queue gets its line time
    QTRY_VERIFY((venus += machine.Prend()).size() > programme.size());
    QCOMPARE(venus, OctetsEn1252(programme) + '\n');
}

void TestMSComm::receptionSurTerminal()
{
    const BoutTerminal machine;
    Branche(machine);
    m_port->setInBufferSize(100);
    Ouvre();
    const QString texte = Programme(3000) + TousLesCaracteres();
    machine.Envoie(OctetsEn1252(texte));
    QCOMPARE(LitTout(static_cast<int>(texte.size())), texte);
    m_port->setPortOpen(false);

    m_port->setHandshaking(1);
    m_port->setPortOpen(true);
    const QString sansFlux = TousLesCaracteres("\x11\x13");
    machine.Envoie(OctetsEn1252(TousLesCaracteres()) + '\x11');
    QCOMPARE(LitTout(static_cast<int>(sansFlux.size())), sansFlux);
}

void TestMSComm::machineEteinte()
{
    BoutTerminal machine;
    Branche(machine);
    Ouvre();
    machine.Envoie("N10");
    QTRY_COMPARE(m_port->InBufferCount(), 3);
    machine.Coupe();
    QCOMPARE(m_port->Input(), QStringLiteral("N10"));
    QTRY_COMPARE(Numero([&] { m_port->OutBufferCount(); }), ErreurPort::Lecture);
    QCOMPARE(Numero([&] { m_port->Input(); }), ErreurPort::Lecture);
    m_port->setPortOpen(false);
    QCOMPARE(Numero([&] { m_port->setPortOpen(true); }), ErreurPort::Inconnu);
}

QTEST_MAIN(TestMSComm)
#include "TestMSComm.moc"
