#include "Operateur.h"
#include "Poste.h"

#include "comconfig/DosProg.h"
#include "comconfig/ParamCom.h"
#include "comconfig/Prop.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Cfg[] = "Dorvanel.CFG";
constexpr char Fenetre[] = "DosProg";

/// A workstation whose two reception folders are "Prog" and "Jau", with "Prog/Tour" below.
struct Atelier : Poste, Operateur
{
    explicit Atelier(int langue)
        : Poste(langue)
    {
        QDir(Dossier()).mkpath(u"Prog/Tour"_s);
        QDir(Dossier()).mkpath(u"Jau"_s);
        ParamCom.DosRecep = Chemin("Prog");
        DosJauge = Chemin("Jau");
        EditeurCN = u"/bin/ed"_s;
    }

    /// What "Dorvanel.CFG" holds with these folders of the workstation.
    QByteArray Fichier(QAnyStringView programmes, QAnyStringView jauges) const
    {
        return u"\"%1\"\r\n\"%2\"\r\n\"/bin/ed\"\r\n"_s.arg(Chemin(programmes), Chemin(jauges)).toLatin1();
    }
};

} // namespace

class TestDosProg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Choisit();
    void Disparu();
    void SousDossier();
    void NonCree();
    void AvantUneReception();
    void DepuisLeMenu();
    void NonEcrit();
};

// The folder follows the selection at once, the file only when it is applied; a new start reads the file. A folder that
// a configuration names beside the program stays named so until another is chosen.
void TestDosProg::Choisit()
{
    for (const TypeDossier type : {DossierProgrammes, DossierJauges}) {
        Atelier atelier(0);
        QString &dossier = type == DossierProgrammes ? ParamCom.DosRecep : DosJauge;
        dossier = u"Prog"_s;
        DosProg dialogue(type, nullptr);
        QCOMPARE(dialogue.FolderTreeview1->SelectedFolder(), atelier.Chemin("Prog/"));
        QCOMPARE(dossier, u"Prog"_s);

        QSignalSpy choisi(&dialogue, &DosProg::DossierChoisi);
        const QSignalSpy applique(&dialogue, &DosProg::DossierApplique);
        dialogue.FolderTreeview1->setSelectedFolder(atelier.Chemin("Prog/Tour"));
        QCOMPARE(dossier, atelier.Chemin("Prog/Tour/"));
        QCOMPARE(choisi.size(), 1);
        QCOMPARE(atelier.Poste::Lit(Cfg), QByteArray());
        dialogue.Command1->click();
        QCOMPARE(applique.size(), 1);
        const QByteArray fichier =
            type == DossierProgrammes ? atelier.Fichier("Prog/Tour/", "Jau") : atelier.Fichier("Prog", "Prog/Tour/");
        QCOMPARE(atelier.Poste::Lit(Cfg), fichier);

        dialogue.FolderTreeview1->setSelectedFolder(atelier.Dossier());
        dialogue.Command2->click();
        QCOMPARE(dossier, DosAppli + u'/');
        dialogue.FolderTreeview1->clearSelection();
        QCOMPARE(dossier, DosAppli + u'/');
        QCOMPARE(atelier.Poste::Lit(Cfg), fichier);
        atelier.Redemarre();
        QCOMPARE(dossier, atelier.Chemin("Prog/Tour/"));
        QCOMPARE(EditeurCN, u"/bin/ed"_s);
    }
}

