#include "Etabli.h"

#include "comconfig/FrmConfDem.h"
#include "comconfig/ParamCom.h"
#include "shell/CadreExplorateur.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Ini[] = "Dorvanel.ini";

/// A workstation and its operator at the start-up options. "%1" in a text stands for the application folder.
struct Atelier : Etabli
{
    Atelier() { Cree({u"Pieces"_s, u"Conf"_s}); }

    void Coche(const QString &cases)
    {
        Fait("FrmConfDem", [cases](QWidget &fenetre) {
            for (QCheckBox *coche : fenetre.findChildren<QCheckBox *>())
                coche->setChecked(cases.contains(coche->objectName().back()));
        });
    }

    /// The button of a choice, and what is taken there; "" cancels.
    void Parcourt(const char *bouton, const QString &prend)
    {
        Presse("FrmConfDem", bouton);
        prend.isEmpty() ? Ferme("CommonDialog") : Choisit(Chemin(prend));
    }

    /// Opens the options, does what was foretold, saves or not, and closes. "Dorvanel.ini" then holds this.
    void Ouvre(bool enregistre, const QString &ini)
    {
        if (enregistre)
            Presse("FrmConfDem", "Command4");
        Presse("FrmConfDem", "Command3");
        Menu("Mnu_ConfigDemar");
        QCOMPARE(Lit(Ini), ini.arg(Dossier()).toLatin1());
    }
};

} // namespace

class TestFrmConfDem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Everything chosen and saved: the running program goes on as it is, the next start does all of it and shows it.
    // Then all but the configuration given up: a folder goes with its box, and an option without a file does nothing
    // and says nothing.
    void ProchainDemarrage()
    {
        Atelier atelier;
        QVERIFY(QFile::copy(atelier.complet, atelier.Chemin("Conf/Tour.par")));
        atelier.Parcourt("Command1", u"Pieces"_s);
        atelier.Parcourt("Command2", u"Conf/Tour.par"_s);
        atelier.Cree({u"A, B"_s}); // a name that the file cannot hold
        atelier.Parcourt("Command5", u"A, B"_s);
        atelier.Fait("MsgBox", Operateur::Clique(QMessageBox::Ok));
        atelier.Parcourt("Command5", u"Conf"_s);
        atelier.Coche(u"123"_s);
        const QString ini = u" 1 \r\n\"%1/Pieces\"\r\n 1 \r\n\"%1/Conf/Tour.par\"\r\n 1 \r\n%1/Conf\r\n 0 \r\n"_s;
        atelier.Ouvre(true, ini);
        QVERIFY(!frmPrinc->ExplorateurMontre() && FicConf.isEmpty() && !Operateur::Offre("Mnu_RecepProg"));
        atelier.Redemarre();
        QVERIFY(frmPrinc->ExplorateurMontre() && Operateur::Offre("Mnu_RecepProg"));
        QCOMPARE(frmPrinc->Frame1->FolderTreeview1->SelectedFolder(), atelier.Chemin("Pieces/"));
        QCOMPARE(FicConf + ParamCom.NomPort, atelier.Chemin("Conf/Tour.parCom3"));
        atelier.Ouvre(true, ini);

        FicConfDefaut.clear();
        atelier.Coche(u"2"_s);
        const QString reste = u" 0 \r\n\"%1\"\r\n 1 \r\n\"\"\r\n 0 \r\n%1/Conf\r\n 0 \r\n"_s;
        atelier.Ouvre(true, reste);
        atelier.Redemarre();
        QVERIFY(!frmPrinc->ExplorateurMontre() && FicConf.isEmpty());
        atelier.Ouvre(true, reste);
    }

    // Cancelled choices leave what stood there, and closing changes no setting. The language dialog starts the settings
    // anew: the controls then show them.
    void SansChanger()
    {
        Atelier atelier;
        DosConf = atelier.Chemin("Conf");
        atelier.Coche(u"123"_s);
        for (const char *const bouton : {"Command1", "Command2", "Command5"})
            atelier.Parcourt(bouton, {});
        const QString ini = u" 1 \r\n\"%1\"\r\n 1 \r\n\"\"\r\n 1 \r\n%1/Conf\r\n 0 \r\n"_s;
        atelier.Ouvre(true, ini);
        atelier.Coche({});
        atelier.Ouvre(false, ini);
        QCOMPARE(OptDosDefaut + OptConfDefaut + OptExplorateur, 3);
        atelier.Coche({});
        atelier.Presse("FrmConfDem", "Command6");
        atelier.Presse("FrmLangue", "Option3");
        atelier.Presse("FrmLangue", "Command1");
        atelier.Ouvre(true, u" 0 \r\n\"%1\"\r\n 0 \r\n\"\"\r\n 1 \r\n%1\r\n 2 \r\n"_s);
    }
};

QTEST_MAIN(TestFrmConfDem)
#include "TestFrmConfDem.moc"
