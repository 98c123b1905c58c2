#include "Donnees.h"
#include "Essais.h"
#include "LigneScenario.h"
#include "pilote/Operateur.h"
#include "pilote/Poste.h"

#include "donnees/ParamCom.h"
#include "locale/Langue.h"
#include "platform/serie/ErreurPort.h"
#include "shell/FrmPrinc.h"
#include "transfer/Em_Rc.h"
#include "transfer/Emission.h"
#include "transfer/FichierRecu.h"
#include "transfer/PortCom.h"

#include <QFile>

#include <cerrno>

namespace {

/// A workstation whose ports are all the same scripted line.
struct Atelier
{
    explicit Atelier(int langue = 0)
        : poste(langue)
    {
        poste.Charge("G0");
        controle.setFabrique(LigneScenario::Fabrique(ligne));
    }

    const Poste poste;
    Operateur operateur;
    std::shared_ptr<Scenario> ligne = std::make_shared<Scenario>();
    MSComm &controle = *frmPrinc->MSComm1;
};

/// The way of flow control, the port, the number with which the line refuses, the number told, settings and text.
const std::tuple<const char *, int, int, int, int, const char *, const char *, QString> Refus[] = {
    {"flow control", 9, 2, 0, 8015, "x", "8", u"Impossible de définir l'état de communication"_s},
    {"speed", 1, 99, 0, 8007, "x", "4", u"Le débit en bauds du périphérique n'est pas pris en charge"_s},
    {"data bits", 1, 99, 0, 8008, "9600", "4", u"La taille d'octet spécifiée n'est pas valide"_s},
    {"port number", 1, 17, 8015, 8002, "9600", "8", u"Numéro de port non valide"_s},
    {"held", 1, 2, 8005, 8005, "9600", "8", u"Port déjà ouvert"_s},
    {"no rights", 1, 2, 70, 70, "9600", "8",
     u"L'accès est refusé.\rrefused\rLes ports série sont réservés au groupe dialout. S'y inscrire une fois, dans un "
     "terminal :\r    sudo adduser $USER dialout\rpuis fermer la session et la rouvrir."_s}};

/// The number told while the line holds the last characters: none where the machine takes them at last.
const std::tuple<const char *, int, QString> Fins[] = {
    {"taken", 0, {}},
    {"cancelled", 8018, u"Opération valide uniquement quand le port est ouvert"_s},
    {"unplugged", 8020, u"Erreur de lecture du périphérique de communication"_s}};

using Compteurs = CompteursLigne;
const std::tuple<const char *, int, unsigned Compteurs::*, QString> EvenementsLigne[] = {
    {"parity", 0, &Compteurs::parite, u"Erreur de parité"_s},
    {"lost characters", 1, &Compteurs::debordements, u"Going beyond of the plug of receiving"_s},
    {"CTS", 2, &Compteurs::cts, u"Cambio de Préstamo que debe emitirse (CTS) detectado"_s}};

int clesRetirees = 0; // writings that are taken and never reach the disk

} // namespace

// The linker puts this in the place of the system's.
extern "C" int __real_fsync(int fd);
extern "C" int __wrap_fsync(int fd) // NOLINT(bugprone-reserved-identifier)
{
    if (clesRetirees-- <= 0)
        return __real_fsync(fd);
    errno = EIO;
    return -1;
}

