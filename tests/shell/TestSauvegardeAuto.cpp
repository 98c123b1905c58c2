#include "DisquePlein.h"
#include "Etabli.h"

#include "donnees/Sauvegardes.h"
#include "donnees/Transfert.h"
#include "platform/base/FinDemandee.h"
#include "platform/base/PageCode1252.h"
#include "shell/SauvegardeAuto.h"
#include "transfer/FichierRecu.h"

#include <QApplication>
#include <QSessionManager>

#include <sys/wait.h>
#include <unistd.h>

namespace {

/// A workstation with a program whose beginning the operator has deleted through the menu.
struct Atelier : Etabli
{
    explicit Atelier(const QByteArray &octets = "XN10 G0\r\n")
        : Etabli(0)
    {
        OuvreDocument(Ecrit("P.iso", octets));
        Change();
    }
    static void Change()
    {
        frmPrinc->Text1->setSelStart(0);
        frmPrinc->Text1->setSelLength(1);
        Operateur::Menu("Mnu_Supprimer");
    }
    /// A box that says mots, whatever else it says.
    void Repond(QMessageBox::StandardButton bouton, const QString &mots = {})
    {
        Fait("MsgBox", [=](QWidget &boite) {
            QVERIFY(dynamic_cast<QMessageBox &>(boite).text().contains(mots));
            Clique(bouton)(boite);
        });
    }
    /// What stands in the folder, "@" for the date, with what each file holds.
    QByteArrayList Gardes() const
    {
        static const QRegularExpression numero(u"En cours_[0-9a-f]{8}_"_s);
        static const QRegularExpression date(u"_\\d{4}-\\d\\d-\\d\\d_\\d{6}"_s);
        QByteArrayList gardes;
        for (QString nom : QDir(Chemin("Sauvegardes")).entryList(QDir::Files, QDir::Name)) {
            const QByteArray octets = Lit(u"Sauvegardes/"_s + nom);
            gardes << nom.replace(numero, u"!"_s).replace(date, u"@"_s).toUtf8() + "=" + octets;
        }
        return gardes;
    }
    static int Etat(pid_t enfant)
    {
        int etat = 0;
        waitpid(enfant, &etat, WUNTRACED);
        return WIFSTOPPED(etat) ? SIGSTOP : WIFSIGNALED(etat) ? WTERMSIG(etat) : 0;
    }
};

constexpr auto Oui = QMessageBox::Yes, Non = QMessageBox::No;

/// How another copy of the program ends, and whether the operator opens its text.
const std::tuple<const char *, int, bool> Morts[] = {{"killed", SIGKILL, false},
                                                     {"killed, its text opened", SIGKILL, true},
                                                     {"asked to end", SIGTERM, false},
                                                     {"terminal closed", SIGHUP, false}};

/// A way in which a text leaves the pane: the answers to the boxes, and what is kept for it, before the 256 bytes.
struct Depart
{
    const char *nom;
    QList<QMessageBox::StandardButton> reponses;
    void (*joue)(const Atelier &);
    const char *garde = "P@.iso=";
};

void OuvreAutre(const Atelier &atelier)
{
    OuvreDocument(atelier.Ecrit("Q.iso", "Q"));
}

void Recoit(qsizetype taille)
{
    EcritFichierRecu(QString(taille, u'R'));
    OuvreFichierRecu();
}

void Quitte(const Atelier &)
{
    frmPrinc->PortOuvert = true;
    QTimer::singleShot(0, frmPrinc, [] {
        Operateur::Menu("Mnu_Quitter");
        if (frmPrinc->PortOuvert) // the end was not confirmed
            QCoreApplication::exit();
    });
    QCOMPARE(QApplication::exec(), 0);
}

/// Twice: the second demand finds the text kept.
void FermeSession(const Atelier &)
{
    alignas(QSessionManager) char gestionnaire[sizeof(QSessionManager)];
    for (int i = 0; i < 2; ++i)
        Q_EMIT qApp->commitDataRequest(reinterpret_cast<QSessionManager &>(gestionnaire));
}

const Depart Departs[] = {
    {"opened", {}, OuvreAutre},
    {"refused", {Non}, [](const Atelier &a) { OuvreDocument(a.Chemin("absent.iso")); }, nullptr},
    {"dropped", {Non}, [](const Atelier &a) { OuvreDepose(a.Ecrit("Q.iso", "Q")); }},
    {"new", {Non, Oui}, [](const Atelier &) { Operateur::Menu("Mnu_Nouveau"); }},
    {"new, saved", {Oui, Oui}, [](const Atelier &) { Operateur::Menu("Mnu_Nouveau"); }, "P@.iso=X"},
    {"undone", {}, [](const Atelier &) { Operateur::Menu("Mnu_Annuler"); }},
    {"received", {}, [](const Atelier &) { Recoit(9); }},
    {"received, too large", {Non}, [](const Atelier &) { Recoit(65536); }},
    {"received as a file", {}, [](const Atelier &) { frmPrinc->Text1->PrendTexte(*frmPrinc->Text2); }},
    {"quit", {Non, Oui}, Quitte},
    {"not quit", {Non, Non}, Quitte, nullptr},
    {"closed", {Non}, [](const Atelier &) { frmPrinc->close(); }},
    {"closed, saved", {Oui}, [](const Atelier &) { frmPrinc->close(); }, "P@.iso=X"},
    {"end of the session", {}, FermeSession}};

} // namespace

