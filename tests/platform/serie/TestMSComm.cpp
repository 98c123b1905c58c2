#include "Essais.h"
#include "LigneScenario.h"
#include "platform/base/CedeLaMain.h"
#include "platform/base/PageCode1252.h"
#include "platform/serie/MSComm.h"

#include <QAbstractEventDispatcher>
#include <QLoggingCategory>
#include <QSignalSpy>

namespace {

constexpr qsizetype AvanceA9600 = 6;

/// What happens on the line, and the code of its event.
const std::tuple<const char *, int, void (*)(Scenario &)> Evenements[] = {
    {"CTS and back", 3, [](Scenario &s) { s.compteurs.cts += 2; }},
    {"DSR", 4, [](Scenario &s) { s.etats->dsr = ++s.compteurs.dsr == 0; }},
    {"CD", 5, [](Scenario &s) { s.etats->cd = false; }},
    {"ring", 6, [](Scenario &s) { s.etats->anneau = true; }},
    {"ring, counted", 6, [](Scenario &s) { ++s.compteurs.anneau; }},
    {"parity", 1009, [](Scenario &s) { ++s.compteurs.parite, s.Envoie("?", {0}); }}};

QString Programme(int caracteres)
{
    QString texte;
    for (int bloc = 10; texte.size() < caracteres; bloc += 10)
        texte += QStringLiteral("N%1 G1 X%2 Z-0.5 (é ÿ)\r\n").arg(bloc).arg(bloc * 7);
    return texte.left(caracteres);
}

} // namespace

class TestMSComm : public QObject
{
    Q_OBJECT

    std::shared_ptr<Scenario> m_scenario;
    std::unique_ptr<MSComm> m_port;
    QList<int> m_codes;

    void Ouvre(int vitesse = 9600)
    {
        m_port->setSettings(QStringLiteral("%1,n,8,1").arg(vitesse));
        m_port->setPortOpen(true);
    }

    QString LitTout(qsizetype attendus)
    {
        QString lus;
        QDeadlineTimer limite(5000);
        while (lus.size() < attendus && !limite.hasExpired()) {
            CedeLaMain();
            lus += m_port->Input();
        }
        return lus;
    }

    QList<bool> Lignes() { return {m_port->CTSHolding(), m_port->DSRHolding(), m_port->CDHolding()}; }

    /// The numbers with which the operations on the buffers fail.
    QSet<int> Echecs()
    {
        return {NumeroErreur([&] { m_port->Output(QStringLiteral("a")); }),
                NumeroErreur([&] { m_port->Input(); }),
                NumeroErreur([&] { m_port->InBufferCount(); }),
                NumeroErreur([&] { m_port->OutBufferCount(); }),
                NumeroErreur([&] { m_port->VideReception(); }),
                NumeroErreur([&] { m_port->VideEmission(100); })};
    }

private Q_SLOTS:
    void init()
    {
        m_scenario = std::make_shared<Scenario>();
        m_port = std::make_unique<MSComm>();
        m_port->setFabrique(LigneScenario::Fabrique(m_scenario));
        m_codes = {};
        connect(m_port.get(), &MSComm::OnComm, this, [this] { m_codes << m_port->CommEvent(); });
    }

    void cleanup()
    {
        m_port.reset();
        QVERIFY(!m_scenario->ouverte);
    }

    void proprietes()
    {
        MSComm sansAppareil;
        sansAppareil.setCommPort(16);
        QCOMPARE(NumeroErreur([&] { sansAppareil.setPortOpen(true); }), ErreurPort::Inconnu);
        QCOMPARE(Echecs(), QSet<int>{ErreurPort::Ferme});
        QCOMPARE(Lignes(), QList<bool>({false, false, false}));
        m_scenario->rts = true; // the system raises it at the opening
        m_scenario->Envoie("before the opening");
        Ouvre(1200);
        QCOMPARE(m_scenario->EnAttente(), 0);
        QVERIFY(!m_scenario->rts);
        QCOMPARE(Lignes(), QList<bool>({true, true, true}));
        QCOMPARE(NumeroErreur([&] { m_port->setPortOpen(true); }), ErreurPort::Occupe);
        m_port->setHandshaking(2); // else the machine could never begin
        m_port->setRTSEnable(false);
        QVERIFY(m_scenario->rts);
        m_port->setHandshaking(1);
        QVERIFY(!m_scenario->rts);
        m_scenario->refusReglage = ErreurPort::Reglage;
        QCOMPARE(NumeroErreur([&] { m_port->setSettings(QStringLiteral("9600,m,7,1")); }), ErreurPort::Reglage);
        QCOMPARE(NumeroErreur([&] { m_port->setHandshaking(2); }), ErreurPort::Reglage);
        QCOMPARE(m_port->Settings(), QStringLiteral("1200,n,8,1"));
        QCOMPARE(m_port->Handshaking(), 1);
    }

