#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "locale/Langue.h"
#include "shell/Chemins.h"
#include "shell/Demarrage.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QApplication>
#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Ini[] = "Dorvanel.ini";
constexpr char Cfg[] = "Dorvanel.CFG";

void AnnonceRelance(Operateur &operateur)
{
    operateur.Repond("Avertissement",
                     "Relancer Dorvanel Pro pour prendre en compte les modifications de langue française.",
                     Boite::Information, QMessageBox::Ok);
}

} // namespace

class TestDemarrage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // In an empty folder the language is asked first; the settings are then written with the explorer on.
    void PremierDemarrage()
    {
        const QString menus[] = {u"&Fichier"_s, u"File"_s, u"Ficheros"_s};
        for (int langue = 0; langue < 3; ++langue) {
            Poste poste;
            Operateur operateur;
            if (langue > 0)
                operateur.Presse("FrmLangue", u"Option%1"_s.arg(langue + 1));
            operateur.Presse("FrmLangue", "Command1");
            if (langue == 0)
                AnnonceRelance(operateur);
            poste.Demarre();
            const QByteArray dossier = poste.Dossier().toLatin1();
            QCOMPARE(poste.Lit(Ini), " 0 \r\n\"" + dossier + "\"\r\n 0 \r\n\"\"\r\n 1 \r\n" + dossier + "\r\n " +
                                         QByteArray::number(langue) + " \r\n");
            QVERIFY(!QFile::exists(poste.Chemin(Cfg)));
            QVERIFY(frmPrinc->ExplorateurMontre() && frmPrinc->Mnu_AffichDOS->isChecked());
            QCOMPARE(frmPrinc->focusWidget(), frmPrinc->Text1);
            QCOMPARE(frmPrinc->Mnu_Fichier->title(), menus[langue]);
            QVERIFY(!Operateur::Offre("Mnu_RecepProg") && !frmPrinc->Mnu_EditProg->isEnabled());
        }
    }

    // A folder that takes no settings is told, one that does is not.
    void DossierFerme()
    {
        const Poste poste(0);
        Operateur operateur;
        AnnonceDossierFerme();
        const QString absent = poste.Chemin(u"absent"_s);
        FixeDossierApplication(absent);
        operateur.Repond(u"Dossier des réglages"_s,
                         u"Rien ne peut être écrit dans le dossier :\r"_s + absent +
                             u"\rVos réglages ne seront pas gardés."_s,
                         Boite::Exclamation, QMessageBox::Ok);
        AnnonceDossierFerme();
    }

    // What the settings file holds, and how the start writes it back; one that cannot be read leaves the window as it
    // is made, says nothing and is not written over. "@" stands for the application folder.
    void IniCorrige()
    {
        const QByteArray sept = " 1 \r\n\"/x y\"\r\n 0 \r\n\"\"\r\n 0 \r\n/c\r\n 1 \r\n";
        const std::tuple<QByteArray, QByteArray, int> fichiers[] = {
            {sept + "more\r\n", sept, 1},
            // The folder is kept only with its option.
            {" 0 \r\n\"/x\"\r\n 0 \r\n\"/m.par\"\r\n 0 \r\n\r\n 2 \r\n",
             " 0 \r\n\"@\"\r\n 0 \r\n\"/m.par\"\r\n 0 \r\n@\r\n 2 \r\n", 2},
            // A comma in line 6 pushes the language away.
            {" 1 \r\n\"/x\"\r\n 0 \r\n\"\"\r\n 0 \r\n/a,b\r\n 1 \r\n",
             " 1 \r\n\"/x\"\r\n 0 \r\n\"\"\r\n 0 \r\n/a\r\n-1 \r\n", LangAucune},
            {"1\n\"/x\"\n0\n\"\"\n0\n/a,2 b\r\n", " 1 \r\n\"/x\"\r\n 0 \r\n\"\"\r\n 0 \r\n/a\r\n 2 \r\n", 2},
            {"1\n\"/x\"\n0\n\"\"\n0\n/c\n \n", " 1 \r\n\"/x\"\r\n 0 \r\n\"\"\r\n 0 \r\n/c\r\n 0 \r\n", 0},
            {"1\n\"/x\"\n0\n\"\"\n0\n/c\n9", " 1 \r\n\"/x\"\r\n 0 \r\n\"\"\r\n 0 \r\n/c\r\n 9 \r\n", 9},
            {"", "", 0},
            {" 0 \r\n\"\"\r\n 0 \r\n\"\"\r\n 1 \r\n/c\r\n", "", 0}, // a line too few
            {" 0 \r\n\"/x\r\n 0 \r\n", "", 0},                      // quotes never closed
            {" 99999 \r\n\"\"\r\n 0 \r\n\"\"\r\n 0 \r\n\r\n 0 \r\n", "", 0},
            {QByteArray(2'000'000, '\0'), "", 0}};
        for (auto [avant, apres, langue] : fichiers) {
            const bool lisible = !apres.isEmpty();
            Poste poste;
            const Operateur operateur;
            poste.Ecrit(Ini, avant);
            poste.Demarre();
            QVERIFY(poste.Lit(Ini) == (lisible ? apres.replace("@", poste.Dossier().toLatin1()) : avant));
            QCOMPARE(LangIndex, langue);
            QCOMPARE(frmPrinc->Mnu_Fichier->title(),
                     QStringList({u"File"_s, u"Ficheros"_s}).value(langue - 1, u"&Fichier"_s));
            QCOMPARE(frmPrinc->Mnu_Lang_1->isChecked(), langue == 1);
            QVERIFY(frmPrinc->isVisible() && !frmPrinc->ExplorateurMontre());
            QCOMPARE(Operateur::Offre("Mnu_RecepProg"), !lisible);
            QVERIFY(!frmPrinc->Mnu_EnregistrerSous->isEnabled() && !frmPrinc->Mnu_Imprim->isEnabled());
            QVERIFY(frmPrinc->Etat->isHidden());
            for (const QString *dossier : {&DosAppli, &ParamCom.DosRecep, &DosJauge, &EditeurCN})
                QCOMPARE(dossier->isEmpty(), !lisible);
            QCOMPARE(NomFichier + TitreFichier + TexteAnnuler, QString());
        }
    }

    // "Dorvanel.CFG", missing, whole, short and damaged: what it does not bring is empty.
    void Dossiers()
    {
        const std::pair<QByteArray, QString> fichiers[] = {{{}, u"@|@|C:\\WINDOWS\\NOTEPAD.EXE"_s},
                                                           {"\"/p\"\r\n\"/j\"\r\n\"/bin/ed\"\r\n", u"/p|/j|/bin/ed"_s},
                                                           {"\"/p\"\r\n", u"/p||"_s},
                                                           {"\"/p\r\n/j\r\n", u"||"_s}};
        for (auto [contenu, dossiers] : fichiers) {
            Poste poste;
            poste.Ecrit(Ini, " 0 \r\n\"\"\r\n 0 \r\n\"\"\r\n 0 \r\n\r\n 0 \r\n");
            if (!contenu.isEmpty())
                poste.Ecrit(Cfg, contenu);
            poste.Demarre();
            QCOMPARE(QStringList({ParamCom.DosRecep, DosJauge, EditeurCN}).join(u'|'),
                     dossiers.replace(u'@', poste.Dossier()));
            QCOMPARE(poste.Lit(Cfg), contenu);
        }
    }

    // The configuration of the settings, good, damaged (passed over in silence) and missing.
    void ConfigurationParDefaut()
    {
        QFile complet(QString::fromUtf16(DONNEES) + u"/Complet.par"_s);
        QVERIFY(complet.open(QIODevice::ReadOnly));
        for (const QByteArray &contenu : {complet.readAll(), QByteArray("3\r\n\"Com3\"\r\n"), QByteArray()}) {
            const bool lisible = contenu.size() > 100;
            Poste poste;
            Operateur operateur;
            const QString chemin = poste.Chemin("Tour.par");
            if (contenu.isEmpty())
                operateur.Repond("Error of loading of file of configuration failing this",
                                 u"The file does not exist %1 !"_s.arg(chemin), Boite::Exclamation, QMessageBox::Ok);
            else
                poste.Ecrit("Tour.par", contenu);
            poste.Ecrit(Ini, " 0 \r\n\"\"\r\n 1 \r\n\"" + chemin.toLatin1() + "\"\r\n 0 \r\n\r\n 1 \r\n");
            poste.Demarre();
            QCOMPARE(FicConf, chemin);
            QCOMPARE(Operateur::Offre("Mnu_RecepProg"), lisible);
            QCOMPARE(frmPrinc->Bouton(13)->isEnabled(), lisible);
            QVERIFY(!Operateur::Offre("Mnu_EmisProgCN"));
            QCOMPARE(frmPrinc->Label4->text() + frmPrinc->Label6->text(),
                     lisible ? u"Tour.parTour 2 axes, été €"_s : u"NoneNone"_s);
            QCOMPARE(ParamCom.ChaineFinLig, lisible ? u"\r\r\n"_s : QString());
        }
    }

    // English and Spanish change at once; French needs a new start, and the box says so each time.
    void MenuLangue()
    {
        const Poste poste(0);
        Operateur operateur;
        Operateur::Menu("Mnu_Lang_2");
        QVERIFY(poste.Lit(Ini).endsWith(" 2 \r\n"));
        for (int fois = 0; fois < 2; ++fois) {
            AnnonceRelance(operateur);
            Operateur::Menu("Mnu_Lang_0");
        }
        QCOMPARE(frmPrinc->Mnu_Quitter->text() + frmPrinc->Mnu_Lang_1->text(), u"DejarAnglais"_s);
    }

    // The end by the button and by the window's close box: whether to save a changed text, which only a button answers,
    // and, of the end by the button alone, whether to go.
    void Fin()
    {
        for (const auto &[ferme, change, nomme, oui, fichier, modifie] :
             {std::tuple{false, false, true, false, "G0", 0},
              {false, true, false, true, "", Vrai},
              {false, true, true, false, "G0", Vrai},
              {false, true, true, true, "G1\r\n", 0},
              {true, false, true, false, "G0", 0},
              {true, true, false, true, "", Vrai},
              {true, true, true, false, "G0", 0},
              {true, true, true, true, "G1\r\n", 0}}) {
            const Poste poste(0);
            Operateur operateur;
            const QString chemin = nomme ? poste.Ecrit("P.iso", "G0") : QString();
            if (nomme)
                OuvreDocument(chemin);
            if (change) {
                frmPrinc->Text1->setText(u"G1"_s);
                operateur.Fait("MsgBox", [](QWidget &question) {
                    QTest::keyClick(&question, Qt::Key_Escape);
                    QVERIFY(!question.close());
                });
                operateur.Repond(ferme ? u"Fermer le programme CN"_s : u"Quitter l'éditeur de programmes CN"_s,
                                 u"Fichier %1 modifié !\r\n            Enregistrer le fichier ? "_s.arg(chemin),
                                 Operateur::DemandeSimple, oui ? QMessageBox::Yes : QMessageBox::No);
            }
            if (ferme) {
                QVERIFY(frmPrinc->close());
            } else {
                operateur.Repond("Quitter le programme", "Quitter Dorvanel\r   Confirmez  ?", Operateur::Demande,
                                 QMessageBox::No);
                Operateur::Barre(6);
                QVERIFY(frmPrinc->isVisible());
            }
            QCOMPARE(FichierModifie, modifie);
            QCOMPARE(poste.Lit("P.iso"), QByteArray(fichier));
        }
    }

    // Confirmed once, the end asks nothing more, closes the port and ends the process, whatever the text.
    void QuitteAvecTexteRefuse()
    {
        const Poste poste(1);
        Operateur operateur;
        frmPrinc->Text1->setText(u"G1"_s);
        operateur.Repond("Leave the editor of program numerical control",
                         "Modified file  !\r\n            Record the file ? ", Operateur::DemandeSimple,
                         QMessageBox::No);
        operateur.Repond("Leave the program", "Leave Dorvanel\r   Confirm  ?", Operateur::Demande, QMessageBox::Yes);
        PortOuvert = true;
        QTimer::singleShot(0, frmPrinc, [] { Operateur::Menu("Mnu_Quitter"); });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(!PortOuvert);
    }
};

QTEST_MAIN(TestDemarrage)
#include "TestDemarrage.moc"
