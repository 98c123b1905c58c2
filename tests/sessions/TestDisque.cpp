#include "Operateur.h"
#include "platform/Essais.h"
#include "Poste.h"

#include "comconfig/DosProg.h"
#include "comconfig/FrmConfDem.h"
#include "comconfig/ParamCom.h"
#include "comconfig/Prop.h"
#include "gauges/ConfMac.h"
#include "gauges/CreFicJauge.h"
#include "gauges/Jauge.h"
#include "locale/FrmLangue.h"
#include "locale/Langue.h"
#include "shell/CadreExplorateur.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"
#include "transfer/Transfert.h"

#include <QDir>
#include <QLineEdit>
#include <QScopeGuard>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Ini[] = "Dorvanel.ini";

enum Panne { Plein, LectureSeule, Parti };

/// Until the guard goes, the disk has no room beyond what the file holds, the folder may not be written, or is gone.
[[nodiscard]] auto Gate(Panne panne, const QString &dossier, const QString &fichier)
{
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit libre{};
    getrlimit(RLIMIT_FSIZE, &libre);
    const rlimit serre{rlim_t(QFileInfo(fichier).size()), libre.rlim_max};
    const uid_t avant = geteuid();
    if (panne == LectureSeule)
        QFile::setPermissions(fichier, QFile::ReadOwner | QFile::ReadOther);
    const bool gate = chmod(qPrintable(dossier), panne == LectureSeule ? 0555 : 0755) == 0 &&
                      (panne != Plein || setrlimit(RLIMIT_FSIZE, &serre) == 0) &&
                      (panne != Parti || QDir().rename(dossier, dossier + u".parti"_s)) &&
                      (panne != LectureSeule || avant != 0 || seteuid(65534) == 0); // for root rights do not count
    return qScopeGuard([=] {
        QVERIFY(gate && setrlimit(RLIMIT_FSIZE, &libre) == 0 && seteuid(avant) == 0);
        QVERIFY(panne != Parti || QDir().rename(dossier + u".parti"_s, dossier));
        QCOMPARE(chmod(qPrintable(dossier), 0755), 0);
        QFile::setPermissions(fichier, QFile::ReadOwner | QFile::WriteOwner);
    });
}

constexpr Texte3 TitreErreur{u"Erreur", u"Error", u"Error"};
constexpr Texte3 NonEnregistre{u"Erreur lors de l'enregistrement du fichier",
                               u"Error at the time of the recording of the file", u"Error en el registro del fichero"};
constexpr Texte3 NonCree{u"Le dossier %1 n'a pas pu être créé !", u"The repertory %1  could not be to create !",
                         u"El directorio %1 no pudo ser crear !"};
constexpr Texte3 NonCreeRecep{u"Le dossier <%1> n'a pas pu être créé !", u"The directory <%1> could not be created !",
                              u"El directorio <%1>  no pudo crearse !"};

/// A workstation with a changed text, and its operator before the dialogs that write. Each fault has its language.
struct Atelier : Poste, Operateur
{
    Atelier(Panne laPanne, const QString &leFichier)
        : Poste(laPanne)
        , panne(laPanne)
        , fichier(leFichier)
    {
        Ecrit(Ini, u" 0 \r\n\"\"\r\n 0 \r\n\"\"\r\n 0 \r\n\r\n %1 \r\n"_s.arg(LangIndex).toLatin1());
        OuvreDocument(Ecrit("P.iso", "ANCIEN\r\n"));
        frmPrinc->Text1->setText(texte);
        Menu("Mnu_AffichDOS");
        dosProg.Command3->click();
        dosProg.Text1->setText(fichier);
        NomFicRecep = fichier;
        Jauge[std::size_t(NbJauges = 1)] = {1, 50, 10, 0, 0, u' '};
    }

    void Dit(const Texte3 &dit, const QString &titre, int icone = Boite::Critique)
    {
        const QString cause = qt_error_string(std::array{EFBIG, EACCES, ENOENT}[panne]);
        const QString details = icone == Boite::Critique ? QString() : u'\r' + cause;
        if (echoue)
            Repond(titre, Texte(dit).replace(u"%1"_s, Chemin(fichier)) + details, icone, QMessageBox::Ok);
    }
    void Nomme()
    {
        Choisit(Chemin(fichier));
        if (!echoue || panne != Parti)
            Fait("", Clique(QMessageBox::Yes)); // replace the file of that name
    }
    /// Whether to save is answered Yes, what comes behind it No.
    void Garde(const std::function<void()> &commande, bool suite = true)
    {
        Fait("MsgBox", Clique(QMessageBox::Yes));
        Dit(NonEnregistre, Texte(TitreErreur));
        if (suite)
            Fait("MsgBox", Clique(QMessageBox::No));
        commande();
        QCOMPARE(FichierModifie, echoue ? Vrai : 0);
    }
    /// Written, French needs a new start, and a box says so.
    void Parle(const std::function<void()> &commande)
    {
        if (!echoue && LangIndex == 0)
            Fait("MsgBox", Clique(QMessageBox::Ok));
        commande();
    }

