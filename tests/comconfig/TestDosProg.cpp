#include "Etabli.h"

#include "comconfig/DosProg.h"
#include "shell/CadreExplorateur.h"
#include "shell/NomsPerdus.h"

namespace {

constexpr char Cfg[] = "Dorvanel.CFG";

/// A workstation whose two reception folders are "Prog" and "Jau", with "Prog/Tour" below.
struct Atelier : Etabli
{
    explicit Atelier(int langue)
        : Etabli(langue)
    {
        for (const QString &dossier : {u"Prog/Tour"_s, u"Jau"_s})
            QDir(Dossier()).mkpath(dossier);
        ParamCom.DosRecep = Chemin("Prog");
        Reglages.DosJauge = Chemin("Jau");
    }
};

QString &DossierDe(TypeDossier type)
{
    return type == DossierProgrammes ? ParamCom.DosRecep : Reglages.DosJauge;
}

} // namespace

class TestDosProg : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The folder follows the selection at once, the file only when it is applied, and a new start reads the file. A
    // folder that a configuration names beside the program stays named so until another is chosen.
    void Choisit_data() { OuiEtNon("programmes", "programs", "gauges"); }
    void Choisit()
    {
        QFETCH(bool, programmes);
        const TypeDossier type = programmes ? DossierProgrammes : DossierJauges;
        Atelier atelier(0);
        DossierDe(type) = u"Prog"_s;
        const DosProg dialogue(type, nullptr);
        FolderTreeview &arbre = *dialogue.FolderTreeview1;
        QCOMPARE((QStringList{arbre.SelectedFolder(), DossierDe(type)}),
                 (QStringList{atelier.Chemin("Prog/"), u"Prog"_s}));
        arbre.setSelectedFolder(atelier.Chemin("Prog/Tour"));
        dialogue.Command1->click();
        arbre.setSelectedFolder(Reglages.DosAppli);
        dialogue.Command2->click();
        arbre.clearSelection();
        QCOMPARE(DossierDe(type), atelier.Dossier() + QDir::separator());
        const QString attendu = programmes ? u"\"%1/Prog/Tour/\"\r\n\"%1/Jau\"\r\n\"%2\"\r\n"_s
                                           : u"\"%1/Prog\"\r\n\"%1/Prog/Tour/\"\r\n\"%2\"\r\n"_s;
        QCOMPARE(atelier.Lit(Cfg),
                 QDir::toNativeSeparators(attendu.arg(Reglages.DosAppli, Reglages.EditeurCN)).toLatin1());
        atelier.Redemarre();
        QCOMPARE(DossierDe(type), atelier.Chemin("Prog/Tour/"));
    }

    // A folder whose name the file cannot keep is told as it is applied, also where it goes along
    // with another, and not found by the next start.
    void NomPerdu()
    {
        Atelier atelier(1);
        QDir(atelier.Dossier()).mkdir(u"a\"b"_s);
        const DosProg dialogue(DossierJauges, nullptr);
        dialogue.FolderTreeview1->setSelectedFolder(atelier.Chemin(u"a\"b"_s));
        ParamCom.DosRecep = u"/Łódź"_s; // only looked at
        atelier.ApprendQue(u"  \"\n"_s);
        atelier.ApprendQue(u"  Ł ź\n"_s);
        dialogue.Command1->click();
        AnnonceNomPerdu(Reglages.DosJauge, LigneNom::Nue, {}); // a bare line would keep it
        atelier.Redemarre();
        QCOMPARE(Reglages.DosJauge, atelier.Chemin("a"));
    }

    // A folder that has gone gives way to the application folder, even if the operator then only closes the dialog; one
    // that goes while it is open, to the folder above. One that cannot be made leaves the name on the screen; with
    // nothing selected none is made.
    void DisparuOuNonCree()
    {
        Atelier atelier(2);
        Reglages.DosJauge = u"C:\\parti"_s;
        atelier.Apprend("Error", "El directorio <C:\\parti> no existe ya !");
        const DosProg dialogue(DossierJauges, frmPrinc);
        QCOMPARE(dialogue.FolderTreeview1->SelectedFolder(), atelier.Dossier() + QDir::separator());
        const QString cle = atelier.Chemin("Cle/");
        QVERIFY(QDir().mkdir(cle));
        dialogue.FolderTreeview1->setSelectedFolder(cle);
        QCOMPARE(Reglages.DosJauge, cle);
        atelier.Apprend("Error", u"El directorio <%1> no existe ya !"_s.arg(cle));
        QVERIFY(QDir().rmdir(cle));
        QTRY_COMPARE(Reglages.DosJauge, atelier.Dossier() + QDir::separator());
        dialogue.Command3->click();
        dialogue.Text1->setText(u"Prog"_s); // in use
        atelier.Apprend("Erreur", u"El directorio <%1>  no pudo crearse !"_s.arg(atelier.Chemin("Prog")),
                        Boite::Critique);
        dialogue.Command4->click();
        dialogue.FolderTreeview1->clearSelection();
        dialogue.Command4->click();
        QVERIFY(!dialogue.Frame1->isHidden());
        dialogue.Command2->click();
        QCOMPARE(Reglages.DosJauge, atelier.Dossier() + QDir::separator());
    }

    // The new folder is the reception folder at once, and the tree stands on it, as the explorer does where it was
    // opened. What no name may hold is dropped, typed or pasted; Enter makes the folder and applies nothing.
    void SousDossier_data() { OuiEtNon("explorateur", "with the explorer", "without"); }
    void SousDossier()
    {
        QFETCH(bool, explorateur);
        const Atelier atelier(0);
        if (explorateur)
            Operateur::Barre(15);
        DosProg dialogue(DossierProgrammes, frmPrinc);
        dialogue.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialogue));
        QVERIFY(dialogue.Frame1->isHidden());
        dialogue.Command3->click();
        QCOMPARE(dialogue.focusWidget(), dialogue.Text1);
        const QString interdits = u"².,;:ù*îïÎÏêëÊËôöÔÖûüÛÜâäÂÄ&?+'`^=\\/éèàç()~{[|]}° \"\n\t"_s;
        QVERIFY(dialogue.Text1->text().isEmpty());
        QVERIFY(!dialogue.Command4->isEnabled());
        dialogue.Text1->setText(u"A"_s);
        dialogue.Text1->selectAll();
        QTest::keyClicks(dialogue.Text1, u"../ .\\ \",("_s);
        QCOMPARE(dialogue.Text1->selectedText(), u"A"_s); // a dropped key takes nothing with it
        dialogue.Text1->insert(u"../Fr"_s + interdits + u"e-9_È"_s);
        QTest::keyClick(dialogue.Text1, Qt::Key_Return);
        const QString cree = atelier.Chemin(u"Prog/Fre-9_È/"_s);
        QCOMPARE(ParamCom.DosRecep, cree);
        QCOMPARE(dialogue.FolderTreeview1->SelectedFolder(), cree);
        if (const CadreExplorateur *const colonne = frmPrinc->Frame1)
            QCOMPARE((QStringList{colonne->FolderTreeview1->SelectedFolder(), colonne->File1->Path()}),
                     (QStringList{cree, cree}));
        QVERIFY(QFileInfo(cree).isDir());
        QVERIFY(dialogue.Frame1->isHidden());
        QVERIFY(dialogue.isVisible());
        QCOMPARE(dialogue.focusWidget(), dialogue.FolderTreeview1); // where Enter makes no second one
        QVERIFY(!QFile::exists(atelier.Chemin(Cfg)));
    }

    // The reception dialog opens it for its own folder, and shows each choice behind it; the properties, of which the
    // menu opens nothing but the folders, show a choice once it is applied.
    void DepuisLesDialogues()
    {
        Atelier atelier(1);
        atelier.Charge("G0");
        const auto choisit = [](const QString &label, const QString &avant) {
            return [=](QWidget &fenetre) {
                const auto &dialogue = dynamic_cast<const DosProg &>(fenetre);
                const auto *const montre = dialogue.parent()->findChild<QLabel *>(label);
                dialogue.FolderTreeview1->setSelectedFolder(u"/"_s);
                QVERIFY(montre->isVisible());
                QCOMPARE(montre->text(), avant);
                dialogue.Command1->click();
                QCOMPARE(montre->text(), u"/"_s);
                fenetre.close();
            };
        };
        atelier.Presse("Rc_Fic", "Command3");
        atelier.Fait("DosProg", choisit(u"Label3"_s, u"/"_s));
        atelier.Presse("Rc_Fic", "Command1");
        Operateur::Menu("Mnu_RecepJauge");
        QCOMPARE((QStringList{Reglages.DosJauge, ParamCom.DosRecep}), (QStringList{u"/"_s, atelier.Chemin("Prog")}));

        atelier.Presse("Prop", "Command2");
        atelier.Fait("DosProg", choisit(u"Label8"_s, atelier.Chemin("Prog")));
        atelier.Presse("Prop", "Command4");
        Operateur::Menu("Mnu_DosRecep");
        QCOMPARE(ParamCom.DosRecep, u"/"_s);
    }
};

QTEST_MAIN(TestDosProg)
#include "TestDosProg.moc"