class TestPortCom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // All settings of the record reach the control, and the line has them from its first moment. A configuration loaded
    // between two sessions counts for the second.
    void Ouvre()
    {
        const Atelier atelier;
        MSComm &c = atelier.controle;
        OuvrePortCOM();
        QVERIFY(c.PortOpen());
        QVERIFY(frmPrinc->PortOuvert);
        QVERIFY(!atelier.ligne->rts);
        QVERIFY(!atelier.ligne->dtr);
        QCOMPARE(c.Settings(), u"115200,n,8,1"_s);
        QCOMPARE(atelier.ligne->reglages.constFirst().vitesse, 115200);
        QCOMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Verte);
        QCOMPARE(frmPrinc->lblPortOpen->text(), u"Port Ouvert"_s);

        Em_Rc dialogue(frmPrinc);
        FermePortCOM(dialogue.Vue());
        LangIndex = 2;
        LireFichierPar(Donnees(u"Complet.par"_s));
        ParamCom.BitsDonnees = u"5"_s; // which alone go with 1.5 stop bits
        OuvrePortCOM();
        QCOMPARE((QList<int>{c.CommPort(), c.InputLen(), c.NullDiscard(), c.InBufferSize(), c.OutBufferSize(),
                             c.RThreshold(), c.SThreshold(), c.Handshaking()}),
                 (QList<int>{3, 100, 1, 2048, 256, 128, 5, 1}));
        QCOMPARE((QStringList{c.ParityReplace(), c.Settings()}), (QStringList{u"?"_s, u"19200,o,5,1.5"_s}));
        QVERIFY(!atelier.ligne->rts);
        QVERIFY(atelier.ligne->dtr);
        QCOMPARE(atelier.ligne->reglages.constLast().demiBitsArret, 3);
        QCOMPARE(frmPrinc->lblPortOpen->text(), u"Port Abierto"_s);
        FermePortCOM(dialogue.Vue());
        QCOMPARE(frmPrinc->lblPortOpen->text(), u"Port Cerrado"_s);
        QVERIFY(!frmPrinc->PortOuvert);
        QVERIFY(!atelier.ligne->ouverte);
    }

    // The first step that fails is told once, and the steps behind it do not run.
    void OuvreRate_data() { Rangees(Refus); }
    void OuvreRate()
    {
        Atelier atelier;
        const auto &[nom, flux, port, refus, numero, vitesse, bits, texte] = Rangee(Refus);
        ParamCom.ControleFlux = flux;
        ParamCom.Vitesse = QLatin1String(vitesse);
        ParamCom.BitsDonnees = QLatin1String(bits);
        ParamCom.NumPort = port;
        atelier.ligne->refusReglage = refus;
        atelier.operateur.LitErreur(numero, texte);
        OuvrePortCOM();
        QVERIFY(!atelier.controle.PortOpen());
        QVERIFY(!frmPrinc->PortOuvert);
        QCOMPARE(frmPrinc->lblPortOpen->text(), u"Port Fermé"_s);
    }

    // A port that was open takes the settings, and then stays as it is behind a buffer size that it cannot take.
    void DejaOuvert()
    {
        Atelier atelier;
        OuvrePortCOM();
        ParamCom.Vitesse = u"4800"_s;
        ParamCom.NumPort = 9;
        OuvrePortCOM();
        ParamCom.Vitesse = u"2400"_s;
        ParamCom.TailleTamponRecep = 99;
        LangIndex = 1;
        atelier.operateur.Repond(u"Error N°:  8000Closing of the port of communication"_s,
                                 u"Nonvalid operation when the port is open"_s, Boite::Critique, QMessageBox::Ok);
        OuvrePortCOM();
        QVERIFY(atelier.controle.PortOpen());
        QCOMPARE(atelier.controle.CommPort(), 2);
        QCOMPARE(atelier.ligne->reglages.constLast().vitesse, 4800);
        LangIndex = 2; // object and cause stand below, where they say more, or alone for a number without a text
        Em_Rc dialogue(frmPrinc);
        for (const auto &[numero, cause, texte] :
             {std::tuple{70, EACCES, u"El acceso está denegado.\r/dev/x"_s},
              {70, EROFS, u"El acceso está denegado.\r/dev/x\rEl disco está protegido contra escritura."_s},
              {62, EIO, u"El fichero está incompleto."_s},
              {1005, EPROTO, u"/dev/x\rCausa desconocida, número 71."_s}}) {
            atelier.operateur.Repond(u"Error N°:  %1Cierre del puerto de comunicación"_s.arg(numero), texte,
                                     Boite::Critique, QMessageBox::Ok);
            ErreurPortCOM(Erreur(numero, u"/dev/x"_s, cause), dialogue.Vue());
        }
        QVERIFY(!atelier.controle.PortOpen());
        QVERIFY(!frmPrinc->PortOuvert);
    }

    // A port that stayed open can be closed from the menu; the lamp follows by itself.
    void MenuFermeture()
    {
        const Atelier atelier;
        frmPrinc->PortOuvert = true;
        QVERIFY(!Operateur::Offre("Mnu_FermePortCom"));
        QVERIFY(!frmPrinc->PortOuvert);
        OuvrePortCOM();
        frmPrinc->PortOuvert = false;
        Operateur::Menu("Mnu_FermePortCom");
        QVERIFY(!atelier.controle.PortOpen());
        QVERIFY(!frmPrinc->PortOuvert);
        QVERIFY(!atelier.ligne->ouverte);
    }

    // The machine stops the line over the last characters, which the system has already: they are waited for, until it
    // takes them, the operator cancels or the plug is pulled.
    void FinRetenue_data() { Rangees(Fins); }
    void FinRetenue()
    {
        const auto &[nom, numero, texte] = Rangee(Fins);
        Atelier atelier;
        Scenario &ligne = *atelier.ligne;
        ligne.immobile = true;
        Em_Rc dialogue(frmPrinc);
        int coups = 0;
        QTimer machine;
        connect(&machine, &QTimer::timeout, this, [&, numero = numero] {
            if (ligne.ecrits.size() < 3 || ++coups != 60)
                return;
            QCOMPARE(dialogue.Label2->text(), u"Emission fin de transfert"_s);
            if (numero == 8018)
                return dialogue.reject();
            ligne.nonEmis = 0; // nor does a system hold anything for a device that has gone
            if (numero == 8020)
                ligne.Debranche();
        });
        machine.start(1);
        if (numero != 0)
            atelier.operateur.LitErreur(numero, texte);
        EnvoiFich_FinFich(dialogue.Vue());
        QVERIFY(coups >= 60);
        QVERIFY(!frmPrinc->PortOuvert);
        QVERIFY(!ligne.ouverte);
        QCOMPARE(dialogue.Label2->text() == u"Transfert terminé avec succès !", numero == 0);
        QCOMPARE(ligne.ecrits, QByteArray("G0\x04"));
        QCOMPARE(ligne.jetsEmission, numero == 8018 ? 1 : 0);
    }

    // A machine that echoes each character is never told to stop in the midst of its program.
    void MachineEcho()
    {
        const Atelier atelier;
        const QByteArray programme(3000, 'N');
        frmPrinc->Text1->setText(QString::fromLatin1(programme));
        atelier.ligne->obeitXoff = false;
        qsizetype rendus = 0;
        QTimer machine;
        connect(&machine, &QTimer::timeout, this, [&] {
            atelier.ligne->Envoie(atelier.ligne->ecrits.mid(rendus));
            rendus = atelier.ligne->ecrits.size();
        });
        machine.start(1);
        Em_Rc dialogue(frmPrinc);
        EnvoiFich_FinFich(dialogue.Vue());
        QCOMPARE(atelier.ligne->ecrits, programme + '\x04');
    }

    // A closing that fails is told, and the operator closes the dialog himself.
    void FermeRate()
    {
        struct LigneCollee : LigneScenario
        {
            using LigneScenario::LigneScenario;
            void JetteEmission() override { throw Erreur(ErreurPort::Lecture, u"stuck"_s); }
        };
        Atelier atelier;
        atelier.controle.setFabrique([&](int) { return std::make_unique<LigneCollee>(atelier.ligne); });
        OuvrePortCOM();
        atelier.controle.Output(QString(5000, u'N'));
        atelier.operateur.LitErreur(8020, u"Erreur de lecture du périphérique de communication"_s);
        Em_Rc dialogue(frmPrinc);
        FermePortCOM(dialogue.Vue());
        QCOMPARE(dialogue.Command1->text(), u"&Fermer"_s);
        QVERIFY(!atelier.controle.PortOpen());
        QVERIFY(!atelier.ligne->ouverte);
        QCOMPARE(frmPrinc->lblPortOpen->text(), u"Port Ouvert"_s); // until the lamps' timer looks
    }

    // The stick on which the rest of a failed reception is to be saved was pulled: told and asked again, also after a
    // choice that was given up, until it is written.
    void SauvegardeRatee()
    {
        Atelier atelier;
        const auto accepte = [&] {
            atelier.operateur.Repond("Enregistrer le texte reçu",
                                     "La réception n'a pas abouti, le texte déjà reçu n'est pas enregistré.\r"
                                     "L'enregistrer dans un fichier ?",
                                     Operateur::DemandeSimple, QMessageBox::Yes);
        };
        clesRetirees = 2; // the kept copy, and the file
        accepte();
        atelier.operateur.Choisit(atelier.poste.Chemin("RESTE.ISO"));
        atelier.operateur.Repond("Enregistrer le texte reçu",
                                 "Erreur lors de l'enregistrement du fichier\rLa lecture ou l'écriture a échoué.\r"
                                 "Le disque ou l'appareil ne répond plus.",
                                 Boite::Critique, QMessageBox::Ok);
        accepte();
        atelier.operateur.Ferme("CommonDialog");
        accepte();
        atelier.operateur.Choisit(atelier.poste.Chemin("RESTE2.ISO"));
        SauveAilleurs(u"G0\r\n"_s, OffreTexteRecu(false));
        QCOMPARE(atelier.poste.Lit("RESTE2.ISO"), QByteArray("G0\r\n"));
    }

    // What happens on the line is told in the operator's language; lost characters empty the buffer.
    void Evenements_data() { Rangees(EvenementsLigne); }
    void Evenements()
    {
        const auto &[nom, langue, compteur, texte] = Rangee(EvenementsLigne);
        const Atelier atelier(langue);
        OuvrePortCOM();
        atelier.ligne->Envoie("perdu");
        QTRY_COMPARE(atelier.controle.InBufferCount(), 5);
        ++((*atelier.ligne).compteurs.*compteur);
        QTRY_COMPARE(frmPrinc->Etat->text(), u"État : "_s + texte);
        QTRY_COMPARE(atelier.controle.InBufferCount(), compteur == &Compteurs::debordements ? 0 : 5);
        QCOMPARE(frmPrinc->Etat->isHidden(), compteur != &Compteurs::cts);
    }
};

QTEST_MAIN(TestPortCom)
#include "TestPortCom.moc"
