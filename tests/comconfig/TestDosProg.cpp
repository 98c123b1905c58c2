#include "Etabli.h"

#include "comconfig/DosProg.h"
#include "comconfig/ParamCom.h"
#include "comconfig/Prop.h"
#include "shell/CadreExplorateur.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Cfg[] = "Dorvanel.CFG";

/// A workstation whose two reception folders are "Prog" and "Jau", with "Prog/Tour" below.
struct Atelier : Etabli
{
    explicit Atelier(int langue)
        : Etabli(langue)
    {
        Cree({u"Prog/Tour"_s, u"Jau"_s});
        ParamCom.DosRecep = Chemin("Prog");
        DosJauge = Chemin("Jau");
    }
};

QString &Dossier(TypeDossier type)
{
    return type == DossierProgrammes ? ParamCom.DosRecep : DosJauge;
}

} // namespace

class TestDosProg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The folder follows the selection at once, the file only when it is applied, and a new start reads the file. A
    // folder that a configuration names beside the program stays named so until another is chosen.
    void Choisit()
    {
        for (const TypeDossier type : {DossierProgrammes, DossierJauges}) {
            Atelier atelier(0);
            Dossier(type) = u"Prog"_s;
            const DosProg dialogue(type, nullptr);
            FolderTreeview &arbre = *dialogue.FolderTreeview1;
            QCOMPARE(arbre.SelectedFolder() + Dossier(type), atelier.Chemin("Prog/Prog"));
            arbre.setSelectedFolder(atelier.Chemin("Prog/Tour"));
            QCOMPARE(Dossier(type), atelier.Chemin("Prog/Tour/"));
            dialogue.Command1->click();
            arbre.setSelectedFolder(DosAppli);
            dialogue.Command2->click();
            arbre.clearSelection();
            QCOMPARE(Dossier(type), DosAppli + u'/');
            const QString attendu = type == DossierProgrammes ? u"\"%1/Prog/Tour/\"\r\n\"%1/Jau\"\r\n\"%2\"\r\n"_s
                                                              : u"\"%1/Prog\"\r\n\"%1/Prog/Tour/\"\r\n\"%2\"\r\n"_s;
            QCOMPARE(atelier.Lit(Cfg), attendu.arg(DosAppli, EditeurCN).toLatin1());
            atelier.Redemarre();
            QCOMPARE(Dossier(type), atelier.Chemin("Prog/Tour/"));
        }
    }

    // A folder that has gone gives way to the application folder, even if the operator then only closes the dialog. One
    // that cannot be made leaves the name on the screen; with nothing selected none is made.
    void DisparuOuNonCree()
    {
        for (const auto &[langue, type, titre, disparu, nonCree] :
             {std::tuple{0, DossierProgrammes, "Erreur", u"Le dossier <%1> n'existe plus !"_s,
                         u"Le dossier <%1> n'a pas pu être créé !"_s},
              {1, DossierProgrammes, "Error", u"The directory  <%1> does not exist any more !"_s,
               u"The directory <%1> could not be created !"_s},
              {2, DossierJauges, "Error", u"El directorio <%1> no existe ya !"_s,
               u"El directorio <%1>  no pudo crearse !"_s}}) {
            Atelier atelier(langue);
            Dossier(type) = u"C:\\parti"_s;
            atelier.Repond(titre, disparu.arg(Dossier(type)), Boite::Exclamation, QMessageBox::Ok);
            const DosProg dialogue(type, frmPrinc);
            QCOMPARE(dialogue.FolderTreeview1->SelectedFolder(), DosAppli + u'/');
            dialogue.Command3->click();
            dialogue.Text1->setText(u"Prog"_s); // in use
            atelier.Repond("Erreur", nonCree.arg(atelier.Chemin("Prog")), Boite::Critique, QMessageBox::Ok);
            dialogue.Command4->click();
            dialogue.FolderTreeview1->clearSelection();
            dialogue.Command4->click();
            QVERIFY(!dialogue.Frame1->isHidden());
            dialogue.Command2->click();
            QCOMPARE(Dossier(type), DosAppli);
            QVERIFY(!QFile::exists(atelier.Chemin(Cfg)));
        }
    }

    // The new folder is the reception folder at once, and the tree stands on it, as the explorer does where it was
    // opened. What no name may hold is dropped, typed or pasted; Enter makes the folder and applies nothing.
    void SousDossier()
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
            QCOMPARE(ParamCom.DosRecep + dialogue.FolderTreeview1->SelectedFolder(), cree + cree);
            if (const CadreExplorateur *const colonne = frmPrinc->Frame1)
                QCOMPARE(colonne->FolderTreeview1->SelectedFolder() + colonne->File1->Path(), cree + cree);
            QVERIFY(QFileInfo(cree).isDir() && dialogue.Frame1->isHidden() && dialogue.isVisible());
            QVERIFY(!QFile::exists(atelier.Chemin(Cfg)));
        }
    }

    // The reception dialog opens it for its own folder, under its own caption, and shows each choice behind it. From
    // the menu nothing but the folders can be reached; the properties show a choice once it is applied.
    void DepuisLesDialogues()
    {
        Atelier atelier(1);
        atelier.Charge("G0");
        atelier.Presse("Rc_Fic", "Command3");
        atelier.Fait("DosProg", [&atelier](QWidget &fenetre) {
            auto &dialogue = dynamic_cast<DosProg &>(fenetre);
            QCOMPARE(dialogue.windowTitle(), u"Choice of the directory of receiving of the Gauges Tools"_s);
            QCOMPARE(dialogue.FolderTreeview1->SelectedFolder(), atelier.Chemin("Jau/"));
            dialogue.FolderTreeview1->setSelectedFolder(atelier.Chemin("Prog"));
            QCOMPARE(dialogue.parent()->findChild<QLabel *>(u"Label3"_s)->text(), atelier.Chemin("Prog/"));
            dialogue.close();
        });
        atelier.Presse("Rc_Fic", "Command1");
        Operateur::Menu("Mnu_RecepJauge");
        QStringList montre;
        for (const char *const bouton : {"Command2", "Command3"}) {
            atelier.Presse("Prop", bouton);
            atelier.Fait("DosProg", [&montre](QWidget &fenetre) {
                auto &dialogue = dynamic_cast<DosProg &>(fenetre);
                const auto &prop = dynamic_cast<const Prop &>(*dialogue.parent());
                QVERIFY(!prop.SSTab1->isTabEnabled(0) && !prop.SSTab1->isTabEnabled(1) && prop.Label8->isVisible());
                dialogue.FolderTreeview1->setSelectedFolder(u"/"_s);
                for (QPushButton *const suite : {dialogue.Command1, dialogue.Command2}) {
                    montre << prop.Label8->text() + u'|' + prop.Label17->text() + u'|' + prop.Label10->text();
                    suite->click();
                }
            });
        }
        atelier.Presse("Prop", "Command4");
        Operateur::Menu("Mnu_DosRecep");
        QCOMPARE(montre.join(u' '), u"%1/Prog|%1/Prog|%1/Prog/ /|/|%1/Prog/ /|/|%1/Prog/ /|/|/"_s.arg(DosAppli));
    }
};

QTEST_MAIN(TestDosProg)
#include "TestDosProg.moc"
