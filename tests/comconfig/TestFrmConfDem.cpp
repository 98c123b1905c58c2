#include "Operateur.h"
#include "Poste.h"

#include "comconfig/FrmConfDem.h"
#include "comconfig/ParamCom.h"
#include "locale/Langue.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QDir>
#include <QFileDialog>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char Ini[] = "Dorvanel.ini";
constexpr char Fenetre[] = "FrmConfDem";

/// What the dialog shows: the two folders and the configuration, and which boxes are ticked.
QString Montre(const QWidget &fenetre)
{
    const auto &dialogue = dynamic_cast<const FrmConfDem &>(fenetre);
    const QCheckBox *const cases[] = {dialogue.Check1, dialogue.Check2, dialogue.Check3};
    QStringList montre{dialogue.LblDos->text(), dialogue.LblNomConf->text(), dialogue.LabelDosConf->text()};
    for (const QCheckBox *coche : cases)
        montre << (coche->isChecked() ? u"oui"_s : u"non"_s);
    return montre.join(u'|');
}

void Coche(QWidget &fenetre, bool cochees)
{
    for (QCheckBox *coche : fenetre.findChildren<QCheckBox *>())
        coche->setChecked(cochees);
}

/// The folder on which the next file dialog opens; it is cancelled.
void LitDossierOffert(Operateur &operateur, QString &offert)
{
    operateur.Fait("CommonDialog", [&offert](QWidget &dialogue) {
        offert = dynamic_cast<QFileDialog &>(dialogue).directory().path();
        dynamic_cast<QDialog &>(dialogue).reject();
    });
}

} // namespace

class TestFrmConfDem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ProchainDemarrage();
    void Decoche();
    void FermeSansEnregistrer();
    void Langue();
    void IniNonInscriptible();
};

// Everything chosen and saved: the running program goes on as it is, the next start does all of it.
void TestFrmConfDem::ProchainDemarrage()
{
    Poste poste(0);
    Operateur operateur;
    for (const QString &nom : {u"Pieces été"_s, u"Conf"_s})
        QDir(poste.Dossier()).mkpath(nom);
    const QString complet = poste.Chemin("Conf/Tour.par");
    QVERIFY(QFile::copy(QString::fromUtf16(DONNEES) + u"/Complet.par"_s, complet));
    const QString pieces = poste.Chemin(u"Pieces été"_s);

    const std::pair<const char *, QString> choix[] = {
        {"Command1", pieces}, {"Command2", complet}, {"Command5", poste.Chemin("Conf")}};
    for (const auto &[bouton, chemin] : choix) {
        operateur.Presse(Fenetre, bouton);
        operateur.Choisit(chemin);
    }
    operateur.Fait(Fenetre, [](QWidget &fenetre) { Coche(fenetre, true); });
    operateur.Presse(Fenetre, "Command4");
    operateur.Fait(Fenetre, [&](QWidget &fenetre) {
        QCOMPARE(Montre(fenetre), pieces + u'|' + complet + u'|' + poste.Chemin("Conf") + u"|oui|oui|oui"_s);
    });
    operateur.Presse(Fenetre, "Command3");
    Operateur::Menu("Mnu_ConfigDemar");
    const QByteArray ini =
        u" 1 \r\n\"%1\"\r\n 1 \r\n\"%2\"\r\n 1 \r\n%3\r\n 0 \r\n"_s.arg(pieces, complet, poste.Chemin("Conf"))
            .toLatin1();
    QCOMPARE(poste.Lit(Ini), ini);
    QVERIFY(frmPrinc->Frame1->isHidden() && FicConf.isEmpty() && !Operateur::Offre("Mnu_RecepProg"));

    poste.Redemarre();
    QCOMPARE(poste.Lit(Ini), ini);
    QVERIFY(frmPrinc->Frame1->isVisible() && Operateur::Offre("Mnu_RecepProg"));
    QCOMPARE(frmPrinc->FolderTreeview1->SelectedFolder(), pieces + u'/');
    QCOMPARE(FicConf + u'|' + ParamCom.NomPort, complet + u"|Com3"_s);
    QString offert;
    LitDossierOffert(operateur, offert);
    Operateur::Menu("Mnu_ChargeConf");
    QCOMPARE(offert, poste.Chemin("Conf"));
}