    void lecture()
    {
        Ouvre();
        m_scenario->Envoie("N10 G0");
        QTRY_COMPARE(m_port->InBufferCount(), 6);
        m_scenario->Envoie("N20");
        QCOMPARE(m_port->VideReception(), QStringLiteral("N10 G0N20"));
        QCOMPARE(m_port->InBufferCount(), 0);
        QCOMPARE(m_scenario->EnAttente(), 0);
        QCOMPARE(m_port->Comptes().recus, 9);
        m_port->RemetComptes();
        m_scenario->Envoie(TousLesOctets(), {1});
        QCOMPARE(LitTout(256), TexteDe1252(TousLesOctets()));
        m_port->setParityReplace(QStringLiteral("é!"));
        m_scenario->Envoie(QByteArray("a\0b?", 4), {3});
        QCOMPARE(LitTout(4), QStringLiteral("a") + QChar(0) + QStringLiteral("bé"));
        m_port->setNullDiscard(true);
        m_scenario->Envoie(QByteArray("\0a\0\0b\0", 6));
        QCOMPARE(LitTout(2), QStringLiteral("ab"));
        QCOMPARE(m_port->InBufferCount(), 0);
        QCOMPARE(m_port->Comptes().recus, 256 + 4 + 2);
    }

    // What the buffer has no room for stays with the system, and nothing is lost.
    void tamponPlein_data() { OuiEtNon("petit", "one character", "the usual size"); }
    void tamponPlein()
    {
        QFETCH(bool, petit);
        const QString texte = Programme(3000);
        const int retenus = petit ? 1 : 1024;
        m_port->setInBufferSize(petit ? 1 : 0);
        Ouvre();
        m_scenario->Envoie(OctetsEn1252(texte));
        QTRY_COMPARE(m_port->InBufferCount(), retenus);
        CedeLaMain();
        QCOMPARE(m_scenario->EnAttente(), 3000 - retenus);
        m_port->setInputLen(7);
        QCOMPARE(LitTout(3000), texte);
    }

    // A driver that is deaf to XOFF: the control obeys and says it, and hears an XON whatever stands before it.
    void fluxSoiMeme()
    {
        m_scenario->obeitXoff = false;
        m_port->setInBufferSize(100);
        m_port->setHandshaking(3);
        Ouvre();
        QCOMPARE(m_scenario->reglages.last().flux, ControleFlux::RtsCts);
        m_scenario->Envoie("a\x13"
                           "b\x13\x11\x13",
                           {3});
        QTRY_COMPARE(m_port->InBufferCount(), 3);
        const QString texte = Programme(200);
        m_port->Output(texte);
        QCOMPARE(m_port->Input(), QStringLiteral("ab") + QChar(19)); // that one came with a parity error
        QCOMPARE(m_scenario->ecrits, QByteArray());
        m_scenario->Envoie("\x11");
        QTRY_COMPARE(m_port->OutBufferCount(), 0);
        QCOMPARE(m_scenario->ecrits, OctetsEn1252(texte));
        for (const bool lu : {true, false}) {
            const auto passe = Passe(lu ? QStringLiteral("read") : QStringLiteral("emptied"));
            m_scenario->ecrits.clear();
            m_scenario->Envoie("\x13" + QByteArray(74, 'c'));
            QTRY_COMPARE(m_port->InBufferCount(), 74);
            m_scenario->Envoie(QByteArray(200, 'c') + "\x11");
            QTRY_COMPARE(m_scenario->ecrits, QByteArray("\x13"));
            if (lu)
                QCOMPARE(LitTout(274).size(), 274);
            else
                m_port->VideReception();
            m_port->Output(QStringLiteral("d"));
            QTRY_COMPARE(m_scenario->ecrits, QByteArray("\x13\x11"
                                                        "d"));
        }
        m_scenario->Envoie("\x13" + QByteArray(99, 'c'));
        QTRY_COMPARE(m_port->InBufferCount(), 99);
        m_port->setHandshaking(0);
        QVERIFY(m_scenario->ecrits.endsWith("\x13\x11"));
        m_port->Output(QStringLiteral("e"));
        QTRY_VERIFY(m_scenario->ecrits.endsWith('e'));
    }

