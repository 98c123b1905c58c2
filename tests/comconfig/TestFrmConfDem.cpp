#include "Donnees.h"
#include "Etabli.h"

#include "comconfig/FrmConfDem.h"
#include "platform/fichiers/FichierTexte.h"
#include "shell/CadreExplorateur.h"

namespace {

/// A workstation and its operator at the start-up options. "%1" in a text stands for the application folder.
struct Atelier : Etabli
{
    Atelier()
        : Etabli(0)
    {
        for (const QString &dossier : {u"Pieces"_s, u"Conf"_s, u"A, B"_s, u"Łódź ŁéŁ"_s})
            QDir(Dossier()).mkdir(dossier);
    }

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
        QCOMPARE(Lit("Dorvanel.ini"), QDir::toNativeSeparators(ini.arg(Dossier())).toLatin1());
    }
};

/// What a configuration enables (reception, sending) and shows, and the end of line in force.
QString EnService()
{
    QString actives;
    for (const bool active : {Operateur::Offre("Mnu_RecepProg"), frmPrinc->Bouton(10)->isEnabled(),
                              Operateur::Offre("Mnu_EmisProgCN"), frmPrinc->Bouton(11)->isEnabled()})
        actives += active ? u'1' : u'0';
    return actives + u' ' + frmPrinc->Label4->text() + u' ' + frmPrinc->Label6->text() + u' ' + ParamCom.ChaineFinLig;
}

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
        QVERIFY(QFile::copy(Donnees(u"Complet.par"_s), atelier.Chemin("Conf/Tour.par")));
        atelier.Parcourt("Command1", u"Pieces"_s);
        atelier.Parcourt("Command2", u"Conf/Tour.par"_s);
        atelier.Parcourt("Command5", u"Conf"_s);
        atelier.Coche(u"123"_s);
        const QString ini = u" 1 \r\n\"%1/Pieces\"\r\n 1 \r\n\"%1/Conf/Tour.par\"\r\n 1 \r\n%1/Conf\r\n 0 \r\n"_s;
        atelier.Ouvre(true, ini);
        QVERIFY(!frmPrinc->ExplorateurMontre());
        QVERIFY(EtatConf.FicConf.isEmpty());
        QVERIFY(!Operateur::Offre("Mnu_RecepProg"));
        atelier.Redemarre();
        QVERIFY(frmPrinc->ExplorateurMontre());
        QVERIFY(Operateur::Offre("Mnu_RecepProg"));
        QCOMPARE(frmPrinc->Frame1->FolderTreeview1->SelectedFolder(), atelier.Chemin("Pieces/"));
        QCOMPARE((QStringList{EtatConf.FicConf, ParamCom.NomPort}),
                 (QStringList{atelier.Chemin("Conf/Tour.par"), u"Com3"_s}));
        atelier.Ouvre(true, ini);

        Reglages.FicConfDefaut.clear();
        atelier.Coche(u"2"_s);
        const QString reste = u" 0 \r\n\"%1\"\r\n 1 \r\n\"\"\r\n 0 \r\n%1/Conf\r\n 0 \r\n"_s;
        atelier.Ouvre(true, reste);
        atelier.Redemarre();
        QVERIFY(!frmPrinc->ExplorateurMontre());
        QVERIFY(EtatConf.FicConf.isEmpty());
    }

    // A name that the settings cannot keep is told as it is chosen, with its signs. Each line loses other ones.
    void NomsPerdus()
    {
        Atelier atelier;
        QVERIFY(QFile::copy(Donnees(u"Complet.par"_s), atelier.Chemin(u"Łódź ŁéŁ/Tour.par"_s)));
        for (const auto &[bouton, nom, dit] : {std::tuple{"Command5", u"A, B"_s, u" une virgule,"_s},
                                               {"Command1", u"A, B"_s, {}},
                                               {"Command1", u"Łódź ŁéŁ"_s, u"  Ł ź\n"_s},
                                               {"Command2", u"Łódź ŁéŁ/Tour.par"_s, u"  Ł ź\n"_s}}) {
            atelier.Parcourt(bouton, nom);
            if (!dit.isEmpty())
                atelier.ApprendQue(dit);
        }
        atelier.Presse("FrmConfDem", "Command3");
        Operateur::Menu("Mnu_ConfigDemar");
    }

    // Cancelled choices leave what stood there, and closing changes no setting. The language dialog starts the settings
    // anew: the controls then show them.
    void SansChanger()
    {
        Atelier atelier;
        Reglages.DosConf = atelier.Chemin("Conf");
        atelier.Coche(u"123"_s);
        for (const char *const bouton : {"Command1", "Command2", "Command5"})
            atelier.Parcourt(bouton, {});
        const QString ini = u" 1 \r\n\"%1\"\r\n 1 \r\n\"\"\r\n 1 \r\n%1/Conf\r\n 0 \r\n"_s;
        atelier.Ouvre(true, ini);
        atelier.Coche({});
        atelier.Presse("FrmConfDem", "Command3");
        Operateur::Menu("Mnu_ConfigDemar");
        QCOMPARE((QList<int>{Reglages.OptDosDefaut, Reglages.OptConfDefaut, Reglages.OptExplorateur}),
                 QList<int>(3, 1));
        atelier.Presse("FrmConfDem", "Command6");
        atelier.Presse("FrmLangue", "Option3");
        atelier.Presse("FrmLangue", "Command1");
        atelier.Ouvre(true, u" 0 \r\n\"%1\"\r\n 0 \r\n\"\"\r\n 1 \r\n%1\r\n 2 \r\n"_s);
    }

    // Receiving needs a configuration, sending a program too, which may come before or after. Cancelling changes
    // nothing. A file that breaks off is in the record as far as it goes, and what was in service stays so.
    void Charge_data() { OuiEtNon("programmeDAbord", "the program first", "the configuration first"); }
    void Charge()
    {
        QFETCH(bool, programmeDAbord);
        const QString complete = Donnees(u"Complet.par"_s);
        Etabli e(0);
        const QString programme = e.Ecrit("P.iso", "G0");
        const QString courte = e.Ecrit("Courte.par", LitOctets(complete).chopped(5)); // no last line
        if (programmeDAbord)
            OuvreDocument(programme);
        e.Ferme("CommonDialog");
        Operateur::Barre(8);
        QCOMPARE((QStringList{EtatConf.FicConf, EtatConf.NomConf, ParamCom.NomPort}), (QStringList{{}, {}, {}}));
        e.ChoisitAncien(courte);
        Operateur::Menu("Mnu_ChargeConf");
        QCOMPARE(EnService(), u"0000 Aucun Aucun "_s);
        QCOMPARE((QStringList{EtatConf.FicConf, EtatConf.NomConf, ParamCom.NomPort}),
                 (QStringList{courte, u"Courte.par"_s, u"Com3"_s}));

        e.Choisit(complete);
        Operateur::Menu("Mnu_ChargeConf");
        const QString suite = u" Complet.par Tour 2 axes, été € \r\r\n"_s;
        QCOMPARE(EnService(), (programmeDAbord ? u"1111"_s : u"1100"_s) + suite);
        OuvreDocument(programme);
        e.ChoisitAncien(courte);
        Operateur::Menu("Mnu_ChargeConf");
        QCOMPARE((QStringList{EnService(), EtatConf.NomConf}), (QStringList{u"1111"_s + suite, u"Courte.par"_s}));
    }
};

QTEST_MAIN(TestFrmConfDem)
#include "TestFrmConfDem.moc"
