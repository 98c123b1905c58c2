#include "Operateur.h"
#include "Poste.h"

#include "comconfig/DosProg.h"
#include "comconfig/ParamCom.h"
#include "comconfig/Prop.h"
#include "shell/CadreExplorateur.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Cfg[] = "Dorvanel.CFG";

/// A workstation whose two reception folders are "Prog" and "Jau", with "Prog/Tour" below.
struct Atelier : Poste, Operateur
{
    explicit Atelier(int langue)
        : Poste(langue)
    {
        for (const QString &nom : {u"Prog/Tour"_s, u"Jau"_s})
            QDir(Dossier()).mkpath(nom);
        ParamCom.DosRecep = Chemin("Prog");
        DosJauge = Chemin("Jau");
    }
};

} // namespace

class TestDosProg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Choisit();
    void DisparuOuNonCree();
    void SousDossier();
    void AvantUneReception();
    void DepuisLeMenu();
};

// The folder follows the selection at once, the file only when it is applied, and a new start reads the file. A folder
// that a configuration names beside the program stays named so until another is chosen.
void TestDosProg::Choisit()
{
    for (const TypeDossier type : {DossierProgrammes, DossierJauges}) {
        Atelier atelier(0);
        QString &dossier = type == DossierProgrammes ? ParamCom.DosRecep : DosJauge;
        dossier = u"Prog"_s;
        DosProg dialogue(type, nullptr);
        FolderTreeview &arbre = *dialogue.FolderTreeview1;
        QCOMPARE(arbre.SelectedFolder() + dossier, atelier.Chemin("Prog/Prog"));
        QVERIFY(QDir(DosAppli).mkdir(QLatin1String(Cfg))); // the file cannot be written: told, and no more
        arbre.setSelectedFolder(atelier.Chemin("Prog/Tour"));
        atelier.Fait("MsgBox", Operateur::Clique(QMessageBox::Ok));
        dialogue.Command1->click();
        QCOMPARE(dossier, atelier.Chemin("Prog/Tour/"));
        QVERIFY(QDir(DosAppli).rmdir(QLatin1String(Cfg)));
        dialogue.Command1->click();
        const QString attendu = type == DossierProgrammes ? u"\"%1/Prog/Tour/\"\r\n\"%1/Jau\"\r\n\"%2\"\r\n"_s
                                                          : u"\"%1/Prog\"\r\n\"%1/Prog/Tour/\"\r\n\"%2\"\r\n"_s;
        arbre.setSelectedFolder(DosAppli);
        dialogue.Command2->click();
        arbre.clearSelection();
        QCOMPARE(dossier, DosAppli + u'/');
        QCOMPARE(atelier.Poste::Lit(Cfg), attendu.arg(DosAppli, EditeurCN).toLatin1());
        atelier.Redemarre();
        QCOMPARE(dossier, atelier.Chemin("Prog/Tour/"));
    }
}

// A folder that has gone gives way to the application folder, even if the operator then only closes the dialog. One
// that cannot be made leaves the name on the screen; with nothing selected none is made.
void TestDosProg::DisparuOuNonCree()
{
    const std::tuple<int, TypeDossier, QString, QString, QString> cas[] = {
        {0, DossierProgrammes, u"Erreur"_s, u"Le dossier <%1> n'existe plus !"_s,
         u"Le dossier <%1> n'a pas pu être créé !"_s},
        {1, DossierProgrammes, u"Error"_s, u"The directory  <%1> does not exist any more !"_s,
         u"The directory <%1> could not be created !"_s},
        {1, DossierJauges, u"Error"_s, u"The directory <%1> does not exist any more !"_s,
         u"The directory <%1> could not be created !"_s},
        {2, DossierJauges, u"Error"_s, u"El directorio <%1> no existe ya !"_s,
         u"El directorio <%1>  no pudo crearse !"_s}};
    for (const auto &[langue, type, titre, disparu, nonCree] : cas) {
        Atelier atelier(langue);
        QString &dossier = type == DossierProgrammes ? ParamCom.DosRecep : DosJauge;
        dossier = atelier.Chemin("parti");
        atelier.Repond(titre, disparu.arg(dossier), Boite::Exclamation, QMessageBox::Ok);
        DosProg dialogue(type, frmPrinc);
        QCOMPARE(dialogue.FolderTreeview1->SelectedFolder(), DosAppli + u'/');
        dialogue.Command3->click();
        dialogue.Text1->setText(u"Prog"_s); // in use
        atelier.Repond("Erreur", nonCree.arg(atelier.Chemin("Prog")), Boite::Critique, QMessageBox::Ok);
        dialogue.Command4->click();
        dialogue.FolderTreeview1->clearSelection();
        dialogue.Command4->click();
        QVERIFY(!dialogue.Frame1->isHidden());
        dialogue.Command2->click();
        QCOMPARE(dossier, DosAppli);
        QVERIFY(!QFile::exists(atelier.Chemin(Cfg)));
    }
}

