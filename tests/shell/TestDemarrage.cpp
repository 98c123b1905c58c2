#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "locale/Langue.h"
#include "platform/Boites.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QApplication>
#include <QDir>
#include <QTest>

namespace {

const QString Ini = QStringLiteral("Dorvanel.ini");
constexpr char Cfg[] = "Dorvanel.CFG";
enum { Inchange, SansNom, Refuse, Accepte }; // the text at the end, and the operator's answer

const QString TitreRelance = QStringLiteral("Avertissement");
const QString TexteRelance =
    QStringLiteral("Relancer Dorvanel Pro pour prendre en compte les modifications de langue française.");

} // namespace

class TestDemarrage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PremierDemarrage_data();
    void PremierDemarrage();
    void IniNonInscriptible();
    void IniCorrige_data();
    void IniCorrige();
    void IniIllisible_data();
    void IniIllisible();
    void Dossiers_data();
    void Dossiers();
    void ConfigurationParDefaut();
    void MenuLangue();
    void Fin_data();
    void Fin();
    void QuitteAvecTexteRefuse();
};

// In an empty folder the language is asked first; the settings are then written with the explorer on.
void TestDemarrage::PremierDemarrage_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<int>("langue");
    QTest::addColumn<QString>("fichier");
    QTest::newRow("French") << "" << 0 << "&Fichier";
    QTest::newRow("English") << "Option2" << 1 << "File";
    QTest::newRow("Spanish") << "Option3" << 2 << "Ficheros";
}

void TestDemarrage::PremierDemarrage()
{
    QFETCH(QString, option);
    QFETCH(int, langue);
    Poste poste;
    Operateur operateur;
    constexpr char fenetre[] = "FrmLangue";
    if (!option.isEmpty())
        operateur.Presse(fenetre, option);
    operateur.Presse(fenetre, "Command1");
    if (langue == 0)
        operateur.Repond(TitreRelance, TexteRelance, Boite::Information, QMessageBox::Ok);
    poste.Demarre();

    const QByteArray dossier = poste.Dossier().toLatin1();
    QCOMPARE(poste.Lit(Ini), " 0 \r\n\"" + dossier + "\"\r\n 0 \r\n\"\"\r\n 1 \r\n" + dossier + "\r\n " +
                                 QByteArray::number(langue) + " \r\n");
    QVERIFY(!QFile::exists(poste.Chemin(Cfg)));
    QVERIFY(frmPrinc->Frame1->isVisible());
    QVERIFY(frmPrinc->Mnu_AffichDOS->isChecked() && frmPrinc->Bouton(15)->isChecked());
    QTEST(frmPrinc->Mnu_Fichier->title(), "fichier");
    QVERIFY(!Operateur::Offre("Mnu_RecepProg") && !frmPrinc->Mnu_EditProg->isEnabled());
}

// A folder of that name stands in the way: the choice holds for this run, without a message.
void TestDemarrage::IniNonInscriptible()
{
    Poste poste;
    QVERIFY(QDir(poste.Dossier()).mkdir(Ini));
    Operateur operateur;
    operateur.Presse("FrmLangue", "Command1");
    poste.Demarre();
    QVERIFY(frmPrinc->Frame1->isVisible());
    QCOMPARE(DosAppli, poste.Dossier());
    Operateur::Menu("Mnu_Lang_0"); // no box: the writing failed before it
    Operateur::Menu("Mnu_Lang_2");
    QCOMPARE(LangIndex, 2);
    QVERIFY(frmPrinc->Mnu_Lang_2->isChecked() && !frmPrinc->Mnu_Lang_0->isChecked());
    QCOMPARE(frmPrinc->Mnu_Lang_0->text(), QStringLiteral("Francés"));
}

