#include "Donnees.h"
#include "Essais.h"
#include "Etabli.h"

#include "donnees/Chemins.h"
#include "locale/Langue.h"
#include "programme/Demarrage.h"

#include <csignal>
#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Ini[] = "Dorvanel.ini";
constexpr char Cfg[] = "Dorvanel.CFG";

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
            QVERIFY(frmPrinc->ExplorateurMontre() && frmPrinc->Mnu_AffichDOS->isChecked());
            QCOMPARE(frmPrinc->focusWidget(), frmPrinc->Text1);
            QCOMPARE(frmPrinc->Mnu_Fichier->title(), menus[langue]);
            QVERIFY(!Operateur::Offre("Mnu_RecepProg") && !frmPrinc->Mnu_EditProg->isEnabled());

            Operateur::Menu("Mnu_Lang_2");
            QVERIFY(etabli.Lit(Ini).endsWith(" 2 \r\n"));
            etabli.Apprend("Avertissement", relance, Boite::Information);
            Operateur::Menu("Mnu_Lang_0");
            QCOMPARE(frmPrinc->Mnu_Quitter->text() + frmPrinc->Mnu_Lang_1->text(), u"DejarAnglais"_s);
        }
    }

    // An application folder whose name the settings cannot keep is told on the first start, before they are written;
    // also when the language is not chosen.
    void DossierPerdu()
    {
        for (const char *const bouton : {"Command1", ""}) {
            Etabli etabli;
            const QString dossier = etabli.Chemin(u"a,b \"Łó\""_s);
            QDir().mkdir(dossier);
            FixeDossierApplication(dossier);
            *bouton == 0 ? etabli.Ferme("FrmLangue") : etabli.Presse("FrmLangue", bouton);
            etabli.ApprendQue(u":  , \" Ł\n"_s + dossier);
            if (*bouton != 0) // behind it the French restart
                etabli.ApprendQue(u"Relancer"_s);
            etabli.Demarre();
            QVERIFY(QFile::exists(dossier + u"/Dorvanel.ini"_s));
        }
    }

    // A folder that takes no settings is told, one that does is not. A full disk leaves no half settings behind, so
    // that the next start is a first one again; a link whose drive is away stays.
    void DossierFerme()
    {
        rlimit libre{};
        getrlimit(RLIMIT_FSIZE, &libre);
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit pleine{0, libre.rlim_max};
        {
            Etabli plein;
            plein.Presse("FrmLangue", "Command1");
            QVERIFY(setrlimit(RLIMIT_FSIZE, &pleine) == 0);
            plein.Demarre();
            QVERIFY(QFile::link(plein.Chemin(u"absent/Reglages"_s), plein.Chemin(Cfg)));
            QVERIFY(NumeroErreur([] { SauveCfg({}); }) != 0);
            plein.Fait("MsgBox", Operateur::Clique(QMessageBox::Ok));
            AnnonceDossierFerme();
            QVERIFY(setrlimit(RLIMIT_FSIZE, &libre) == 0);
            QVERIFY(!QFile::exists(plein.Chemin(Ini)) && QFileInfo(plein.Chemin(Cfg)).isSymLink());
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
    void FichiersReglages()
    {
        QList<QStringList> cas = Table(u"reglages.tsv"_s);
        cas << QStringList{QString(2'000'000, QChar()), QString(), u"0"_s};
        for (const QStringList &c : cas) {
            const QByteArray avant = c[0].toLatin1();
            const bool lisible = !c[1].isEmpty();
            Etabli etabli;
            etabli.Ecrit(Ini, avant);
            etabli.Demarre();
            const QByteArray apres = QString(c[1]).replace(u'@', etabli.Dossier()).toLatin1();
            QVERIFY(etabli.Lit(Ini) == (lisible ? apres : avant));
            QCOMPARE(LangIndex, c[2].toInt());
            QCOMPARE(frmPrinc->Mnu_Fichier->title(),
                     QStringList({u"File"_s, u"Ficheros"_s}).value(LangIndex - 1, u"&Fichier"_s));
            QCOMPARE(frmPrinc->Mnu_Lang_1->isChecked(), LangIndex == 1);
            QVERIFY(frmPrinc->isVisible() && !frmPrinc->ExplorateurMontre() && frmPrinc->Etat->isHidden());
            QCOMPARE(Operateur::Offre("Mnu_RecepProg"), !lisible);
            QVERIFY(!frmPrinc->Mnu_EnregistrerSous->isEnabled() && !frmPrinc->Mnu_Imprim->isEnabled());
            for (const QString *dossier :
                 {&Reglages.DosAppli, &ParamCom.DosRecep, &Reglages.DosJauge, &Reglages.EditeurCN})
                QCOMPARE(dossier->isEmpty(), !lisible);
            etabli.ApprendQue(u" Dorvanel\n"_s); // in whatever language, a box has words
            Operateur::Menu("Mnu_Quitter");
        }
    }

    // "Dorvanel.CFG", missing, whole, short and damaged: what it does not bring is empty.
    void Dossiers()
    {
        for (const auto &[contenu, dossiers] : {std::pair{QByteArray(), u"@|@|C:\\WINDOWS\\NOTEPAD.EXE"_s},
                                                {"\"/p\"\r\n\"/j\"\r\n\"/bin/ed\"\r\n", u"/p|/j|/bin/ed"_s},
                                                {"\"/p\"\r\n", u"/p||"_s},
                                                {"\"/p\r\n/j\r\n", u"||"_s}}) {
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
    void ConfigurationParDefaut()
    {
        for (const bool absente : {false, true}) {
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
                QVERIFY(!frmPrinc->Bouton(bouton)->isEnabled());
            QVERIFY(!Operateur::Offre("Mnu_RecepProg") && !Operateur::Offre("Mnu_EmisProgCN"));
            QCOMPARE(frmPrinc->Label4->text() + frmPrinc->Label6->text(), u"NoneNone"_s);
        }
    }

    // The end by the button and by the window's close box: whether to save a changed text, which only a button answers,
    // and, of the end by the button alone, whether to go.
    void Fin()
    {
        for (const auto &[ferme, change, nomme, oui, fichier, modifie] :
             {std::tuple{false, false, true, false, "G0", 0},
              {false, true, true, false, "G0", true},
              {false, true, true, true, "G1\r\n", 0},
              {true, false, true, false, "G0", 0},
              {true, true, false, true, "", true},
              {true, true, true, false, "G0", 0},
              {true, true, true, true, "G1\r\n", 0}}) {
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
    }
};

QTEST_MAIN(TestDemarrage)
#include "TestDemarrage.moc"
