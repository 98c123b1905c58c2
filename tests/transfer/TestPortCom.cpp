#include "LigneScenario.h"
#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "locale/Langue.h"
#include "platform/Boites.h"
#include "platform/ErreurPort.h"
#include "platform/MSComm.h"
#include "shell/FrmPrinc.h"
#include "transfer/Em_Rc.h"
#include "transfer/PortCom.h"

#include <QTest>

class TestPortCom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void Ouvre();
    void OuvreOuvert();
    void OuvreRate();
    void FermeFerme();
    void MenuFermeture();
    void Textes();

private:
    MSComm &Controle() const { return *frmPrinc->MSComm1; }
    void AnnonceErreur(int numero, const QString &texte)
    {
        m_operateur->Repond(QStringLiteral("Erreur N°:  %1Fermeture du port de communication").arg(numero), texte,
                            Boite::Critique, QMessageBox::Ok);
    }

    std::unique_ptr<Poste> m_poste;
    std::unique_ptr<Operateur> m_operateur;
    std::shared_ptr<Scenario> m_ligne;
};

void TestPortCom::init()
{
    m_poste = std::make_unique<Poste>();
    m_poste->Demarre(0);
    m_poste->Charge("G0");
    m_operateur = std::make_unique<Operateur>();
    m_ligne = std::make_shared<Scenario>();
    Controle().setFabrique(LigneScenario::Fabrique(m_ligne));
}

void TestPortCom::cleanup()
{
    m_operateur.reset();
    m_poste.reset();
}

// All settings of the record reach the control, and the line has them from its first moment.
void TestPortCom::Ouvre()
{
    QCOMPARE(ParamCom.LigneRTS + ParamCom.LigneDTR, 0);
    OuvrePortCOM();
    QVERIFY(Controle().PortOpen() && PortOuvert && !m_ligne->rts && !m_ligne->dtr);
    QCOMPARE(Controle().Settings(), QStringLiteral("115200,n,8,1"));
    QCOMPARE(m_ligne->reglages.constFirst().vitesse, 115200);
    QCOMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Verte);
    QCOMPARE(frmPrinc->lblPortOpen->text(), QStringLiteral("Port Ouvert"));

    // A configuration loaded between two sessions counts for the second.
    Em_Rc dialogue(frmPrinc);
    FermePortCOM(dialogue);
    LangIndex = 2;
    ParamCom.NumPort = 4;
    ParamCom.NbCarLecture = 1;
    ParamCom.FiltreNul = 1;
    ParamCom.CarRemplace = QStringLiteral("!");
    ParamCom.TailleTamponRecep = 2000;
    ParamCom.TailleTamponEmis = 100;
    ParamCom.LigneRTS = ParamCom.LigneDTR = 1;
    ParamCom.SeuilRecep = 7;
    ParamCom.SeuilEmis = 8;
    ParamCom.ControleFlux = 0;
    ParamCom.BitsDonnees = QStringLiteral("5");
    ParamCom.BitsArret = QStringLiteral("1.5");
    ParamCom.Parite = QStringLiteral("e");
    OuvrePortCOM();
    const MSComm &c = Controle();
    QCOMPARE((QList<int>{c.CommPort(), c.InputLen(), c.NullDiscard(), c.InBufferSize(), c.OutBufferSize(),
                         c.RThreshold(), c.SThreshold(), c.Handshaking()}),
             (QList<int>{4, 1, 1, 2000, 100, 7, 8, 0}));
    QCOMPARE(c.ParityReplace() + c.Settings(), QStringLiteral("!115200,e,5,1.5"));
    QVERIFY(m_ligne->rts && m_ligne->dtr);
    QCOMPARE(m_ligne->reglages.constLast().demiBitsArret, 3);
    QCOMPARE(frmPrinc->lblPortOpen->text(), QStringLiteral("Port Abierto"));
    FermePortCOM(dialogue);
    QCOMPARE(frmPrinc->lblPortOpen->text(), QStringLiteral("Port Cerrado"));
    QVERIFY(!PortOuvert && !m_ligne->ouverte);
}

