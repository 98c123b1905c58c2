#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "machine/Banc.h"
#include "machine/MachineSimulee.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QDate>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Whole sessions at the presetting bench, over the line at its speed, up to the gauge file at the machine.
class TestSessionBanc : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Tour();
    void Fraiseuse();
};

namespace {

struct Atelier
{
    Atelier(int langue, int vitesse)
        : poste(langue)
        , machine(ReglageMachine{{vitesse, 20}, {}, {}, "\x04", true})
    {
        poste.Relie(2, machine.Chemin());
        poste.Charge("");
        ParamCom.Vitesse = QString::number(vitesse);
        ParamCom.TailleRecep = int(Banc::TailleSalve);
        ParamCom.NbCarLecture = 1; // so that a bell is always read alone
        ParamCom.Echo = 1;
        ParamCom.TypeEnvoi = 1; // the whole file
        DosJauge = poste.Dossier();
    }

    void Commence(const QByteArray &mac)
    {
        operateur.Choisit(poste.Ecrit("Machine.mac", mac));
        operateur.Saisit("Rc_Fic", "Text1", "outils");
        operateur.Presse("Rc_Fic", "Command2");
        operateur.Fait("MsgBox", Operateur::Clique(QMessageBox::Yes));
    }

    /// One tool after the other: the bench sends its burst, and the operator goes on, or ends behind the last.
    void Mesure(const QByteArray &liste, const Envoi &modele, const QByteArray &cloche)
    {
        Banc banc(liste);
        for (qsizetype k = 1; k <= banc.Nombre(); ++k) {
            Envoi salve = modele;
            salve.Salve = true;
            salve.Texte = banc.Mesure();
            salve.Texte.insert(k == 1 ? 0 : 53, cloche); // before the first burst, in the midst of the others
            operateur.Fait(
                "Em_Rc", [this, salve](QWidget &) { machine.Emet(salve); }, [] { return PortOuvert; });
            operateur.Presse("Em_Rc", k < banc.Nombre() ? "Command5" : "Command6",
                             [k] { return Operateur::Lu("Label2").contains(QString::number(k) + u" rec"_s); });
        }
    }

    /// The gauge file, which now stands in the pane, goes to the machine.
    QByteArray Emet(const QString &succes)
    {
        operateur.Fait("MsgBox", Operateur::Clique(QMessageBox::Yes));
        operateur.Presse("Em_Rc", "Command2");
        operateur.Presse("Em_Rc", "Command1", [succes] { return Operateur::Lu("Label2") == succes; });
        Operateur::Barre(11);
        if (!machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }))
            return "nothing came";
        return machine.Programmes()[0].Texte;
    }

    Poste poste;
    MachineSimulee machine;
    Operateur operateur;
};

} // namespace

// A lathe, in Spanish and at 1200 baud: a diameter for a machine that wants radii, the pocket of an even corrector, a
// locator that turns X round, a corrector that the machine does not have, an alarm.
void TestSessionBanc::Tour()
{
    Atelier atelier(2, 1200);
    atelier.Commence("0\r\n1\r\n.05\r\n0\r\n0\r\n100\r\n200\r\n32\r\n\"jau\"\r\n\"%7999\"\r\n0\r\n");
    atelier.Mesure("1 102.3604 51.0005 D\n2 98.12 26 R\n99999 87.051 12.25 D\n12 120 203 D", {}, "\a");
    atelier.operateur.Repond("Error de número de corrector",
                             "Atención número de corrector 99999|   prohibición para la instrumentos Nø: 3",
                             Boite::Critique, QMessageBox::Ok);
    atelier.operateur.Saisit("InputBox", "", "7");
    atelier.operateur.Fait("InputBox", [](QWidget &boite) { QMetaObject::invokeMethod(&boite, "accept"); });
    for (const auto &[rayon, localisateur] : {std::pair{".8", "3"}, {"0.4", "5"}, {"1.2", "0"}, {"", "8"}}) {
        atelier.operateur.Saisit("JauTour", "Text1", rayon);
        atelier.operateur.Saisit("JauTour", "Text2", localisateur);
        atelier.operateur.Presse("JauTour", "Command1");
    }
    atelier.operateur.Repond("Alarma mide instrumentos en X",
                             "Alarma mide instrumentos en X!\rCapacidad en X del corrector N°: \r12 > à 100 mm",
                             Boite::Critique, QMessageBox::Ok);
    Operateur::Menu("Mnu_RecepBanc");
    const QByteArray attendu = "%\r\nD1 X25.5 Z102.36 R.8 C3\r\nD2 X-25.95 Z98.12 R.4 C5\r\n"
                               "D7 X6.125 Z87.051 R1.2 C0\r\nD12 X101.55 Z120 R0 C8\r\n";
    QCOMPARE(atelier.poste.Lit("OUTILS.JAU"), attendu);
    QCOMPARE(TitreFichier, u"OUTILS.JAU"_s);
    QCOMPARE(atelier.Emet(u"Transferencia terminada con éxito !"_s), attendu);
}

// A mill, in English and at 9600 baud, in E parameters without the reset lines; the bursts come in pieces.
void TestSessionBanc::Fraiseuse()
{
    Atelier atelier(1, 9600);
    atelier.Commence("1\r\n0\r\n0\r\n1\r\n1\r\n100\r\n200\r\n300\r\n\"cor\"\r\n\"%12\"\r\n1\r\n");
    Envoi modele;
    modele.Morceau = 25;
    modele.PauseLigneMs = 60; // longer than the silence that ends a burst
    atelier.Mesure("1 120.45 5 R\n120 98.3004 16.5 D", modele, {});
    Operateur::Barre(13);
    const QByteArray attendu = "%12 (JAUGES OUTILS LE:" + QDate::currentDate().toString(u"MM-dd-yyyy"_s).toLatin1() +
                               ")\r\n(JAUGE L     JAUGE R)\r\nE50001=120450 E52001=10000\r\n"
                               "E50120=98300 E52120=16500\r\n\r\nM02\r\n";
    QCOMPARE(atelier.poste.Lit("OUTILS.COR"), attendu);
    QCOMPARE(atelier.Emet(u"Transfer finished successfully !"_s), attendu);
}

QTEST_MAIN(TestSessionBanc)
#include "TestSessionBanc.moc"
