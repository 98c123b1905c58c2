#include "Operateur.h"
#include "Poste.h"

#include "comconfig/FrmConfDem.h"
#include "comconfig/ParamCom.h"
#include "shell/CadreExplorateur.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QDir>
#include <QFileDialog>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Ini[] = "Dorvanel.ini";

/// A workstation and its operator at the start-up options. "%1" in a text stands for the application folder.
struct Atelier : Poste, Operateur
{
    Atelier()
        : Poste(0)
    {
        for (const QString &nom : {u"Pieces"_s, u"Conf"_s})
            QDir(Dossier()).mkpath(nom);
    }

    void Coche(const QString &cases)
    {
        Fait("FrmConfDem", [cases](QWidget &fenetre) {
            for (QCheckBox *coche : fenetre.findChildren<QCheckBox *>())
                coche->setChecked(cases.contains(coche->objectName().back()));
        });
    }

    /// What the dialog shows: its two folders and the configuration, and the numbers of the boxes that are ticked.
    void Montre(const QString &attendu)
    {
        Fait("FrmConfDem", [this, attendu](QWidget &fenetre) {
            const auto &d = dynamic_cast<const FrmConfDem &>(fenetre);
            QString montre = d.LblDos->text() + u'|' + d.LblNomConf->text() + u'|' + d.LabelDosConf->text() + u'|';
            for (const QCheckBox *coche : {d.Check1, d.Check2, d.Check3})
                montre += coche->isChecked() ? coche->objectName().back() : QChar(u'-');
            QCOMPARE(montre, attendu.arg(Dossier()));
        });
    }

    /// Presses a button whose file dialog opens on a folder, and takes a path there; "" cancels.
    void Parcourt(const char *bouton, const QString &offert, const QString &prend)
    {
        if (bouton != nullptr)
            Presse("FrmConfDem", bouton);
        Fait("CommonDialog", [this, offert, prend](QWidget &fenetre) {
            auto &dialogue = dynamic_cast<QFileDialog &>(fenetre);
            QCOMPARE(dialogue.directory().path(), offert.arg(Dossier()));
            if (prend.isEmpty())
                dialogue.reject();
        });
        if (!prend.isEmpty())
            Choisit(Chemin(prend));
    }

    void Ouvre()
    {
        Presse("FrmConfDem", "Command3");
        Menu("Mnu_ConfigDemar");
    }

    void VerifieIni(QString attendu) const
    {
        QCOMPARE(Poste::Lit(Ini), attendu.replace(u"%1"_s, Dossier()).toLatin1());
    }
};

} // namespace

class TestFrmConfDem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ProchainDemarrage();
    void SansEnregistrer();
    void IniNonInscriptible();
};

// Everything chosen and saved: the running program goes on as it is, the next start does all of it. Then all but the
// configuration given up: a folder goes with its box, and an option without a file does nothing and says nothing.
void TestFrmConfDem::ProchainDemarrage()
{
    Atelier atelier;
    QVERIFY(QFile::copy(QString::fromUtf16(DONNEES) + u"/Complet.par"_s, atelier.Chemin("Conf/Tour.par")));
    atelier.Parcourt("Command1", u"%1"_s, u"Pieces"_s);
    atelier.Parcourt("Command2", u"%1"_s, u"Conf/Tour.par"_s);
    atelier.Parcourt("Command5", u"%1"_s, u"Conf"_s);
    atelier.Coche(u"123"_s);
    atelier.Presse("FrmConfDem", "Command4");
    atelier.Ouvre();
    const QString ini = u" 1 \r\n\"%1/Pieces\"\r\n 1 \r\n\"%1/Conf/Tour.par\"\r\n 1 \r\n%1/Conf\r\n 0 \r\n"_s;
    atelier.VerifieIni(ini);
    QVERIFY(!frmPrinc->ExplorateurMontre() && FicConf.isEmpty() && !Operateur::Offre("Mnu_RecepProg"));
    atelier.Redemarre();
    atelier.VerifieIni(ini);
    QVERIFY(frmPrinc->ExplorateurMontre() && Operateur::Offre("Mnu_RecepProg"));
    QCOMPARE(frmPrinc->Frame1->FolderTreeview1->SelectedFolder(), atelier.Chemin("Pieces/"));
    QCOMPARE(FicConf + ParamCom.NomPort, atelier.Chemin("Conf/Tour.parCom3"));
    atelier.Parcourt(nullptr, u"%1/Conf"_s, {});
    Operateur::Menu("Mnu_ChargeConf");

    FicConfDefaut.clear();
    atelier.Montre(u"%1/Pieces||%1/Conf|123"_s);
    atelier.Coche(u"2"_s);
    atelier.Presse("FrmConfDem", "Command4");
    atelier.Ouvre();
    atelier.Redemarre();
    atelier.VerifieIni(u" 0 \r\n\"%1\"\r\n 1 \r\n\"\"\r\n 0 \r\n%1/Conf\r\n 0 \r\n"_s);
    QVERIFY(!frmPrinc->ExplorateurMontre() && FicConf.isEmpty());
    atelier.Montre(u"%1||%1/Conf|-2-"_s);
    atelier.Ouvre();
}

// Cancelled choices leave what stood there, and closing changes no setting. The language dialog starts the settings
// anew: the controls then show them.
void TestFrmConfDem::SansEnregistrer()
{
    Atelier atelier;
    DosConf = atelier.Chemin("Conf");
    const QString ini = QString::fromLatin1(atelier.Poste::Lit(Ini));
    atelier.Coche(u"123"_s);
    atelier.Parcourt("Command1", u"%1"_s, {});
    atelier.Parcourt("Command2", u"%1/Conf"_s, {});
    atelier.Parcourt("Command5", u"%1/Conf"_s, {});
    atelier.Montre(u"%1||%1/Conf|123"_s);
    atelier.Ouvre();
    atelier.VerifieIni(ini);
    atelier.Montre(u"%1||%1/Conf|---"_s);
    atelier.Presse("FrmConfDem", "Command6");
    atelier.Presse("FrmLangue", "Option3");
    atelier.Presse("FrmLangue", "Command1");
    atelier.Montre(u"%1||%1|--3"_s);
    atelier.Ouvre();
    atelier.VerifieIni(u" 0 \r\n\"%1\"\r\n 0 \r\n\"\"\r\n 1 \r\n%1\r\n 2 \r\n"_s);
}

// The settings hold for the run; nothing is said.
void TestFrmConfDem::IniNonInscriptible()
{
    Atelier atelier;
    QVERIFY(QFile::remove(atelier.Chemin(Ini)) && QDir(DosAppli).mkdir(QLatin1String(Ini)));
    atelier.Coche(u"123"_s);
    atelier.Presse("FrmConfDem", "Command4");
    atelier.Ouvre();
    QCOMPARE(OptDosDefaut + OptConfDefaut + OptExplorateur, 3);
}

QTEST_MAIN(TestFrmConfDem)
#include "TestFrmConfDem.moc"