// What the settings file holds, and how the start writes it back. "@" stands for the application folder.
void TestDemarrage::IniCorrige_data()
{
    QTest::addColumn<QString>("avant");
    QTest::addColumn<QString>("apres");
    QTest::addColumn<int>("langue");
    const auto ligne = [](const char *nom, const char *avant, const char *apres, int langue) {
        QTest::newRow(nom) << QString::fromLatin1(avant) << QString::fromLatin1(apres) << langue;
    };
    ligne("as written", " 1 \r\n\"/x y\"\r\n 0 \r\n\"\"\r\n 0 \r\n/c\r\n 1 \r\n",
          " 1 \r\n\"/x y\"\r\n 0 \r\n\"\"\r\n 0 \r\n/c\r\n 1 \r\n", 1);
    ligne("folder kept only with its option, empty line 6", " 0 \r\n\"/x\"\r\n 0 \r\n\"/m.par\"\r\n 0 \r\n\r\n 2 \r\n",
          " 0 \r\n\"@\"\r\n 0 \r\n\"/m.par\"\r\n 0 \r\n@\r\n 2 \r\n", 2);
    ligne("comma in line 6", " 1 \r\n\"/x\"\r\n 0 \r\n\"\"\r\n 0 \r\n/a,b\r\n 1 \r\n",
          " 1 \r\n\"/x\"\r\n 0 \r\n\"\"\r\n 0 \r\n/a\r\n-1 \r\n", LangAucune);
    ligne("comma before a number", "1\n\"/x\"\n0\n\"\"\n0\n/a,2 b\r\n",
          " 1 \r\n\"/x\"\r\n 0 \r\n\"\"\r\n 0 \r\n/a\r\n 2 \r\n", 2);
    ligne("no language", "1\n\"/x\"\n0\n\"\"\n0\n/c\n \n", " 1 \r\n\"/x\"\r\n 0 \r\n\"\"\r\n 0 \r\n/c\r\n 0 \r\n", 0);
    ligne("language 9, lone LF, no last line end", "1\n\"/x\"\n0\n\"\"\n0\n/c\n9",
          " 1 \r\n\"/x\"\r\n 0 \r\n\"\"\r\n 0 \r\n/c\r\n 9 \r\n", 9);
    ligne("more lines than needed", " 1 \r\n\"/x\"\r\n 0 \r\n\"\"\r\n 0 \r\n/c\r\n 1 \r\nmore\r\n",
          " 1 \r\n\"/x\"\r\n 0 \r\n\"\"\r\n 0 \r\n/c\r\n 1 \r\n", 1);
}

void TestDemarrage::IniCorrige()
{
    QFETCH(QString, avant);
    QFETCH(QString, apres);
    QFETCH(int, langue);
    Poste poste;
    poste.Ecrit(Ini, avant.toLatin1());
    poste.Demarre();
    QCOMPARE(QString::fromLatin1(poste.Lit(Ini)), apres.replace(u'@', poste.Dossier()));
    QCOMPARE(LangIndex, langue);
    QCOMPARE(frmPrinc->Mnu_Fichier->title(), QStringList({QStringLiteral("File"), QStringLiteral("Ficheros")})
                                                 .value(langue - 1, QStringLiteral("&Fichier")));
    QCOMPARE(frmPrinc->Mnu_Lang_1->isChecked(), langue == 1);
    QVERIFY(frmPrinc->Frame1->isHidden() && frmPrinc->Etat->isHidden());
    QCOMPARE(EditeurCN, QStringLiteral("C:\\WINDOWS\\NOTEPAD.EXE"));
    QCOMPARE(NomFichier + TitreFichier + TexteAnnuler, QString());
    QVERIFY(!frmPrinc->Mnu_EnregistrerSous->isEnabled() && !frmPrinc->Mnu_Imprim->isEnabled());
}

// A settings file that cannot be read leaves the window as it is made, says nothing and is not written over.
void TestDemarrage::IniIllisible_data()
{
    QTest::addColumn<QByteArray>("contenu");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("a line too few") << QByteArray(" 0 \r\n\"\"\r\n 0 \r\n\"\"\r\n 1 \r\n/c\r\n");
    QTest::newRow("quotes never closed") << QByteArray(" 0 \r\n\"/x\r\n 0 \r\n");
    QTest::newRow("number beyond 16 bits") << QByteArray(" 99999 \r\n\"\"\r\n 0 \r\n\"\"\r\n 0 \r\n\r\n 0 \r\n");
    QTest::newRow("2 MB") << QByteArray(2'000'000, '\0');
}