// On an open port nothing but the settings changes; a buffer size cannot, and what stands behind it is not applied.
void TestPortCom::OuvreOuvert()
{
    OuvrePortCOM();
    frmPrinc->shpPortOpen->setFillColor(Lampe::Rouge);
    ParamCom.NumPort = 9;
    ParamCom.Vitesse = QStringLiteral("4800");
    OuvrePortCOM();
    QCOMPARE(Controle().CommPort(), 2);
    QCOMPARE(m_ligne->reglages.constLast().vitesse, 4800);
    QCOMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Rouge);

    ParamCom.TailleTamponRecep = 99;
    ParamCom.Vitesse = QStringLiteral("9600");
    AnnonceErreur(ErreurPort::DejaOuvert, QStringLiteral("Opération non valide quand le port est ouvert"));
    OuvrePortCOM();
    QVERIFY(Controle().PortOpen());
    QCOMPARE(m_ligne->reglages.constLast().vitesse, 4800);
}

// The first step that fails is told once, and the steps behind it do not run.
void TestPortCom::OuvreRate()
{
    const struct
    {
        int flux, port, refus, numero;
        const char *vitesse, *bits, *texte;
    } cas[] = {{9, 2, 0, 8015, "x", "8", "Impossible de définir l'état de communication"},
               {1, 99, 0, 8007, "x", "4", "Le débit en bauds du périphérique n'est pas pris en charge"},
               {1, 99, 0, 8008, "9600", "4", "La taille d'octet spécifiée n'est pas valide"},
               {1, 17, 8015, 8002, "9600", "8", "Numéro de port non valide"},
               {1, 2, 8015, 8015, "9600", "8", "Impossible de définir l'état de communication"}};
    for (const auto &[flux, port, refus, numero, vitesse, bits, texte] : cas) {
        ParamCom.ControleFlux = flux;
        ParamCom.Vitesse = QString::fromLatin1(vitesse);
        ParamCom.BitsDonnees = QString::fromLatin1(bits);
        ParamCom.NumPort = port;
        m_ligne->refusReglage = refus;
        AnnonceErreur(numero, QString::fromUtf8(texte));
        OuvrePortCOM();
        QVERIFY(!Controle().PortOpen() && !PortOuvert);
        QCOMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Rouge);
        QCOMPARE(frmPrinc->lblPortOpen->text(), QStringLiteral("Port Fermé"));
    }
}

void TestPortCom::FermeFerme()
{
    Em_Rc dialogue(frmPrinc);
    frmPrinc->lblPortOpen->setText(QStringLiteral("x"));
    FermePortCOM(dialogue);
    QCOMPARE(frmPrinc->lblPortOpen->text(), QStringLiteral("x"));
    QCOMPARE(dialogue.Command1->text(), QStringLiteral("&Annuler"));
}

// A port that stayed open can be closed from the menu; the lamp follows by itself.
void TestPortCom::MenuFermeture()
{
    constexpr char entree[] = "Mnu_FermePortCom";
    PortOuvert = true;
    QVERIFY(!Operateur::Offre(entree));
    QVERIFY(!PortOuvert);
    OuvrePortCOM();
    PortOuvert = false;
    QVERIFY(Operateur::Offre(entree));
    QVERIFY(PortOuvert);
    Operateur::Menu(entree);
    QVERIFY(!Controle().PortOpen() && !PortOuvert && !m_ligne->ouverte);
}

// What the operator reads: our text in his language, or the platform's for a number without one.
void TestPortCom::Textes()
{
    const char *const titres[] = {"Erreur N°:  %1Fermeture du port de communication",
                                  "Error N°:  %1Closing of the port of communication",
                                  "Error N°:  %1Cierre del puerto de comunicación"};
    const std::pair<int, std::array<const char *, 3>> erreurs[] = {
        {1001,
         {"Réception d'un signal d'interruption.", "Receiving of a signal of interruption.",
          "Recepción de una señal de interrupción."}},
        {8086,
         {"Numéro de Port de communication invalide.", "Number of invalid port of communication.",
          "Número del Puerto de comunicación inválida."}},
        {1005, {"Permission denied", "Permission denied", "Permission denied"}},
        {70, {"Permission denied", "Permission denied", "Permission denied"}}};
    Em_Rc dialogue(frmPrinc);
    for (const auto &[numero, textes] : erreurs) {
        for (LangIndex = 0; LangIndex < 3; ++LangIndex) {
            OuvrePortCOM();
            m_operateur->Repond(QString::fromUtf8(titres[LangIndex]).arg(numero), textes[std::size_t(LangIndex)],
                                Boite::Critique, QMessageBox::Ok);
            ErreurPortCOM(Erreur(numero, QStringLiteral("Permission denied")), dialogue);
            QVERIFY(!Controle().PortOpen() && !PortOuvert);
        }
    }
}

QTEST_MAIN(TestPortCom)
#include "TestPortCom.moc"
