#include "DisquePlein.h"
#include "Essais.h"
#include "pilote/Operateur.h"
#include "pilote/Poste.h"

#include "comconfig/DosProg.h"
#include "comconfig/FrmConfDem.h"
#include "comconfig/Prop.h"
#include "donnees/Jauge.h"
#include "donnees/ParamCom.h"
#include "donnees/ParamMac.h"
#include "donnees/Reglages.h"
#include "donnees/Transfert.h"
#include "gauges/ConfMac.h"
#include "gauges/CreFicJauge.h"
#include "shell/CadreExplorateur.h"
#include "shell/Document.h"
#include "shell/FrmLangue.h"
#include "shell/FrmPrinc.h"

#include <QDir>
#include <QLineEdit>

#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char Ini[] = "Dorvanel.ini";

/// Until the guard goes, the disk has no room beyond what the file holds, or the folder of a folder to be made is gone;
/// or else neither may be written.
[[nodiscard]] auto Gate(const Poste &poste, const QString &fichier, bool dossier, bool ferme)
{
    auto plein = DisquePlein(ferme || dossier ? RLIM_INFINITY : rlim_t(QFileInfo(poste.Chemin(fichier)).size()));
    const bool deplace = dossier && !ferme;
    const QString parti = poste.Dossier() + u".parti"_s;
    const bool gate = !deplace || QDir().rename(poste.Dossier(), parti);
    const auto droits = [=, &poste](mode_t surDossier, mode_t surFichier, uid_t qui) {
        setfsuid(geteuid());
        chmod(qPrintable(poste.Dossier()), surDossier);
        chmod(qPrintable(poste.Chemin(fichier)), surFichier);
        setfsuid(qui); // no permission stops root
    };
    if (ferme)
        droits(0555, 0444, 65534);
    return qScopeGuard([=, &poste, plein = std::move(plein)] {
        QVERIFY(gate);
        QVERIFY(!deplace || QDir().rename(parti, poste.Dossier()));
        if (ferme)
            droits(0700, 0644, geteuid());
    });
}

const QString NonEnregistre = QStringLiteral("Error at the time of the recording of the file");

/// A workstation with a changed text, and its operator before the dialogs that write.
struct Atelier : Poste, Operateur
{
    explicit Atelier(const QString &leFichier)
        : Poste(1)
        , fichier(leFichier)
    {
        Ecrit(Ini, " 0 \r\n\"\"\r\n 0 \r\n\"\"\r\n 0 \r\n\r\n 1 \r\n");
        OuvreDocument(Ecrit("P.iso", "ANCIEN\r\n"));
        frmPrinc->Text1->setText(texte);
        Menu("Mnu_AffichDOS");
        dosProg.Command3->click();
        dosProg.Text1->setText(fichier);
        Transfert.NomFicRecep = fichier;
        Jauges.Jauge(Jauges.NbJauges = 1) = {1, 50, 10, 0, 0, u' '};
    }

    void Dit(const QString &dit, const QString &titre = u"Error"_s, int icone = Boite::Critique)
    {
        const QString cause =
            ferme ? u"Access is refused."_s : u"Reading or writing has failed.\rThe file is too large for this disk."_s;
        const QString details = icone == Boite::Critique ? QString() : u'\r' + cause;
        if (echoue)
            Repond(titre, dit + details, icone, QMessageBox::Ok);
    }
    void Nomme()
    {
        Choisit(Chemin(fichier));
        Fait("", Clique(QMessageBox::Yes)); // replace the file of that name
    }
    /// Whether to save is answered Yes, what comes behind it No.
    void Garde(const std::function<void()> &commande, bool suite = true)
    {
        Fait("MsgBox", Clique(QMessageBox::Yes));
        Dit(NonEnregistre);
        if (suite || echoue) // at the very end, that the net holds nothing either
            Fait("MsgBox", Clique(suite ? QMessageBox::No : QMessageBox::Ok));
        commande();
        QCOMPARE(Document.FichierModifie, echoue);
    }
    const QString fichier, racine = ParamCom.DosRecep = Reglages.DosJauge = Transfert.DossierRecep = Dossier();
    QString texte = u"G1 X12.5 Z4"_s;
    bool echoue = true, ferme = false;
    Prop prop{nullptr};
    ConfMac conf{nullptr};
    FrmConfDem options{nullptr};
    FrmLangue langue;
    DosProg dosProg{DossierProgrammes, nullptr};
};

/// What writes, the file or folder, and the steps of its operator: on the bad disk, then once more on the good one.
struct Ecrivain
{
    const char *nom;
    const char *fichier;
    void (*joue)(Atelier &);
};