void TestDemarrage::IniIllisible()
{
    QFETCH(QByteArray, contenu);
    Poste poste;
    Operateur operateur;
    poste.Ecrit(Ini, contenu);
    poste.Demarre();
    QCOMPARE(poste.Lit(Ini), contenu);
    QCOMPARE(DosAppli + ParamCom.DosRecep + DosJauge + EditeurCN, QString());
    QVERIFY(Operateur::Offre("Mnu_RecepProg") && frmPrinc->isVisible());
    QCOMPARE(frmPrinc->windowTitle(), QStringLiteral("Dorvanel Pro version 2.7.0"));
}

// "Dorvanel.CFG": a short file leaves the rest empty. "@" stands for the application folder.
void TestDemarrage::Dossiers_data()
{
    QTest::addColumn<QString>("contenu");
    QTest::addColumn<QString>("dossiers");
    QTest::newRow("missing") << QString() << "@|@|C:\\WINDOWS\\NOTEPAD.EXE";
    QTest::newRow("whole") << "\"/p\"\r\n\"/j\"\r\n\"/bin/ed\"\r\n"
                           << "/p|/j|/bin/ed";
    QTest::newRow("short") << "\"/p\"\r\n"
                           << "/p||";
    QTest::newRow("damaged") << "\"/p\r\n/j\r\n"
                             << "||";
}

void TestDemarrage::Dossiers()
{
    QFETCH(QString, contenu);
    QFETCH(QString, dossiers);
    Poste poste;
    if (!contenu.isNull())
        poste.Ecrit(Cfg, contenu.toLatin1());
    poste.Demarre(0);
    QCOMPARE(QStringList({ParamCom.DosRecep, DosJauge, EditeurCN}).join(u'|'), dossiers.replace(u'@', poste.Dossier()));
    QCOMPARE(poste.Lit(Cfg), contenu.toLatin1());
}

// The configuration of the settings, good, damaged (passed over in silence) and missing.
void TestDemarrage::ConfigurationParDefaut()
{
    for (const QLatin1String cas : {QLatin1String("good"), QLatin1String("damaged"), QLatin1String("missing")}) {
        const bool lisible = cas == QLatin1String("good");
        Poste poste;
        Operateur operateur;
        const QString chemin = poste.Chemin("Tour.par");
        if (lisible)
            QFile::copy(QString::fromUtf16(DONNEES) + QStringLiteral("/Complet.par"), chemin);
        else if (cas == QLatin1String("damaged"))
            poste.Ecrit("Tour.par", "3\r\n\"Com3\"\r\n");
        else
            operateur.Repond("Error of loading of file of configuration failing this",
                             QStringLiteral("The file does not exist %1 !").arg(chemin), Boite::Exclamation,
                             QMessageBox::Ok);
        poste.Ecrit(Ini, " 0 \r\n\"\"\r\n 1 \r\n\"" + chemin.toLatin1() + "\"\r\n 0 \r\n\r\n 1 \r\n");
        poste.Demarre();
        QCOMPARE(FicConf, chemin);
        QCOMPARE(Operateur::Offre("Mnu_RecepProg"), lisible);
        QCOMPARE(frmPrinc->Bouton(13)->isEnabled(), lisible);
        QVERIFY(!Operateur::Offre("Mnu_EmisProgCN"));
        QCOMPARE(frmPrinc->Label4->text() + frmPrinc->Label6->text(),
                 lisible ? QStringLiteral("Tour.parTour 2 axes, été €") : QStringLiteral("NoneNone"));
        QCOMPARE(ParamCom.ChaineFinLig, lisible ? QStringLiteral("\r\r\n") : QString());
    }
}

