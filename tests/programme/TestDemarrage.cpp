#include "DisquePlein.h"
#include "Donnees.h"
#include "Etabli.h"

#include "donnees/Chemins.h"
#include "locale/Langue.h"
#include "programme/Demarrage.h"

namespace {

constexpr char Ini[] = "Dorvanel.ini";
constexpr char Cfg[] = "Dorvanel.CFG";

/// Whether the window is closed, the text changed, has a name, and is to be saved; its file and state behind.
const std::tuple<const char *, bool, bool, bool, bool, const char *, bool> Fins[] = {
    {"button", false, false, true, false, "G0", false},
    {"button, not saved", false, true, true, false, "G0", true},
    {"button, saved", false, true, true, true, "G1\r\n", false},
    {"close box", true, false, true, false, "G0", false},
    {"close box, no name", true, true, false, true, "", true},
    {"close box, not saved", true, true, true, false, "G0", false},
    {"close box, saved", true, true, true, true, "G1\r\n", false}};

} // namespace

class TestDemarrage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // In an empty folder the language is asked first; the settings are then written with the explorer on. From the menu
    // English and Spanish change at once; French needs a new start, and the box says so each time.
    void PremierDemarrage()
    {
        const QString menus[] = {u"&Fichier"_s, u"File"_s, u"Ficheros"_s};
        const QString relance =
            u"Relancer Dorvanel Pro pour prendre en compte les modifications de langue française."_s;
        for (int langue = 0; langue < 3; ++langue) {
            const auto passe = Passe(QString::number(langue));
            Etabli etabli;
            if (langue > 0)
                etabli.Presse("FrmLangue", u"Option%1"_s.arg(langue + 1));
            etabli.Presse("FrmLangue", "Command1");
            if (langue == 0)
                etabli.Apprend("Avertissement", relance, Boite::Information);
            etabli.Demarre();
            const QByteArray dossier = etabli.Dossier().toLatin1();
            QCOMPARE(etabli.Lit(Ini), " 0 \r\n\"" + dossier + "\"\r\n 0 \r\n\"\"\r\n 1 \r\n" + dossier + "\r\n " +
                                          QByteArray::number(langue) + " \r\n");
            QVERIFY(!QFile::exists(etabli.Chemin(Cfg)));
            QVERIFY(frmPrinc->ExplorateurMontre());
            QVERIFY(frmPrinc->Mnu_AffichDOS->isChecked());
            QCOMPARE(frmPrinc->focusWidget(), frmPrinc->Text1);
            QCOMPARE(frmPrinc->Mnu_Fichier->title(), menus[langue]);
            QVERIFY(!Operateur::Offre("Mnu_RecepProg"));
            QVERIFY(!frmPrinc->Mnu_EditProg->isEnabled());

            Operateur::Menu("Mnu_Lang_2");
            QVERIFY(etabli.Lit(Ini).endsWith(" 2 \r\n"));
            etabli.Apprend("Avertissement", relance, Boite::Information);
            Operateur::Menu("Mnu_Lang_0");
            QCOMPARE((QStringList{frmPrinc->Mnu_Quitter->text(), frmPrinc->Mnu_Lang_1->text()}),
                     (QStringList{u"Dejar"_s, u"Anglais"_s}));
        }
    }

    // An application folder whose name the settings cannot keep is told on the first start, before they are written;
    // also when the language is not chosen.
    void DossierPerdu_data() { OuiEtNon("choisie", "language chosen", "language dialog closed"); }
    void DossierPerdu()
    {
        QFETCH(bool, choisie);
        Etabli etabli;
        const QString dossier = etabli.Chemin(u"a,b \"Łó\""_s);
        QDir().mkdir(dossier);
        FixeDossierApplication(dossier);
        choisie ? etabli.Presse("FrmLangue", "Command1") : etabli.Ferme("FrmLangue");
        etabli.ApprendQue(u":  , \" Ł\n"_s + dossier);
        if (choisie) // behind it the French restart
            etabli.ApprendQue(u"Relancer"_s);
        etabli.Demarre();
        QVERIFY(QFile::exists(dossier + u"/Dorvanel.ini"_s));
    }

    // A folder that takes no settings is told, one that does is not. A full disk leaves no half settings behind, so
    // that the next start is a first one again; a link whose drive is away stays.
    void DossierFerme()
    {
        {
            Etabli plein;
            plein.Presse("FrmLangue", "Command1");
            const auto disque = DisquePlein();
            plein.Demarre();
            QVERIFY(QFile::link(plein.Chemin(u"absent/Reglages"_s), plein.Chemin(Cfg)));
            QVERIFY(NumeroErreur([] { SauveCfg({}); }) != 0);
            plein.Fait("MsgBox", Operateur::Clique(QMessageBox::Ok));
            AnnonceDossierFerme();
            QVERIFY(!QFile::exists(plein.Chemin(Ini)));
            QVERIFY(QFileInfo(plein.Chemin(Cfg)).isSymLink());
        }
        Etabli etabli(0);
        AnnonceDossierFerme();
        const QString absent = etabli.Chemin(u"absent"_s);
        FixeDossierApplication(absent);
        etabli.Apprend(
            "Dossier des réglages",
            u"Rien ne peut être écrit dans le dossier :\r%1\rVos réglages ne seront pas gardés."_s.arg(absent));
        AnnonceDossierFerme();
    }

    // Settings that cannot be read leave the window as it is made, say nothing and are not written over.
    void FichiersReglages_data()
    {
        RangeesDe(u"reglages.tsv"_s);
        QTest::newRow("NULs") << QStringList{QString(2'000'000, QChar()), QString(), u"0"_s};
    }
    void FichiersReglages()
    {
        QFETCH(QStringList, cases);
        const QByteArray avant = cases[0].toLatin1();
        const bool lisible = !cases[1].isEmpty();
        Etabli etabli;
        etabli.Ecrit(Ini, avant);
        etabli.Demarre();
        const QByteArray apres = QString(cases[1]).replace(u'@', etabli.Dossier()).toLatin1();
        QVERIFY(etabli.Lit(Ini) == (lisible ? apres : avant));
        QCOMPARE(LangIndex, cases[2].toInt());
        QCOMPARE(frmPrinc->Mnu_Fichier->title(),
                 QStringList({u"File"_s, u"Ficheros"_s}).value(LangIndex - 1, u"&Fichier"_s));
        QCOMPARE(frmPrinc->Mnu_Lang_1->isChecked(), LangIndex == 1);
        QVERIFY(frmPrinc->isVisible());
        QVERIFY(!frmPrinc->ExplorateurMontre());
        QVERIFY(frmPrinc->Etat->isHidden());
        QCOMPARE(Operateur::Offre("Mnu_RecepProg"), !lisible);
        QVERIFY(!frmPrinc->Mnu_EnregistrerSous->isEnabled());
        QVERIFY(!frmPrinc->Mnu_Imprim->isEnabled());
        for (const QString *dossier : {&Reglages.DosAppli, &ParamCom.DosRecep, &Reglages.DosJauge, &Reglages.EditeurCN})
            QCOMPARE(dossier->isEmpty(), !lisible);
        etabli.ApprendQue(u" Dorvanel\n"_s); // in whatever language, a box has words
        Operateur::Menu("Mnu_Quitter");
    }

    // "Dorvanel.CFG", missing, whole, short and damaged: what it does not bring is empty.
    void Dossiers()
    {
        for (const auto &[contenu, dossiers] : {std::pair{QByteArray(), u"@|@|C:\\WINDOWS\\NOTEPAD.EXE"_s},
                                                {"\"/p\"\r\n\"/j\"\r\n\"/bin/ed\"\r\n", u"/p|/j|/bin/ed"_s},
                                                {"\"/p\"\r\n", u"/p||"_s},
                                                {"\"/p\r\n/j\r\n", u"||"_s}}) {
            const auto passe = Passe(dossiers);
            Etabli etabli;
            etabli.Ecrit(Ini, " 0 \r\n\"\"\r\n 0 \r\n\"\"\r\n 0 \r\n\r\n 0 \r\n");
            if (!contenu.isEmpty())
                etabli.Ecrit(Cfg, contenu);
            etabli.Demarre();
            QCOMPARE(QStringList({ParamCom.DosRecep, Reglages.DosJauge, Reglages.EditeurCN}).join(u'|'),
                     QString(dossiers).replace(u'@', etabli.Dossier()));
            QCOMPARE(etabli.Lit(Cfg), contenu);
        }
    }

    // The configuration of the settings is damaged, which is passed over in silence, or missing.
    void ConfigurationParDefaut_data() { OuiEtNon("absente", "missing", "damaged"); }
    void ConfigurationParDefaut()
    {
        QFETCH(bool, absente);
        Etabli etabli;
        const QString chemin = etabli.Chemin("Tour.par");
        if (absente)
            etabli.Apprend("Error of loading of file of configuration failing this",
                           u"The file does not exist %1 !"_s.arg(chemin));
        else
            etabli.Ecrit("Tour.par", "3\r\n\"Com3\"\r\n");
        etabli.Ecrit(Ini, " 0 \r\n\"\"\r\n 1 \r\n\"" + chemin.toLatin1() + "\"\r\n 0 \r\n\r\n 1 \r\n");
        etabli.Demarre();
        QCOMPARE(EtatConf.FicConf, chemin);
        OuvreDocument(etabli.Ecrit("P.iso", "G0"));
        for (const int bouton : {9, 10, 11, 12, 13})
            QVERIFY2(!frmPrinc->Bouton(bouton)->isEnabled(), qPrintable(QString::number(bouton)));
        QVERIFY(!Operateur::Offre("Mnu_RecepProg"));
        QVERIFY(!Operateur::Offre("Mnu_EmisProgCN"));
        QCOMPARE((QStringList{frmPrinc->Label4->text(), frmPrinc->Label6->text()}),
                 (QStringList{u"None"_s, u"None"_s}));
    }

    // The end by the button and by the window's close box: whether to save a changed text, which only a button answers,
    // and, of the end by the button alone, whether to go.
    void Fin_data() { Rangees(Fins); }
    void Fin()
    {
        const auto &[nom, ferme, change, nomme, oui, fichier, modifie] = Rangee(Fins);
        Etabli etabli(0);
        const QString chemin = nomme ? etabli.Ecrit("P.iso", "G0") : QString();
        if (nomme)
            OuvreDocument(chemin);
        if (change) {
            frmPrinc->Text1->setText(u"G1"_s);
            etabli.Fait("MsgBox", [](QWidget &question) {
                QTest::keyClick(&question, Qt::Key_Escape);
                QVERIFY(!question.close());
            });
            etabli.Repond(ferme ? u"Fermer le programme CN"_s : u"Quitter l'éditeur de programmes CN"_s,
                          u"Fichier %1 modifié !\r\n            Enregistrer le fichier ? "_s.arg(chemin),
                          Operateur::DemandeSimple, oui ? QMessageBox::Yes : QMessageBox::No);
        }
        if (ferme && oui && !nomme) // where the text stands
            etabli.Fait("MsgBox", Operateur::Clique(QMessageBox::Ok));
        if (ferme) {
            QVERIFY(frmPrinc->close());
        } else {
            etabli.Repond("Quitter le programme", "Quitter Dorvanel\r   Confirmez  ?", Operateur::Demande,
                          QMessageBox::No);
            Operateur::Barre(6);
            QVERIFY(frmPrinc->isVisible());
        }
        QCOMPARE(Document.FichierModifie, modifie);
        QCOMPARE(etabli.Lit("P.iso"), QByteArray(fichier));
    }
};

QTEST_MAIN(TestDemarrage)
#include "TestDemarrage.moc"