// The new folder is the reception folder at once, and the tree stands on it, as the explorer does where it was opened.
// What no name may hold is dropped, typed or pasted; Enter makes the folder and applies nothing.
void TestDosProg::SousDossier()
{
    for (const bool explorateur : {false, true}) {
        const Atelier atelier(0);
        if (explorateur)
            Operateur::Barre(15);
        DosProg dialogue(DossierProgrammes, frmPrinc);
        dialogue.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialogue) && dialogue.Frame1->isHidden());
        dialogue.Command3->click();
        QCOMPARE(dialogue.focusWidget(), dialogue.Text1);
        const QString interdits = u"².,;:ù*îïÎÏêëÊËôöÔÖûüÛÜâäÂÄ&?+'`^=\\/éèàç()~{[|]}° \"\n\t"_s;
        QTest::keyClicks(dialogue.Text1, u"../ .\\ \",("_s);
        dialogue.Text1->insert(interdits);
        QVERIFY(dialogue.Text1->text().isEmpty() && !dialogue.Command4->isEnabled());
        dialogue.Text1->insert(u"../Fr"_s + interdits + u"e-9_È"_s);
        QTest::keyClick(dialogue.Text1, Qt::Key_Return);
        const QString cree = atelier.Chemin(u"Prog/Fre-9_È/"_s);
        QCOMPARE(ParamCom.DosRecep, cree);
        QCOMPARE(dialogue.FolderTreeview1->SelectedFolder(), cree);
        if (const CadreExplorateur *const colonne = frmPrinc->Frame1)
            QCOMPARE(colonne->FolderTreeview1->SelectedFolder() + colonne->File1->Path(), cree + cree);
        QVERIFY(QFileInfo(cree).isDir() && dialogue.Frame1->isHidden() && dialogue.isVisible());
        QVERIFY(!QFile::exists(atelier.Chemin(Cfg)));
    }
}

// The reception dialog opens it for its own folder, under its own caption, and shows each choice behind it.
void TestDosProg::AvantUneReception()
{
    for (const auto &[entree, titre, nom] :
         {std::tuple{"Mnu_RecepProg", "Choice of the directory of receiving of the Programs NC", "Prog/"},
          {"Mnu_RecepJauge", "Choice of the directory of receiving of the Gauges Tools", "Jau/"}}) {
        Atelier atelier(1);
        atelier.Charge("G0");
        ParamCom.DosRecep = atelier.Chemin("Prog");
        atelier.Presse("Rc_Fic", "Command3");
        atelier.Fait("DosProg", [&atelier, titre = titre, nom = nom](QWidget &fenetre) {
            auto &dialogue = dynamic_cast<DosProg &>(fenetre);
            QCOMPARE(dialogue.windowTitle(), QLatin1String(titre));
            QCOMPARE(dialogue.FolderTreeview1->SelectedFolder(), atelier.Chemin(nom));
            dialogue.FolderTreeview1->setSelectedFolder(atelier.Chemin("Prog/Tour"));
            QCOMPARE(dialogue.parent()->findChild<QLabel *>(u"Label3"_s)->text(), atelier.Chemin("Prog/Tour/"));
            dialogue.close();
        });
        atelier.Presse("Rc_Fic", "Command1");
        Operateur::Menu(entree);
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
        atelier.Fait("DosProg", [&montre, applique = applique](QWidget &fenetre) {
            auto &dialogue = dynamic_cast<DosProg &>(fenetre);
            const auto &prop = dynamic_cast<const Prop &>(*dialogue.parent());
            QVERIFY(!prop.SSTab1->isTabEnabled(0) && !prop.SSTab1->isTabEnabled(1) && prop.Label8->isVisible());
            dialogue.FolderTreeview1->setSelectedFolder(applique ? u"/"_s : DosAppli);
            if (applique)
                dialogue.Command1->click();
            montre << QStringList{prop.Label8->text(), prop.Label17->text(), prop.Label10->text()}.join(u'|');
            dialogue.close();
        });
    }
    atelier.Presse("Prop", "Command4");
    Operateur::Menu("Mnu_DosRecep");
    QCOMPARE(montre.join(u' '), u"%1/Prog|%1/Prog|%1/Jau /|/|%1/Jau /|/|%1/Jau /|/|/"_s.arg(DosAppli));
}

QTEST_MAIN(TestDosProg)
#include "TestDosProg.moc"