// English and Spanish change at once; French needs a new start, and the box says so each time.
void TestDemarrage::MenuLangue()
{
    Poste poste;
    poste.Demarre(0);
    Operateur operateur;
    Operateur::Menu("Mnu_Lang_2");
    QCOMPARE(frmPrinc->Mnu_Quitter->text(), QStringLiteral("Dejar"));
    QVERIFY(poste.Lit(Ini).endsWith(" 2 \r\n"));
    Operateur::Menu("Mnu_Lang_1");
    QCOMPARE(frmPrinc->Mnu_Quitter->text(), QStringLiteral("Exit"));
    QCOMPARE(frmPrinc->Mnu_Lang_2->text(), QStringLiteral("Spanish"));
    for (int fois = 0; fois < 2; ++fois) {
        operateur.Repond(TitreRelance, TexteRelance, Boite::Information, QMessageBox::Ok);
        Operateur::Menu("Mnu_Lang_0");
    }
    QCOMPARE(frmPrinc->Mnu_Quitter->text(), QStringLiteral("Exit"));
    QCOMPARE(frmPrinc->Mnu_Lang_2->text(), QStringLiteral("Espagnol"));
    QVERIFY(frmPrinc->Mnu_Lang_0->isChecked() && poste.Lit(Ini).endsWith(" 0 \r\n"));
}

// The end by the button and by the window's close box: whether to save a changed text, and, of the button alone,
// whether to go.
void TestDemarrage::Fin_data()
{
    QTest::addColumn<bool>("ferme");
    QTest::addColumn<int>("cas");
    for (const bool ferme : {false, true}) {
        const char *const fin = ferme ? "close" : "quit";
        QTest::addRow("%s: unchanged", fin) << ferme << int(Inchange);
        QTest::addRow("%s: changed, without a name", fin) << ferme << int(SansNom);
        QTest::addRow("%s: changed, not saved", fin) << ferme << int(Refuse);
        QTest::addRow("%s: changed, saved", fin) << ferme << int(Accepte);
    }
}

void TestDemarrage::Fin()
{
    QFETCH(bool, ferme);
    QFETCH(int, cas);
    constexpr char nom[] = "P.iso";
    Poste poste;
    poste.Demarre(0);
    Operateur operateur;
    const QString chemin = cas == SansNom ? QString() : poste.Ecrit(nom, "G0");
    if (cas != SansNom)
        OuvreDocument(chemin);
    if (cas != Inchange) {
        frmPrinc->Text1->setText(QStringLiteral("G1"));
        operateur.Repond(ferme ? QStringLiteral("Fermer le programme CN")
                               : QStringLiteral("Quitter l'éditeur de programmes CN"),
                         QStringLiteral("Fichier %1 modifié !\r\n            Enregistrer le fichier ? ").arg(chemin),
                         Boite::Exclamation | Boite::OuiNon, cas == Refuse ? QMessageBox::No : QMessageBox::Yes);
    }
    if (ferme) {
        QVERIFY(frmPrinc->close());
        QCOMPARE(FichierModifie, cas == SansNom ? Vrai : 0);
    } else {
        operateur.Repond("Quitter le programme", "Quitter Dorvanel\r   Confirmez  ?",
                         Boite::Question | Boite::OuiNon | Boite::SecondBouton, QMessageBox::No);
        Operateur::Barre(6);
        QVERIFY(frmPrinc->isVisible());
        QCOMPARE(FichierModifie, cas == Refuse || cas == SansNom ? Vrai : 0);
    }
    QCOMPARE(poste.Lit(nom), cas == SansNom ? "" : cas == Accepte ? "G1\r\n" : "G0");
}

// Confirmed once, the end asks nothing more, closes the port and ends the process, whatever the text.
void TestDemarrage::QuitteAvecTexteRefuse()
{
    Poste poste;
    poste.Demarre(1);
    Operateur operateur;
    frmPrinc->Text1->setText(QStringLiteral("G1"));
    operateur.Repond("Leave the editor of program numerical control",
                     "Modified file  !\r\n            Record the file ? ", Boite::Exclamation | Boite::OuiNon,
                     QMessageBox::No);
    operateur.Repond("Leave the program", "Leave Dorvanel\r   Confirm  ?",
                     Boite::Question | Boite::OuiNon | Boite::SecondBouton, QMessageBox::Yes);
    PortOuvert = true;
    QTimer::singleShot(0, frmPrinc, [] { Operateur::Menu("Mnu_Quitter"); });
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(!PortOuvert);
}

QTEST_MAIN(TestDemarrage)
#include "TestDemarrage.moc"
