#include "Etabli.h"
#include "LigneScenario.h"

#include "comconfig/DosProg.h"
#include "comconfig/ParamCom.h"
#include "comconfig/Prop.h"
#include "platform/FichierTexte.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QFileDialog>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using C = ConfigurationCom;

namespace {

/// A workstation whose record holds every value of a full file, with a scripted line behind every port.
struct Banc : Etabli
{
    explicit Banc(int langue = 0)
        : Etabli(langue)
    {
        LireFichierPar(complet);
        frmPrinc->MSComm1->setFabrique(LigneScenario::Fabrique(scenario));
    }

    void Prevenu(const QString &texte) { Repond("Dorvanel Pro", texte, Boite::Exclamation, QMessageBox::Ok); }
    static void Ouvre(bool port) { frmPrinc->MSComm1->setPortOpen(PortOuvert = port); }

    std::shared_ptr<Scenario> scenario = std::make_shared<Scenario>();
};

QAbstractButton *Bouton(const Prop &prop, const QString &nom)
{
    return prop.findChild<QAbstractButton *>(nom);
}

} // namespace

class TestProp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A click is in the record at once and stays there when the dialog closes, but for the two that a saving takes.
    void Options()
    {
        const std::tuple<QString, int C::*, int, bool> groupes[] = {
            {u"optFlow_%1"_s, &C::ControleFlux, 4, true},     {u"optEcho_%1"_s, &C::Echo, 2, true},
            {u"OptFinTrans_%1"_s, &C::TypeFinTrans, 3, true}, {u"OptFinLig_%1"_s, &C::TypeFinLig, 5, true},
            {u"OptionNul_%1"_s, &C::FiltreNul, 2, true},      {u"OptionRTS_%1"_s, &C::LigneRTS, 2, true},
            {u"OptionDRT_%1"_s, &C::LigneDTR, 2, true},       {u"OptionRCP_%1"_s, &C::TypeRecep, 3, true},
            {u"Option1_%1"_s, &C::FinLigRecep, 4, false},     {u"OptionEnvoi_%1"_s, &C::TypeEnvoi, 2, false}};
        const Banc banc;
        for (const auto &[nom, champ, nombre, auClic] : groupes) {
            for (int i = -1; i <= nombre; ++i) { // the values at both ends belong to no option
                ParamCom.*champ = i;
                const Prop prop(frmPrinc);
                const auto *const bouton = Bouton(prop, nom.arg(i));
                QVERIFY2(bouton == nullptr || bouton->isChecked(), qPrintable(nom.arg(i)));
                Bouton(prop, nom.arg((i + 1) % nombre))->click(); // which may be the one that stands there
                prop.cmdCancel->click();
                QCOMPARE(ParamCom.*champ, auClic ? (i + 1) % nombre : i);
                QCOMPARE(prop.Command20->isHidden(), ParamCom.TypeFinTrans != 2);
                QCOMPARE(prop.LabelFinLigne->isHidden(), ParamCom.TypeFinLig != 4);
            }
        }
    }

    // What goes with a way of receiving. What was typed is overwritten when a child dialog closes.
    void Lecture()
    {
        Banc banc;
        for (const auto &[type, nombre, montre] :
             {std::tuple{0, 1, u"512"_s}, {1, 1, u"1"_s}, {2, 1, u"512"_s}, {1, 512, u"512"_s}, {2, 100, u"100"_s}}) {
            ParamCom.TypeRecep = type;
            ParamCom.NbCarLecture = nombre;
            const Prop prop(frmPrinc);
            for (const QString &tape : {u"77"_s, u"1"_s}) {
                QCOMPARE(prop.Text2->text(), montre);
                prop.Text2->setText(tape);
                banc.Ferme("FrmCaract");
                prop.Command22->click();
            }
        }
        const Prop prop(frmPrinc);
        for (const auto &[avant, option, apres] :
             {std::tuple{u"7"_s, 1, u"1"_s}, {u"1"_s, 0, u"512"_s}, {u"01"_s, 2, u"01"_s}}) {
            prop.Text2->setText(avant);
            Bouton(prop, u"OptionRCP_%1"_s.arg(option))->click();
            QCOMPARE(prop.Text2->text(), apres);
        }
        for (const bool fixe : {false, true}) {
            (fixe ? prop.OptionTaille_1 : prop.OptionTaille_0)->click();
            QVERIFY(prop.Text8->text() == u"0" && prop.Text8->isHidden() != fixe && prop.Label18->isHidden() != fixe);
        }
    }

    // Boxes of numbers: what can be typed, what a pasted text is worth, and a number that fits no field, which leaves
    // the record sound: a saving takes nothing, Apply takes the rest.
    void Nombres()
    {
        Banc banc;
        const Prop prop(frmPrinc);
        const std::tuple<QLineEdit *, QLabel *, int C::*> boites[] = {
            {prop.Text2, prop.Label9, &C::NbCarLecture},      {prop.Text4, prop.Label11, &C::TailleTamponRecep},
            {prop.Text5, prop.Label14, &C::TailleTamponEmis}, {prop.Text6, prop.Label15, &C::SeuilRecep},
            {prop.Text7, prop.Label16, &C::SeuilEmis},        {prop.Text8, prop.Label18, &C::TailleRecep}};
        for (const auto &[boite, legende, champ] : boites) {
            boite->clear();
            QTest::keyClicks(boite, u"1a-23. "_s);
            QTest::keyClick(boite, Qt::Key_Backspace);
            QCOMPARE(boite->text(), u"12"_s);
            for (const auto &[colle, valeur] :
                 {std::pair{"12a4", 12}, {" 7", 7}, {"abc", 0}, {"-5", 0}, {"1e3", 1}, {"", 0}}) {
                boite->setText(QLatin1String(colle));
                banc.Ferme("CommonDialog");
                prop.Command1->click();
                QCOMPARE(ParamCom.*champ, valeur);
            }
            for (const QString &trop : {u"32768"_s, QString(400, u'9')}) {
                boite->setText(trop);
                const bool courte = boite == prop.Text2 || boite == prop.Text4;
                QCOMPARE(boite->text(), courte ? trop.left(4) : trop);
                for (QPushButton *const bouton : {prop.Command1, prop.cmdOK}) {
                    if (courte || (boite == prop.Text8 && bouton == prop.cmdOK)) // which only a saving reads
                        continue;
                    ParamCom.Commentaire = u"ancien"_s;
                    ParamCom.*champ = 44;
                    banc.Prevenu(legende->text() + u'\r' + trop + u" ne convient pas (32767 au plus)."_s);
                    bouton->click();
                    QCOMPARE(ParamCom.Commentaire, bouton == prop.cmdOK ? QString() : u"ancien"_s);
                    QCOMPARE(ParamCom.*champ, 44);
                }
            }
            boite->setText(u"1"_s);
        }
    }

    // Apply: record, control and main window follow; an open port moves, and what it refuses does not keep it from the
    // rest. The way of sending and the fixed size wait for a saving; menus and files stay as they were.
    void Applique()
    {
        for (const bool ouvert : {false, true}) {
            const Banc banc;
            MSComm &controle = *frmPrinc->MSComm1;
            Banc::Ouvre(ouvert);
            NomConf = ouvert ? u"Tour.par"_s : QString();
            const Prop prop(frmPrinc);
            prop.cboPort->setCurrentIndex(6);
            prop.cboParity->setCurrentText(u"Mark"_s);
            prop.cboStopBits->setCurrentText(u"2"_s);
            for (QRadioButton *const option : {prop.optFlow_3, prop.OptFinLig_2, prop.Option1_1, prop.OptionEnvoi_0})
                option->click();
            int valeur = 1;
            for (QLineEdit *const boite :
                 {prop.Text1, prop.Text2, prop.Text3, prop.Text4, prop.Text5, prop.Text6, prop.Text7, prop.Text8})
                boite->setText(QString::number(valeur++));
            prop.cmdOK->click();
            const C &p = ParamCom;
            QCOMPARE((QStringList{p.NomPort, p.Commentaire, p.Parite, p.BitsArret, p.CarRemplace, p.ChaineFinLig}),
                     u"Com7|1|m|2|3|\n\r"_s.split(u'|'));
            QCOMPARE((QList<int>{p.NumPort, p.NbCarLecture, p.TailleTamponRecep, p.TailleTamponEmis, p.SeuilRecep,
                                 p.SeuilEmis, p.FinLigRecep, p.TailleRecep, p.TypeEnvoi}),
                     (QList<int>{7, 2, 4, 5, 6, 7, 1, 70, 1}));
            QCOMPARE(controle.Settings() + controle.ParityReplace(), u"19200,m,8,23"_s);
            QCOMPARE((QList<int>{controle.CommPort(), controle.Handshaking(), controle.InputLen(),
                                 controle.InBufferSize(), controle.RThreshold(), controle.SThreshold(),
                                 controle.DTREnable(), controle.PortOpen(), PortOuvert}),
                     (QList<int>{7, 3, 2, ouvert ? 1024 : 4, 6, 7, 1, ouvert, ouvert}));
            QCOMPARE(frmPrinc->Label4->text() + frmPrinc->Label6->text(), (ouvert ? u"Tour.par1"_s : u"Aucun1"_s));
            QVERIFY(FicConf.isEmpty() && !Operateur::Offre("Mnu_RecepProg"));
        }
    }

    // A refusal is told with its reason and ends the Apply: the record keeps what the controls held, the rest stays as
    // it was. A port that cannot be opened leaves the control on the old number, closed.
    void Refuse()
    {
        for (const auto &[port, bits, refus, texte] :
             {std::tuple{1, u"4"_s, 0, u"La taille d'octet spécifiée n'est pas valide\r\"4\""_s},
              {3, u"8"_s, 8002, u"Numéro de port non valide\rrefused"_s},
              {1, u"8"_s, 8015, u"Impossible de définir l'état de communication\rrefused"_s}}) {
            Banc banc;
            const MSComm &controle = *frmPrinc->MSComm1;
            Banc::Ouvre(true);
            banc.scenario->refusReglage = refus;
            const Prop prop(frmPrinc);
            prop.cboPort->setCurrentIndex(port - 1);
            prop.cboDataBits->setCurrentText(bits);
            prop.cboStopBits->setCurrentText(u"1"_s);
            banc.Prevenu(texte);
            prop.cmdOK->click();
            QCOMPARE(ParamCom.BitsDonnees + QString::number(ParamCom.NumPort), bits + QString::number(port));
            QCOMPARE(controle.CommPort() + controle.InputLen(), 1);
            QVERIFY(controle.PortOpen() == (port == 1) && PortOuvert == controle.PortOpen());
            QCOMPARE(ParamCom.ChaineFinLig + frmPrinc->Label6->text(), u"Aucun"_s);
        }
    }

    // A cancelled saving ends without a word: the fields are taken. A folder only looked at is in the record until the
    // one that is shown is put back. The editor goes to the settings at once, unless its choice is given up.
    void Choix()
    {
        Banc banc;
        ParamCom.DosRecep = EditeurCN = banc.Dossier();
        const Prop prop(frmPrinc);
        banc.Fait("DosProg", [](QWidget &fenetre) {
            dynamic_cast<DosProg &>(fenetre).FolderTreeview1->setSelectedFolder(u"/"_s);
            fenetre.close();
        });
        prop.Command16->click();
        QCOMPARE(ParamCom.DosRecep, u"/"_s);
        prop.OptionEnvoi_0->click();
        prop.Text8->setText(u"33"_s);
        banc.Ferme("CommonDialog");
        prop.Command1->click();
        QCOMPARE(FicConf + NomConf + ParamCom.DosRecep + QDir::currentPath(), banc.Dossier() + banc.Dossier());
        QCOMPARE(ParamCom.TailleRecep * 10 + ParamCom.TypeEnvoi, 330);
        for (const QString &choisi : {banc.Dossier(), banc.Ecrit("Mon editeur.exe", {})}) {
            if (choisi == banc.Dossier())
                banc.Ferme("CommonDialog");
            else
                banc.Choisit(choisi);
            prop.Command5->click();
            QCOMPARE(prop.Label12->text(), choisi);
            QCOMPARE(banc.Lit("Dorvanel.CFG").endsWith("\r\n\"" + choisi.toUtf8() + "\"\r\n"),
                     choisi != banc.Dossier());
        }
    }

    // A configuration to modify: a saving without a change gives it back byte for byte, also where no list has its
    // value. One that breaks off is told, opened, saved again and whole.
    void Modifie()
    {
        Banc banc;
        banc.Ferme("CommonDialog");
        Operateur::Menu("Mnu_ModifConf");
        QVERIFY(FicConf.isEmpty() && !Operateur::Offre("Mnu_RecepProg"));

        const QByteArray entier = LitOctets(banc.complet);
        const QByteArray autre = QByteArray(entier).replace("19200", "187500");
        DosConf = banc.Dossier();
        for (const QByteArray &octets : {entier, autre, autre.chopped(5)}) {
            QFile::remove(banc.Chemin("Sans suffixe"));
            const QString ancien = banc.Ecrit("Ancien.par", octets);
            if (octets.size() < entier.size())
                banc.ChoisitAncien(ancien);
            else
                banc.Choisit(ancien);
            banc.Presse("Prop", "Command1");
            banc.Fait("CommonDialog", [&ancien](QWidget &fenetre) {
                QCOMPARE(fenetre.windowTitle(), u"Enregistrer la configuration de communication"_s);
                QCOMPARE(dynamic_cast<QFileDialog &>(fenetre).selectedFiles(), QStringList{ancien});
            });
            banc.Choisit(banc.Chemin("Sans suffixe"));
            banc.Fait("Prop", [](QWidget &fenetre) {
                QCOMPARE(fenetre.windowTitle(),
                         u"Propriétés et configuration de la communication - Fichier : Sans suffixe"_s);
                fenetre.close();
            });
            Operateur::Menu("Mnu_ModifConf");
            QCOMPARE(banc.Lit("Sans suffixe"), octets == entier ? entier : autre);
            QVERIFY(Operateur::Offre("Mnu_RecepProg") && !frmPrinc->Bouton(10)->isEnabled());
            QCOMPARE(frmPrinc->Label4->text() + ParamCom.ChaineFinLig, u"Ancien.par"_s); // until Apply
        }
    }

    // In each language, whatever it shows, the dialog fits the screens of the shop and no word is cut. Each port says
    // what it stands for, and each help button has a text of its own, with the blanks at the ends of its lines.
    void Langues()
    {
        QSet<QString> aides;
        for (int langue = 0; langue < 3; ++langue) {
            Banc banc(langue);
            banc.Relie(5, banc.Ecrit("adaptateur", {}));
            ParamCom.LibFinLig = u"Xoff"_s.repeated(100);
            ParamCom.DosRecep = u"/dossier"_s.repeated(40);
            Prop prop(frmPrinc);
            for (int onglet = 0; onglet < 3; ++onglet) {
                prop.SSTab1->setCurrentIndex(onglet);
                prop.show();
                QVERIFY(prop.width() <= 1280 && prop.height() <= 760); // and a title bar
                for (const QWidget *const controle : prop.findChildren<QWidget *>())
                    QVERIFY2(!controle->isVisible() || controle->width() >= controle->minimumSizeHint().width(),
                             qPrintable(controle->objectName()));
            }
            const auto bulle = [&](int port) { return prop.cboPort->itemData(port - 1, Qt::ToolTipRole).toString(); };
            QVERIFY2(bulle(5).contains(QFileInfo(banc.Chemin("adaptateur")).canonicalFilePath()), qPrintable(bulle(5)));
            QVERIFY(bulle(16).startsWith(u"Com16 : "_s) && bulle(16).section(u':', 1) != bulle(5).section(u':', 1));
            for (const int bouton : {6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 19, 23, 24, 25}) {
                banc.Fait("MsgBox", [&aides](QWidget &fenetre) {
                    aides << fenetre.windowTitle() + u'|' + dynamic_cast<QMessageBox &>(fenetre).text();
                    fenetre.close();
                });
                Bouton(prop, u"Command%1"_s.arg(bouton))->click();
            }
        }
        QCOMPARE(aides.size(), 3 * 14);
        QVERIFY(aides.contains(u"Information on the adjustment of the parity|Information on the parity\n\nEven : \n"
                               "Marque : \nNone : None (Default value)\nOdd : \nSpace : "_s));
    }
};

QTEST_MAIN(TestProp)
#include "TestProp.moc"