// Without its box a folder is given up when it is saved; an option without a file does nothing, and says nothing.
void TestFrmConfDem::Decoche()
{
    Poste poste(0);
    Operateur operateur;
    DosDefaut = u"/x"_s;
    OptDosDefaut = OptExplorateur = 1;
    operateur.Fait(Fenetre, [](QWidget &fenetre) {
        Coche(fenetre, false);
        dynamic_cast<FrmConfDem &>(fenetre).Check2->setChecked(true);
    });
    operateur.Presse(Fenetre, "Command4");
    operateur.Presse(Fenetre, "Command3");
    Operateur::Menu("Mnu_ConfigDemar");
    const QString dossier = poste.Dossier();
    const QByteArray ini = u" 0 \r\n\"%1\"\r\n 1 \r\n\"\"\r\n 0 \r\n%1\r\n 0 \r\n"_s.arg(dossier).toLatin1();
    QCOMPARE(poste.Lit(Ini), ini);
    poste.Redemarre();
    QCOMPARE(poste.Lit(Ini), ini);
    QVERIFY(frmPrinc->Frame1->isHidden() && FicConf.isEmpty());
    operateur.Fait(Fenetre, [&](QWidget &fenetre) {
        QCOMPARE(Montre(fenetre), dossier + u"||"_s + dossier + u"|non|oui|non"_s);
        fenetre.close();
    });
    Operateur::Menu("Mnu_ConfigDemar");
}

// Cancelled choices leave what stood there; closing changes no setting. A folder chooser opens where its folder is.
void TestFrmConfDem::FermeSansEnregistrer()
{
    const Poste poste(0);
    Operateur operateur;
    QDir(poste.Dossier()).mkpath(u"Conf"_s);
    DosConf = poste.Chemin("Conf");
    const QByteArray ini = poste.Lit(Ini);
    operateur.Fait(Fenetre, [](QWidget &fenetre) { Coche(fenetre, true); });
    const std::pair<const char *, QString> choix[] = {
        {"Command1", poste.Dossier()}, {"Command2", DosConf}, {"Command5", DosConf}};
    QString offerts[3];
    for (int i = 0; i < 3; ++i) {
        operateur.Presse(Fenetre, choix[i].first);
        LitDossierOffert(operateur, offerts[i]);
    }
    operateur.Fait(Fenetre, [&](QWidget &fenetre) {
        QCOMPARE(Montre(fenetre), poste.Dossier() + u"||"_s + DosConf + u"|oui|oui|oui"_s);
        fenetre.close();
    });
    Operateur::Menu("Mnu_ConfigDemar");
    for (int i = 0; i < 3; ++i)
        QCOMPARE(offerts[i], choix[i].second);
    QCOMPARE(poste.Lit(Ini), ini);
    QCOMPARE(OptDosDefaut + OptConfDefaut + OptExplorateur, 0);
}

// The language dialog starts the settings anew: the controls then show them, and what was ticked is lost.
void TestFrmConfDem::Langue()
{
    const Poste poste(1);
    Operateur operateur;
    operateur.Fait(Fenetre, [](QWidget &fenetre) { Coche(fenetre, true); });
    operateur.Presse(Fenetre, "Command6");
    operateur.Presse("FrmLangue", "Option3");
    operateur.Presse("FrmLangue", "Command1");
    operateur.Fait(Fenetre, [&](QWidget &fenetre) {
        QCOMPARE(Montre(fenetre), poste.Dossier() + u"||"_s + poste.Dossier() + u"|non|non|oui"_s);
        fenetre.close();
    });
    Operateur::Menu("Mnu_ConfigDemar");
    QCOMPARE(LangIndex, 2);
    QVERIFY(poste.Lit(Ini).endsWith(" 2 \r\n"));
}

// The settings hold for the run; nothing is said.
void TestFrmConfDem::IniNonInscriptible()
{
    const Poste poste(0);
    Operateur operateur;
    QVERIFY(QFile::remove(poste.Chemin(Ini)) && QDir(poste.Dossier()).mkdir(QLatin1String(Ini)));
    operateur.Fait(Fenetre, [](QWidget &fenetre) { Coche(fenetre, true); });
    operateur.Presse(Fenetre, "Command4");
    operateur.Presse(Fenetre, "Command3");
    Operateur::Menu("Mnu_ConfigDemar");
    QCOMPARE(OptDosDefaut + OptConfDefaut + OptExplorateur, 3);
}

QTEST_MAIN(TestFrmConfDem)
#include "TestFrmConfDem.moc"