const Ecrivain Ecrivains[] = {
    {"save as", "AUTRE.ISO",
     [](Atelier &a) {
         a.Nomme();
         a.Dit(NonEnregistre);
         Operateur::Menu("Mnu_EnregistrerSous");
         const QString nom = a.echoue ? u"P.iso"_s : a.fichier;
         QCOMPARE((QStringList{Document.NomFichier, Document.TitreFichier, frmPrinc->Label2->text()}),
                  (QStringList{a.Chemin(a.fichier), a.fichier, nom}));
         QVERIFY(frmPrinc->windowTitle().endsWith(a.Chemin(nom)));
         QCOMPARE(Document.FichierModifie, a.echoue);
     }},
    {"new", "P.iso", [](Atelier &a) { a.Garde([] { Operateur::Menu("Mnu_Nouveau"); }); }},
    {"quit", "P.iso", [](Atelier &a) { a.Garde([] { Operateur::Menu("Mnu_Quitter"); }); }},
    {"close", "P.iso", [](Atelier &a) { a.Garde([] { Q_EMIT frmPrinc->Form_Unload(); }, false); }},
    {"configuration", "TOUR.par",
     [](Atelier &a) {
         a.Nomme();
         a.prop.Command17->click();
         QCOMPARE((QStringList{EtatConf.FicConf, EtatConf.NomConf}), (QStringList{a.Chemin(a.fichier), a.fichier}));
         QCOMPARE(a.prop.Label6->text() == a.fichier, !a.echoue);
         QCOMPARE(EtatConf.malEcrite, a.echoue);
     }},
    {"machine", "TOUR.mac",
     [](Atelier &a) {
         a.Nomme();
         a.conf.Command2->click();
         QCOMPARE(a.conf.windowTitle().endsWith(a.fichier), !a.echoue);
     }},
    {"start", Ini,
     [](Atelier &a) {
         a.Redemarre();
         a.texte.clear();
     }},
    {"options", Ini, [](Atelier &a) { a.options.Command4->click(); }},
    {"language dialog", Ini, [](Atelier &a) { a.langue.Command1->click(); }},
    {"language menu", Ini, [](Atelier &) { Operateur::Menu("Mnu_Lang_1"); }},
    {"reception folder", "Dorvanel.CFG",
     [](Atelier &a) {
         a.Dit(NonEnregistre, u"Error"_s, Boite::Exclamation);
         a.dosProg.Command1->click();
     }},
    {"editor", "Dorvanel.CFG",
     [](Atelier &a) {
         a.Choisit("/bin/sh");
         a.Dit(NonEnregistre, u"Dorvanel Pro"_s, Boite::Exclamation);
         a.prop.Command5->click();
         QCOMPARE((QStringList{a.prop.Label12->text(), Reglages.EditeurCN}), (QStringList{u"/bin/sh"_s, u"/bin/sh"_s}));
     }},
    {"gauges", "JAUGES.COR",
     [](Atelier &a) {
         try {
             CreFicJauge();
             QVERIFY(!a.echoue);
         } catch (const JaugesNonEcrites &erreur) {
             QVERIFY(a.echoue);
             QVERIFY(erreur.Intact());
             QCOMPARE(erreur.TexteJauges(), u"%\r\nD1 X10 Z50 R0 C0\r\n"_s);
         }
     }},
    {"folder in the explorer", "Neuf",
     [](Atelier &a) {
         NumeroErreur([&a] { frmPrinc->Frame1->FolderTreeview1->setSelectedFolder(a.racine); });
         a.Fait("InputBox", [&a](QWidget &fenetre) {
             fenetre.findChild<QLineEdit *>()->setText(a.fichier);
             dynamic_cast<QDialog &>(fenetre).accept();
         });
         a.Dit(u"The repertory %1  could not be to create !"_s.arg(a.Chemin(a.fichier)));
         frmPrinc->Frame1->Command1->click();
     }},
    {"folder for receptions", "Neuf", [](Atelier &a) {
         NumeroErreur([&a] { a.dosProg.FolderTreeview1->setSelectedFolder(a.racine); });
         a.Dit(u"The directory <%1> could not be created !"_s.arg(a.Chemin(a.fichier)), u"Erreur"_s);
         a.dosProg.Command4->click();
         QCOMPARE(a.dosProg.Frame1->isHidden(), !a.echoue);
     }}};

} // namespace

class TestDisque : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Pannes_data()
    {
        QTest::addColumn<int>("rang");
        QTest::addColumn<bool>("ferme");
        for (int rang = 0; rang < int(std::size(Ecrivains)); ++rang)
            for (const bool ferme : {false, true})
                QTest::addRow("%s%s", Ecrivains[rang].nom, ferme ? ", read-only" : "") << rang << ferme;
    }
    void Pannes();
    void Coupes();
};

// Told, or silent where a command ends so; text and former file whole; then the same command goes through.
void TestDisque::Pannes()
{
    QFETCH(int, rang);
    QFETCH(bool, ferme);
    const QString fichier = QString::fromLatin1(Ecrivains[rang].fichier);
    const bool dossier = fichier == u"Neuf";
    Atelier atelier(fichier);
    if (!dossier && fichier != QLatin1String(Ini))
        atelier.Ecrit(fichier, "ANCIEN\r\n");
    const QByteArray avant = atelier.Lit(fichier);
    {
        atelier.ferme = ferme;
        const auto gate = Gate(atelier, fichier, dossier, ferme);
        Ecrivains[rang].joue(atelier);
    }
    QCOMPARE(frmPrinc->Text1->Text(), atelier.texte);
    QCOMPARE(Document.FichierModifie, !atelier.texte.isEmpty());
    QCOMPARE(atelier.Lit(fichier) + atelier.Lit("P.iso"), avant + "ANCIEN\r\n");
    QVERIFY(!QFileInfo(atelier.Chemin(fichier)).isDir());
    atelier.echoue = false;
    Ecrivains[rang].joue(atelier);
    QCOMPARE(QFileInfo(atelier.Chemin(fichier)).isDir(), dossier);
    QVERIFY(dossier || (atelier.Lit(fichier) != avant && atelier.Lit(fichier).endsWith("\r\n")));
}

// A new configuration that the disk cuts does not stay.
void TestDisque::Coupes()
{
    const Poste poste(0);
    const QString coupe = poste.Chemin("coupe");
    const auto plein = DisquePlein(8);
    for (const auto ecrit : {EcrireFichierPar, EcritMac}) {
        QVERIFY_EXCEPTION_THROWN(ecrit(coupe), Erreur);
        QVERIFY(!QFile::exists(coupe));
    }
}

QTEST_MAIN(TestDisque)
#include "TestDisque.moc"