class TestSauvegardeAuto : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Each way out of the pane leaves the text, all 256 bytes of it, in the folder, or the file that is written over,
    // and no undo that would bring one program under another's name.
    void Sorties_data() { Rangees(Departs); }
    void Sorties()
    {
        const Depart &depart = Rangee(Departs);
        Atelier atelier("X" + TousLesOctets());
        const QString texte = frmPrinc->Text1->Text();
        Transfert.NomFicRecep = u"RECU.ISO"_s;
        Transfert.DossierRecep = atelier.Dossier();
        for (const auto reponse : depart.reponses)
            atelier.Repond(reponse);
        depart.joue(atelier);
        QByteArrayList attendus;
        if (depart.garde != nullptr)
            attendus << depart.garde + TousLesOctets();
        QCOMPARE(atelier.Gardes(), attendus);
        QCOMPARE(frmPrinc->PortOuvert, depart.joue == Quitte && depart.garde == nullptr);
        const bool parti = frmPrinc->Text1->Text() != texte;
        QCOMPARE(frmPrinc->Mnu_Annuler->isEnabled(), !parti);
        QCOMPARE(Document.TexteAnnuler.isEmpty(), parti);
    }

    // A text without changes, and none: nothing to keep.
    void RienAGarder_data() { OuiEtNon("vide", "no text", "no changes"); }
    void RienAGarder()
    {
        QFETCH(bool, vide);
        const Atelier atelier;
        if (vide)
            frmPrinc->Text1->RetireFin(99);
        Document.FichierModifie = vide;
        OuvreAutre(atelier);
        QVERIFY(atelier.Gardes().isEmpty());
    }

    // The operator empties the pane and goes on to another text: what was written at rest is all that is left of it.
    void Vide()
    {
        const Atelier atelier;
        QTRY_COMPARE(atelier.Gardes(), QByteArrayList{"!P.iso=N10 G0\r\n"});
        frmPrinc->Text1->RetireFin(99);
        OuvreAutre(atelier);
        QCOMPARE(atelier.Gardes(), QByteArrayList{"P@.iso=N10 G0\r\n"});
    }

    // Names, and what the folder holds at most: the oldest go, but neither what was kept last nor the operator's own.
    void Dossier()
    {
        const QString longue = QString(120, u'é') + u".iso"_s;
        for (const auto &[nom, garde] : {std::pair{u"P.tour.iso"_s, u"P.tour@.iso"_s},
                                         {u"SANSFIN"_s, u"SANSFIN@"_s},
                                         {longue, QString(108, u'é') + u"@.iso"_s},
                                         {u"R.rtf"_s, u"R.rtf@.txt"_s},
                                         {u"Sauvegardes/P_2026-11-20_101010 (2).iso"_s, u"P@.iso"_s},
                                         {u"Sauvegardes/R_2026-11-20_101010.rtf"_s, u"R.rtf@.txt"_s},
                                         {u"P_2026-11-20_101010.iso"_s, u"P@@.iso"_s},
                                         {u""_s, u"Sans nom@.iso"_s}}) {
            const auto passe = Passe(nom);
            Atelier atelier;
            Document.NomFichier = nom.isEmpty() ? QString() : atelier.Chemin(nom);
            OuvreAutre(atelier);
            QCOMPARE(atelier.Gardes(), QByteArrayList{garde.toUtf8() + "=N10 G0\r\n"});
        }
        {
            const Atelier atelier;
            QStringList chemins;
            for (int i = 0; i < 3; ++i) // two at least in one second
                chemins << GardeTexte(u"P.iso"_s, u"N10"_s);
            QCOMPARE(chemins.removeDuplicates(), 0);
            QVERIFY(!chemins.filter(u" (2).iso"_s).isEmpty());
            const QString tape = GardeTexte(u"E0.A/B"_s, u"N10"_s); // as the operator typed it
            QVERIFY2(tape.contains(u"/E0_"_s) && tape.endsWith(u".A_B"_s), qPrintable(tape));
        }
        for (const int gros : {70, 200}) { // the clock of the PC went wrong for a time
            const auto passe = Passe(QString::number(gros));
            Atelier atelier;
            QDir(atelier.Dossier()).mkdir(u"Sauvegardes"_s);
            for (int i = 0; i < 120; ++i) {
                const QString date = i == 119 ? u" a moi.iso"_s : u"_2026-11-20_000000.iso"_s;
                QFile fichier(atelier.Ecrit(u"Sauvegardes/V%1"_s.arg(1000 + i) + date, "V"));
                QVERIFY(fichier.resize(i == gros ? 199'999'990 : 2));
                QVERIFY(fichier.open(QIODevice::ReadWrite));
                fichier.setFileTime(QDateTime::currentDateTime().addDays(50 - i), QFile::FileModificationTime);
            }
            OuvreAutre(atelier);
            const QStringList noms = QDir(atelier.Chemin("Sauvegardes")).entryList(QDir::Files, QDir::Name);
            const int restent = std::min(gros, 99);
            QCOMPARE(noms.size(), restent + 2);
            QVERIFY(noms.at(0).startsWith(u"P_"));
            QCOMPARE(noms.last(), u"V1119 a moi.iso"_s);
            QVERIFY(noms.at(restent).startsWith(u"V%1_"_s.arg(999 + restent)));
            Document.NomFichier = atelier.Chemin(u"Sauvegardes/"_s + noms.at(restent)); // open, and the oldest
            GardeTexte(u"Z.iso"_s, gros == 70 ? QString(999'999, u'N') : u"N"_s);
            QVERIFY(QFile::exists(Document.NomFichier));
        }
    }

    // At rest the text stands in one file, written anew after a while only; the saving takes it away, and lets a new
    // program be printed and sent.
    void Repos()
    {
        Atelier atelier;
        atelier.Redemarre();
        EtatConf.lue = true;
        EtatConf.FicConf = u"M.par"_s;
        const QByteArray octets = TousLesOctets() + "\r\r\n\n";
        frmPrinc->Text1->setText(TexteDe1252("X" + octets));
        auto *const repos = frmPrinc->findChild<QTimer *>(u"ReposSauvegarde"_s);
        QVERIFY(repos->isActive());
        QVERIFY(repos->interval() <= 1000);
        QTRY_COMPARE(atelier.Gardes(), QByteArrayList{"!Sans nom.iso=X" + octets});
        QVERIFY(!repos->isActive());
        Atelier::Change();
        QVERIFY(repos->interval() > 25'000);
        QVERIFY(!frmPrinc->Bouton(5)->isEnabled());
        repos->start(0);
        QTRY_COMPARE(atelier.Gardes(), QByteArrayList{"!Sans nom.iso=" + octets});
        atelier.Choisit(atelier.Chemin("Q.iso"));
        Operateur::Menu("Mnu_EnregistrerSous");
        QCOMPARE(atelier.Gardes(), QByteArrayList());
        QVERIFY(!repos->isActive());
        for (const char *const entree : {"Mnu_Imprim", "Toolbar1_5", "Toolbar1_9"})
            QVERIFY2(Operateur::Offre(entree), entree);
    }

    // Another copy of the program, whose text is changed, is killed, or asked by the system to end. While it lives its
    // file is its own; only of a killed one the next start asks, once.
    void Mort_data() { Rangees(Morts); }
    void Mort()
    {
        const auto &[nom, signal, ouvre] = Rangee(Morts);
        const QByteArrayList enCours{"!P.iso=N10 G0\r\n"};
        Atelier atelier;
        const pid_t copie = fork();
        if (copie == 0) {
            frmPrinc->hide(); // the threads that paint stay with the parent
            const FinDemandee fin([] { RetientTexte(); });
            while (atelier.Gardes() != enCours)
                QTest::qWait(10);
            std::raise(SIGSTOP);
            QTest::qWait(60'000);
            _exit(1);
        }
        QCOMPARE(Atelier::Etat(copie), SIGSTOP);
        ProposeTextesRetrouves();
        QCOMPARE(atelier.Gardes(), enCours);
        kill(copie, signal);
        kill(copie, SIGCONT);
        QCOMPARE(Atelier::Etat(copie), signal);
        atelier.Ecrit("Sauvegardes/En cours_00000000.partiel", "N1");
        atelier.Redemarre();
        if (signal == SIGKILL)
            atelier.Repond(ouvre ? Oui : Non, u"P.iso, 20"_s);
        ProposeTextesRetrouves();
        ProposeTextesRetrouves();
        QCOMPARE(atelier.Gardes(), QByteArrayList{"P@.iso=N10 G0\r\n"});
        QCOMPARE(frmPrinc->Text1->Text(), ouvre ? u"N10 G0\r\n"_s : QString());
        QCOMPARE(Document.FichierModifie, ouvre);
        QCOMPARE(Document.NomFichier.startsWith(atelier.Chemin("Sauvegardes/P_")), ouvre);
        QCOMPARE(atelier.Lit("P.iso"), QByteArray("XN10 G0\r\n"));
        if (ouvre)
            atelier.Repond(Non);
        frmPrinc->close(); // it stands in the folder already
        QCOMPARE(atelier.Gardes(), QByteArrayList{"P@.iso=N10 G0\r\n"});
    }

    // Several dead texts: one is opened, of the others he is told. It has no name of its own: saving it asks for one,
    // and does not put it back among what goes one day.
    void Retrouves_data() { OuiEtNon("nomme", "named", "not named"); }
    void Retrouves()
    {
        QFETCH(bool, nomme);
        Atelier atelier;
        QDir(atelier.Dossier()).mkdir(u"Sauvegardes"_s);
        for (int i = 1; i < 4; ++i) {
            QFile fichier(
                atelier.Ecrit(u"Sauvegardes/En cours_0000000%1_R%1.iso"_s.arg(i), "G%" + QByteArray::number(i)));
            QVERIFY(fichier.open(QIODevice::ReadWrite));
            fichier.setFileTime(QDateTime::currentDateTime().addDays(i), QFile::FileModificationTime);
        }
        atelier.Redemarre();
        atelier.Repond(Non, u"R3.iso, 20"_s);
        atelier.Repond(Oui, u"R2.iso, 20"_s);
        atelier.Repond(QMessageBox::Ok, u": 1\n"_s + atelier.Chemin("Sauvegardes"));
        ProposeTextesRetrouves();
        const QByteArrayList gardes{"R1@.iso=G%1", "R2@.iso=G%2", "R3@.iso=G%3"};
        QCOMPARE(atelier.Gardes(), gardes);
        QCOMPARE(frmPrinc->Text1->Text(), u"G%2"_s);
        atelier.Repond(Oui);
        if (nomme) {
            atelier.Choisit(atelier.Chemin("Q.iso"));
        } else {
            atelier.Ferme("CommonDialog");
            atelier.Repond(QMessageBox::Ok, u"Sauvegardes/R2_"_s);
        }
        frmPrinc->close();
        QCOMPARE(atelier.Gardes(), gardes);
        QCOMPARE(atelier.Lit("Q.iso"), nomme ? "G%2\r\n" : "");
    }

    // A folder that takes nothing, or a full disk: each command goes on, it is told once, no half file stays, and what
    // was written before does. At the end the operator is told what became of a text that he wanted saved.
    void Panne_data() { OuiEtNon("plein", "full disk", "closed folder"); }
    void Panne()
    {
        QFETCH(bool, plein);
        Atelier atelier;
        const QString autre = atelier.Ecrit("Q.iso", "XQ");
        const QByteArrayList reste = plein ? QByteArrayList{"!P.iso=N10 G0\r\n"} : QByteArrayList();
        if (plein)
            frmPrinc->findChild<QTimer *>(u"ReposSauvegarde"_s)->start(0);
        else
            atelier.Ecrit("Sauvegardes", "");
        QTRY_COMPARE(atelier.Gardes(), reste);
        for (int i = 0; i < 2; ++i) {
            const auto disque = DisquePlein(plein ? 0 : RLIM_INFINITY);
            OuvreDocument(autre);
            QCOMPARE(frmPrinc->Text1->Text(), u"XQ"_s);
            if (i == 0)
                atelier.Repond(QMessageBox::Ok, atelier.Chemin("Sauvegardes"));
            QTRY_VERIFY(!frmPrinc->findChild<QTimer *>(u"AttenteSauvegarde"_s)->isActive());
            Atelier::Change();
        }
        QCOMPARE(atelier.Gardes(), reste);
        QVERIFY(QFile::remove(autre));
        QVERIFY(QDir(atelier.Dossier()).mkdir(u"Q.iso"_s));
        atelier.Repond(Oui);
        atelier.Repond(QMessageBox::Ok, u"Erreur lors de l'enregistrement du fichier"_s);
        atelier.Repond(QMessageBox::Ok, plein ? u"Sauvegardes/Q_"_s : u"Rien ne peut"_s);
        frmPrinc->close();
        QCOMPARE(atelier.Gardes(), plein ? reste + QByteArrayList{"Q@.iso=Q"} : reste);
    }
};

QTEST_MAIN(TestSauvegardeAuto)
#include "TestSauvegardeAuto.moc"