// A folder that has gone gives way to the application folder, even if the operator then only closes the dialog.
void TestDosProg::Disparu()
{
    const std::pair<QString, QString> textes[][2] = {
        {{u"Erreur"_s, u"Le dossier <%1> n'existe plus !"_s}, {u"Erreur"_s, u"Le dossier <%1> n'existe plus !"_s}},
        {{u"Error"_s, u"The directory  <%1> does not exist any more !"_s},
         {u"Error"_s, u"The directory <%1> does not exist any more !"_s}},
        {{u"Error"_s, u"El directorio <%1> no existe ya !"_s}, {u"Error"_s, u"El directorio <%1> no existe ya !"_s}}};
    for (int langue = 0; langue < 3; ++langue) {
        for (const TypeDossier type : {DossierProgrammes, DossierJauges}) {
            Atelier atelier(langue);
            QString &dossier = type == DossierProgrammes ? ParamCom.DosRecep : DosJauge;
            dossier = atelier.Chemin("parti");
            const auto &[titre, texte] = textes[langue][type - 1];
            atelier.Repond(titre, texte.arg(dossier), Boite::Exclamation, QMessageBox::Ok);
            DosProg dialogue(type, frmPrinc);
            QCOMPARE(dialogue.FolderTreeview1->SelectedFolder(), DosAppli + u'/');
            dialogue.Command2->click();
            QCOMPARE(dossier, DosAppli);
            QCOMPARE(atelier.Poste::Lit(Cfg), QByteArray());
        }
    }
}

// The new folder is the reception folder at once, and both trees stand on it. What no name may hold is dropped, typed
// or pasted.
void TestDosProg::SousDossier()
{
    const Atelier atelier(0);
    DosProg dialogue(DossierProgrammes, frmPrinc);
    dialogue.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialogue));
    QVERIFY(dialogue.Frame1->isHidden());
    dialogue.Command3->click();
    QCOMPARE(dialogue.focusWidget(), dialogue.Text1);
    QVERIFY(!dialogue.Command4->isEnabled());
    const QString interdits =
        u"² . , ; : ù * î ï Î Ï ê ë Ê Ë ô ö Ô Ö û ü Û Ü â ä Â Ä & ? + ' ` ^ = \\ / é è à ç ( ) ~ { "
        "[ | ] } ° \"\n\t"_s;
    dialogue.Text1->insert(interdits);
    QTest::keyClicks(dialogue.Text1, u"../ .\\ \",("_s);
    QCOMPARE(dialogue.Text1->text(), QString());
    QVERIFY(!dialogue.Command4->isEnabled());
    dialogue.Text1->insert(u"../Fr"_s + interdits + u"e-9_È"_s);
    QVERIFY(dialogue.Command4->isEnabled());
    QTest::keyClick(dialogue.Text1, Qt::Key_Return);
    const QString cree = atelier.Chemin(u"Prog/Fre-9_È/"_s);
    QVERIFY(QFileInfo(cree).isDir());
    QCOMPARE(ParamCom.DosRecep, cree);
    QCOMPARE(dialogue.FolderTreeview1->SelectedFolder(), cree);
    QCOMPARE(frmPrinc->FolderTreeview1->SelectedFolder(), cree);
    QCOMPARE(frmPrinc->File1->Path(), cree);
    QVERIFY(dialogue.Frame1->isHidden() && dialogue.isVisible());
    QCOMPARE(atelier.Poste::Lit(Cfg), QByteArray()); // Enter made the folder and applied nothing
}

// The name stays on the screen to be changed; the folder stays as it was. With nothing selected nothing is made.
void TestDosProg::NonCree()
{
    const QString textes[] = {u"Le dossier <%1> n'a pas pu être créé !"_s,
                              u"The directory <%1> could not be created !"_s,
                              u"El directorio <%1>  no pudo crearse !"_s};
    for (int langue = 0; langue < 3; ++langue) {
        Atelier atelier(langue);
        DosProg dialogue(DossierProgrammes, frmPrinc);
        dialogue.Command3->click();
        dialogue.Text1->setText(u"Tour"_s); // in use
        atelier.Repond("Erreur", textes[langue].arg(atelier.Chemin("Prog/Tour")), Boite::Critique, QMessageBox::Ok);
        dialogue.Command4->click();
        QVERIFY(!dialogue.Frame1->isHidden());
        QCOMPARE(ParamCom.DosRecep, atelier.Chemin("Prog"));
        dialogue.Text1->setText(u"Neuf"_s);
        dialogue.FolderTreeview1->clearSelection();
        dialogue.Command4->click();
        QVERIFY(!QFileInfo::exists(u"/Neuf"_s) && !QFileInfo::exists(atelier.Chemin("Prog/Neuf")));
    }
}