    const Panne panne;
    const QString fichier, racine = ParamCom.DosRecep = DosJauge = DossierRecep = Dossier();
    QString texte = u"G1 X12.5 Z4"_s;
    bool echoue = true;
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
         a.Dit(NonEnregistre, Texte(TitreErreur));
         Operateur::Menu("Mnu_EnregistrerSous");
         const QString nom = a.echoue ? u"P.iso"_s : a.fichier;
         QCOMPARE(NomFichier + TitreFichier + frmPrinc->Label2->text(), a.Chemin(nom) + nom + nom);
         QVERIFY(frmPrinc->windowTitle().endsWith(a.Chemin(nom)) && FichierModifie == (a.echoue ? Vrai : 0));
     }},
    {"new", "P.iso", [](Atelier &a) { a.Garde([] { Operateur::Menu("Mnu_Nouveau"); }); }},
    {"quit", "P.iso", [](Atelier &a) { a.Garde([] { Operateur::Menu("Mnu_Quitter"); }); }},
    {"close", "P.iso", [](Atelier &a) { a.Garde([] { Q_EMIT frmPrinc->Form_Unload(); }, false); }},
    {"configuration", "TOUR.par",
     [](Atelier &a) {
         a.Nomme();
         a.prop.Command17->click();
         QCOMPARE(FicConf + NomConf, a.Chemin(a.fichier) + a.fichier);
         QCOMPARE(a.prop.Label6->text() == a.fichier, !a.echoue);
     }},
    {"machine", "TOUR.mac",
     [](Atelier &a) {
         a.Nomme();
         a.conf.Command2->click();
         QCOMPARE(a.conf.windowTitle().endsWith(a.fichier), !a.echoue);
     }},
    {"start", Ini,
     [](Atelier &a) {
         if (a.echoue && a.panne == Parti)
             a.Presse("FrmLangue", "Command1");
         a.Redemarre();
         a.texte.clear();
     }},
    {"options", Ini, [](Atelier &a) { a.options.Command4->click(); }},
    {"language dialog", Ini, [](Atelier &a) { a.Parle([&a] { a.langue.Command1->click(); }); }},
    {"language menu", Ini, [](Atelier &a) { a.Parle([] { Operateur::Menu(u"Mnu_Lang_%1"_s.arg(LangIndex)); }); }},
    {"reception folder", "Dorvanel.CFG",
     [](Atelier &a) {
         a.Dit(NonEnregistre, Texte(TitreErreur), Boite::Exclamation);
         a.dosProg.Command1->click();
     }},
    {"editor", "Dorvanel.CFG",
     [](Atelier &a) {
         a.Choisit("/bin/sh");
         a.Dit(NonEnregistre, u"Dorvanel Pro"_s, Boite::Exclamation);
         a.prop.Command5->click();
         QCOMPARE(a.prop.Label12->text() + EditeurCN, u"/bin/sh/bin/sh"_s);
     }},
    {"gauges", "JAUGES.COR", [](Atelier &a) { QCOMPARE(NumeroErreur(CreFicJauge) != 0, a.echoue); }},
    {"folder in the explorer", "Neuf",
     [](Atelier &a) {
         NumeroErreur([&a] { frmPrinc->Frame1->FolderTreeview1->setSelectedFolder(a.racine); });
         a.Fait("InputBox", [&a](QWidget &fenetre) {
             fenetre.findChild<QLineEdit *>()->setText(a.fichier);
             dynamic_cast<QDialog &>(fenetre).accept();
         });
         a.Dit(NonCree, Texte(TitreErreur));
         frmPrinc->Frame1->Command1->click();
     }},
    {"folder for receptions", "Neuf", [](Atelier &a) {
         NumeroErreur([&a] { a.dosProg.FolderTreeview1->setSelectedFolder(a.racine); });
         a.Dit(NonCreeRecep, u"Erreur"_s);
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
        for (int rang = 0; rang < int(std::size(Ecrivains)); ++rang)
            QTest::newRow(Ecrivains[rang].nom) << rang;
    }
    void Pannes();
};

// Told, or silent where a command ends so; text and former file whole; then the same command goes through.
void TestDisque::Pannes()
{
    QFETCH(int, rang);
    const QString fichier = QString::fromLatin1(Ecrivains[rang].fichier);
    const bool dossier = fichier == u"Neuf";
    for (const Panne panne : {Plein, LectureSeule, Parti}) {
        if (dossier && panne == Plein) // a folder has no size
            continue;
        Atelier atelier(panne, fichier);
        if (!dossier && fichier != QLatin1String(Ini))
            atelier.Ecrit(fichier, "ANCIEN\r\n");
        const QByteArray avant = atelier.Lit(fichier);
        {
            const auto gate = Gate(panne, atelier.Dossier(), atelier.Chemin(fichier));
            Ecrivains[rang].joue(atelier);
        }
        QCOMPARE(frmPrinc->Text1->Text(), atelier.texte);
        QCOMPARE(FichierModifie, atelier.texte.isEmpty() ? 0 : Vrai);
        QCOMPARE(atelier.Lit(fichier) + atelier.Lit("P.iso"), avant + "ANCIEN\r\n");
        QVERIFY(!QFileInfo(atelier.Chemin(fichier)).isDir());
        atelier.echoue = false;
        Ecrivains[rang].joue(atelier);
        QCOMPARE(QFileInfo(atelier.Chemin(fichier)).isDir(), dossier);
        QVERIFY(dossier || (atelier.Lit(fichier) != avant && atelier.Lit(fichier).endsWith("\r\n")));
    }
}

QTEST_MAIN(TestDisque)
#include "TestDisque.moc"