    void seuilReception()
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
        m_scenario->Envoie("efghi");
        QTRY_COMPARE(m_codes.size(), 3);
    }

    void evenementsDeLigne_data() { Rangees(Evenements); }
    void evenementsDeLigne()
    {
        const auto &[nom, code, action] = Rangee(Evenements);
        m_scenario->compteurs = {7, 7, 7, 7, 7, 7, 7, 7, 7}; // what had happened before the opening
        Ouvre();
        action(*m_scenario);
        QTRY_COMPARE(m_codes, QList<int>({code}));
        QCOMPARE(m_port->CommEvent(), 0);
        m_scenario->etats->anneau = false; // the end of a ring is no event
        ++m_scenario->compteurs.trame;
        QTRY_COMPARE(m_codes, QList<int>({code, 1004}));
        m_scenario->compteurs.trame += 2; // no event tells of these any more
        m_port->setPortOpen(false);
        QCOMPARE(m_port->Comptes().fautes.trame, 3u);
        QCOMPARE(m_port->Comptes().fautes.parite, code == 1009 ? 1u : 0u);
        m_port->RemetComptes();
        QCOMPARE(m_port->Comptes().fautes.trame, 0u);
    }

    // A handler that yields gets the other events inside, and its own again only after it has returned.
    void evenementsEmboites()
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

    // Refusals and short writes lose and double nothing; a text may be longer than the transmit buffer.
    void emissionParMorceaux_data() { OuiEtNon("court", "three characters a call", "longer than the buffer"); }
    void emissionParMorceaux()
    {
        QFETCH(bool, court);
        const int taille = court ? 700 : 3000;
        Ouvre(921600);
        m_port->setSThreshold(30);
        const QString texte = Programme(taille);
        m_scenario->parAppel = court ? 3 : 1000;
        m_scenario->accepte = 40;
        m_port->Output(QString());
        m_port->Output(texte.left(taille / 3));
        m_port->Output(texte.mid(taille / 3));
        QTRY_COMPARE(m_port->OutBufferCount(), taille - 40);
        QCOMPARE(m_port->Comptes().emis, 40);
        const int essais = m_scenario->essais;
        QTRY_VERIFY(m_scenario->essais >= essais + 3); // tried again though nothing wakes it
        m_scenario->accepte = 1'000'000;
        QTRY_COMPARE(m_port->OutBufferCount(), 0);
        QCOMPARE(m_scenario->ecrits, OctetsEn1252(texte));
        CedeLaMain();
        QCOMPARE(m_codes, QList<int>({1})); // once, though it fell in small steps
    }

    // A loop that learns that all has gone has more to send: its next yield does not sleep.
    void fileVideSansSommeil()
    {
        Ouvre();
        m_port->Output(QStringLiteral("N10"));
        QTRY_COMPARE(m_port->OutBufferCount(), 0);
        const QSignalSpy sommeils(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock);
        CedeLaMain();
        QCOMPARE(sommeils.size(), 0);
    }

    // However long a line stands still, with however deep a buffer, no more than the lead is out of reach.
    void avanceBornee()
    {
        Ouvre();
        m_scenario->immobile = true;
        m_port->Output(Programme(500));
        const int regards = m_scenario->regards;
        QTRY_VERIFY(m_scenario->regards > regards + 10);
        QCOMPARE(m_scenario->ecrits.size(), AvanceA9600);
        QCOMPARE(m_port->OutBufferCount(), 500 - AvanceA9600);
        m_port->VideEmission(100); // it is held: nothing gets any time
        QCOMPARE(m_scenario->ecrits.size(), AvanceA9600);
        QCOMPARE(m_port->Comptes().emis, AvanceA9600);
        QCOMPARE(m_scenario->jetsEmission, 1);
    }

    // The operator may give the handshake up; a device without such lines does not hold.
    void ctsRetient()
    {
        m_port->setHandshaking(2);
        m_scenario->etats->cts = false;
        Ouvre();
        QTRY_VERIFY(!m_port->CTSHolding());
        m_port->Output(QStringLiteral("N10"));
        CedeLaMain();
        QCOMPARE(m_port->OutBufferCount(), 3);
        m_port->setHandshaking(0);
        QTRY_COMPARE(m_port->OutBufferCount(), 0);
        m_scenario->etats.reset();
        m_port->setPortOpen(false);
        m_port->setHandshaking(2);
        m_port->setPortOpen(true);
        m_port->Output(QStringLiteral("!"));
        QTRY_COMPARE(m_scenario->ecrits, QByteArray("N10!"));
    }

    // What was just written, up to a chain, gets its line time; more was cancelled, and goes.
    void viderEtFermer()
    {
        Ouvre();
        m_port->Output(QStringLiteral("%"));
        m_port->setPortOpen(false);
        m_port->setPortOpen(true);
        m_port->Output(Programme(100));
        m_port->VideEmission(100);
        QCOMPARE(m_scenario->ecrits, '%' + OctetsEn1252(Programme(100)));
        QCOMPARE(m_scenario->jetsEmission, 0);

        m_scenario->ecrits.clear();
        m_port->Output(Programme(5000)); // no chain is as long as that
        m_port->VideEmission(100);
        QCOMPARE(m_port->OutBufferCount(), 0);
        QCOMPARE(m_scenario->jetsEmission, 1);
        QVERIFY(m_scenario->ecrits.size() >= 100);
        QVERIFY(m_scenario->ecrits.size() < 1000);
        QCOMPARE(m_scenario->ecrits, OctetsEn1252(Programme(5000)).left(m_scenario->ecrits.size()));

        m_scenario->Envoie("left behind");
        QTRY_VERIFY(m_port->InBufferCount() > 0);
        m_port->Output(Programme(500));
        m_scenario->nonEmis = 4; // the machine holds the line for ever
        m_port->setPortOpen(false);
        QCOMPARE(m_scenario->jetsEmission, 2);
        m_port->setPortOpen(true);
        QCOMPARE(m_port->OutBufferCount(), 0);
        QCOMPARE(m_port->InBufferCount(), 0);
    }

    // What is read out at the telephone when someone needs help: holds and counts, and nothing of the program.
    void journal()
    {
        static QStringList dits;
        dits.clear();
        QLoggingCategory::setFilterRules(QStringLiteral("dorvanel.ligne=true"));
        const auto avant =
            qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &dit) { dits << dit; });
        m_port->setHandshaking(2);
        Ouvre();
        m_port->Output(Programme(500));
        m_scenario->etats->cts = false;
        const bool retenu = QTest::qWaitFor([&] { return !m_port->CTSHolding(); });
        const QString partis = QString::number(m_scenario->ecrits.size());
        m_port->setPortOpen(false);
        qInstallMessageHandler(avant);
        QLoggingCategory::setFilterRules(QString());
        QVERIFY(retenu);
        QVERIFY(dits.contains(QStringLiteral("the machine holds the line")));
        QVERIFY2(dits.last().contains(QStringLiteral("held, ")), qPrintable(dits.last()));
        const QString comptes = QStringLiteral("thrown away, ") + partis + QStringLiteral(" sent, 0 received");
        QVERIFY2(dits.last().contains(comptes), qPrintable(dits.last()));
        QVERIFY(!dits.join(u' ').contains(QStringLiteral("G1")));
    }

    void debranche()
    {
        Ouvre();
        m_scenario->Envoie("N10");
        QTRY_COMPARE(m_port->InBufferCount(), 3);
        m_scenario->Debranche();
        m_port->Output(QStringLiteral("a")); // the failure shows at the operation after
        QCOMPARE(m_port->Input(), QStringLiteral("N10"));
        QCOMPARE(Echecs(), QSet<int>{ErreurPort::Lecture});
        QCOMPARE(NumeroErreur([&] { m_port->setHandshaking(1); }), ErreurPort::Lecture);
        QVERIFY(m_port->PortOpen());
        QVERIFY(!m_port->CDHolding());
    }

    // Another port only when this one is closed. What came and was not read goes then, lest the system go on holding
    // the machine back.
    void changeDePort()
    {
        for (const int inconnu : {0, 17})
            QCOMPARE(NumeroErreur([&] { m_port->setCommPort(inconnu); }), ErreurPort::Inconnu);
        m_port->setInBufferSize(1);
        Ouvre();
        m_scenario->Envoie("abc");
        QTRY_COMPARE(m_port->InBufferCount(), 1);
        QCOMPARE(NumeroErreur([&] { m_port->setCommPort(3); }), ErreurPort::DejaOuvert);
        m_port->setPortOpen(false);
        QCOMPARE(m_scenario->EnAttente(), 0);
        m_port->setCommPort(3);
        QCOMPARE(m_port->CommPort(), 3);
    }
};

QTEST_MAIN(TestMSComm)
#include "TestMSComm.moc"