// The reception dialog opens it for its own folder, under its own caption, and shows each choice behind it.
void TestDosProg::AvantUneReception()
{
    const std::tuple<const char *, QString, QString> modes[] = {
        {"Mnu_RecepProg", u"Choice of the directory of receiving of the Programs NC"_s, u"Prog"_s},
        {"Mnu_RecepJauge", u"Choice of the directory of receiving of the Gauges Tools"_s, u"Jau"_s}};
    for (const auto &[entree, titre, nom] : modes) {
        Atelier atelier(1);
        atelier.Charge("G0");
        ParamCom.DosRecep = atelier.Chemin("Prog");
        atelier.Presse("Rc_Fic", "Command3");
        atelier.Fait(Fenetre, [&atelier, titre = titre, nom = nom](QWidget &fenetre) {
            auto &dialogue = dynamic_cast<DosProg &>(fenetre);
            QCOMPARE(dialogue.windowTitle(), titre);
            QCOMPARE(dialogue.FolderTreeview1->SelectedFolder(), atelier.Chemin(nom) + u'/');
            dialogue.FolderTreeview1->setSelectedFolder(atelier.Chemin("Prog/Tour"));
            QCOMPARE(dialogue.parent()->findChild<QLabel *>(u"Label3"_s)->text(), atelier.Chemin("Prog/Tour/"));
            dialogue.Command2->click();
        });
        atelier.Presse("Rc_Fic", "Command1");
        Operateur::Menu(entree);
        QCOMPARE(nom == u"Jau" ? DosJauge : ParamCom.DosRecep, atelier.Chemin("Prog/Tour/"));
    }
}

// The menu opens the folders and nothing else of the properties, which show a choice once it is applied.
void TestDosProg::DepuisLeMenu()
{
    Atelier atelier(0);
    QStringList montre;
    for (const auto &[bouton, applique] :
         {std::pair{"Command2", false}, {"Command2", true}, {"Command3", false}, {"Command3", true}}) {
        atelier.Presse("Prop", bouton);
        atelier.Fait(Fenetre, [&montre, applique = applique](QWidget &fenetre) {
            auto &dialogue = dynamic_cast<DosProg &>(fenetre);
            dialogue.FolderTreeview1->setSelectedFolder(applique ? u"/"_s : DosAppli);
            if (applique)
                dialogue.Command1->click();
            const auto &prop = dynamic_cast<const Prop &>(*dialogue.parent());
            montre << QStringList{prop.Label8->text(), prop.Label17->text(), prop.Label10->text()}.join(u'|');
            dialogue.Command2->click();
        });
    }
    atelier.Fait("Prop", [](QWidget &fenetre) {
        const auto &prop = dynamic_cast<const Prop &>(fenetre);
        QCOMPARE(prop.SSTab1->currentIndex(), 2);
        QVERIFY(!prop.SSTab1->isTabEnabled(0) && !prop.SSTab1->isTabEnabled(1));
        fenetre.close();
    });
    Operateur::Menu("Mnu_DosRecep");
    const QString prog = atelier.Chemin("Prog");
    const QString jau = atelier.Chemin("Jau");
    QCOMPARE(montre, QStringList({prog + u'|' + prog + u'|' + jau, u"/|/|"_s + jau, u"/|/|"_s + jau, u"/|/|/"_s}));
}

// A file that cannot be written is told, and the folder holds for this run.
void TestDosProg::NonEcrit()
{
    Atelier atelier(0);
    QDir(atelier.Dossier()).mkpath(QLatin1String(Cfg));
    DosProg dialogue(DossierProgrammes, frmPrinc);
    dialogue.FolderTreeview1->setSelectedFolder(atelier.Chemin("Prog/Tour"));
    atelier.Fait("MsgBox", Operateur::Clique(QMessageBox::Ok));
    dialogue.Command1->click();
    QCOMPARE(ParamCom.DosRecep, atelier.Chemin("Prog/Tour/"));
}

QTEST_MAIN(TestDosProg)
#include "TestDosProg.moc"
