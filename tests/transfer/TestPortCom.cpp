#include "LigneScenario.h"
#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "locale/Langue.h"
#include "platform/ErreurPort.h"
#include "shell/FrmPrinc.h"
#include "transfer/Em_Rc.h"
#include "transfer/PortCom.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A workstation whose ports are all the same scripted line.
struct Atelier
{
    Atelier()
    {
        poste.Charge("G0");
        controle.setFabrique(LigneScenario::Fabrique(ligne));
    }

    Poste poste{0};
    Operateur operateur;
    std::shared_ptr<Scenario> ligne = std::make_shared<Scenario>();
    MSComm &controle = *frmPrinc->MSComm1;
};

} // namespace

class TestPortCom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Ouvre();
    void OuvreOuvert();
    void OuvreRate();
    void MenuFermeture();
    void Textes();
};

// All settings of the record reach the control, and the line has them from its first moment. A configuration loaded
// between two sessions counts for the second.
void TestPortCom::Ouvre()
{
    const Atelier atelier;
    MSComm &c = atelier.controle;
    OuvrePortCOM();
    QVERIFY(c.PortOpen() && PortOuvert && !atelier.ligne->rts && !atelier.ligne->dtr);
    QCOMPARE(c.Settings(), u"115200,n,8,1"_s);
    QCOMPARE(atelier.ligne->reglages.constFirst().vitesse, 115200);
    QCOMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Verte);
    QCOMPARE(frmPrinc->lblPortOpen->text(), u"Port Ouvert"_s);

    Em_Rc dialogue(frmPrinc);
    FermePortCOM(dialogue);
    LangIndex = 2;
    ParamCom.NumPort = 4;
    ParamCom.NbCarLecture = 1;
    ParamCom.FiltreNul = 1;
    ParamCom.CarRemplace = u"!"_s;
    ParamCom.TailleTamponRecep = 2000;
    ParamCom.TailleTamponEmis = 100;
    ParamCom.LigneRTS = ParamCom.LigneDTR = 1;
    ParamCom.SeuilRecep = 7;
    ParamCom.SeuilEmis = 8;
    ParamCom.ControleFlux = 0;
    ParamCom.BitsDonnees = u"5"_s;
    ParamCom.BitsArret = u"1.5"_s;
    ParamCom.Parite = u"e"_s;
    OuvrePortCOM();
    QCOMPARE((QList<int>{c.CommPort(), c.InputLen(), c.NullDiscard(), c.InBufferSize(), c.OutBufferSize(),
                         c.RThreshold(), c.SThreshold(), c.Handshaking()}),
             (QList<int>{4, 1, 1, 2000, 100, 7, 8, 0}));
    QCOMPARE(c.ParityReplace() + c.Settings(), u"!115200,e,5,1.5"_s);
    QVERIFY(atelier.ligne->rts && atelier.ligne->dtr);
    QCOMPARE(atelier.ligne->reglages.constLast().demiBitsArret, 3);
    QCOMPARE(frmPrinc->lblPortOpen->text(), u"Port Abierto"_s);
    FermePortCOM(dialogue);
    QCOMPARE(frmPrinc->lblPortOpen->text(), u"Port Cerrado"_s);
    QVERIFY(!PortOuvert && !atelier.ligne->ouverte);
}

// On an open port nothing but the settings changes; a buffer size cannot, and what stands behind it is not applied.
void TestPortCom::OuvreOuvert()
{
    Atelier atelier;
    OuvrePortCOM();
    ParamCom.NumPort = 9;
    ParamCom.Vitesse = u"4800"_s;
    OuvrePortCOM();
    QCOMPARE(atelier.controle.CommPort(), 2);
    QCOMPARE(atelier.ligne->reglages.constLast().vitesse, 4800);

    ParamCom.TailleTamponRecep = 99;
    ParamCom.Vitesse = u"9600"_s;
    atelier.operateur.LitErreur(ErreurPort::DejaOuvert, u"Opération non valide quand le port est ouvert"_s);
    OuvrePortCOM();
    QVERIFY(atelier.controle.PortOpen());
    QCOMPARE(atelier.ligne->reglages.constLast().vitesse, 4800);
}

// The first step that fails is told once, and the steps behind it do not run.
void TestPortCom::OuvreRate()
{
    Atelier atelier;
    for (const auto &[flux, port, refus, numero, vitesse, bits, texte] :
         {std::tuple{9, 2, 0, 8015, u"x"_s, u"8"_s, u"Impossible de définir l'état de communication"_s},
          {1, 99, 0, 8007, u"x"_s, u"4"_s, u"Le débit en bauds du périphérique n'est pas pris en charge"_s},
          {1, 99, 0, 8008, u"9600"_s, u"4"_s, u"La taille d'octet spécifiée n'est pas valide"_s},
          {1, 17, 8015, 8002, u"9600"_s, u"8"_s, u"Numéro de port non valide"_s},
          {1, 2, 8015, 8015, u"9600"_s, u"8"_s, u"Impossible de définir l'état de communication"_s}}) {
        ParamCom.ControleFlux = flux;
        ParamCom.Vitesse = vitesse;
        ParamCom.BitsDonnees = bits;
        ParamCom.NumPort = port;
        atelier.ligne->refusReglage = refus;
        atelier.operateur.LitErreur(numero, texte);
        OuvrePortCOM();
        QVERIFY(!atelier.controle.PortOpen() && !PortOuvert);
        QCOMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Rouge);
        QCOMPARE(frmPrinc->lblPortOpen->text(), u"Port Fermé"_s);
    }
}

// A port that stayed open can be closed from the menu; the lamp follows by itself.
void TestPortCom::MenuFermeture()
{
    const Atelier atelier;
    PortOuvert = true;
    QVERIFY(!Operateur::Offre("Mnu_FermePortCom") && !PortOuvert);
    OuvrePortCOM();
    PortOuvert = false;
    Operateur::Menu("Mnu_FermePortCom");
    QVERIFY(!atelier.controle.PortOpen() && !PortOuvert && !atelier.ligne->ouverte);
}

// What the operator reads: our text in his language, or the platform's for a number without one.
void TestPortCom::Textes()
{
    Atelier atelier;
    Em_Rc dialogue(frmPrinc);
    for (const auto &[langue, numero, titre, texte] :
         {std::tuple{0, 1001, "Erreur N°:  1001Fermeture du port de communication",
                     "Réception d'un signal d'interruption."},
          {1, 8086, "Error N°:  8086Closing of the port of communication", "Number of invalid port of communication."},
          {2, 70, "Error N°:  70Cierre del puerto de comunicación", "Permission denied"}}) {
        LangIndex = langue;
        OuvrePortCOM();
        atelier.operateur.Repond(titre, texte, Boite::Critique, QMessageBox::Ok);
        ErreurPortCOM(Erreur(numero, u"Permission denied"_s), dialogue);
        QVERIFY(!atelier.controle.PortOpen() && !PortOuvert);
    }
}

QTEST_MAIN(TestPortCom)
#include "TestPortCom.moc"
