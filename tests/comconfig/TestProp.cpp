#include "LigneScenario.h"
#include "Operateur.h"
#include "Poste.h"

#include "comconfig/DosProg.h"
#include "comconfig/ParamCom.h"
#include "comconfig/Prop.h"
#include "platform/FolderTreeview.h"
#include "platform/MSComm.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QDir>
#include <QFileDialog>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using C = ConfigurationCom;

namespace {

/// A workstation whose record holds every value of a full file, with a scripted line behind every port.
struct Etabli : Poste, Operateur
{
    explicit Etabli(int langue = 0)
        : Poste(langue)
    {
        LireFichierPar(m_complet);
        frmPrinc->MSComm1->setFabrique(LigneScenario::Fabrique(scenario));
    }

    void Prevenu(const QString &texte) { Repond("Dorvanel Pro", texte, Boite::Exclamation, QMessageBox::Ok); }

    const QString m_complet = QString::fromUtf16(DONNEES) + u"/Complet.par"_s;
    std::shared_ptr<Scenario> scenario = std::make_shared<Scenario>();
};

struct Essai : Prop
{
    Essai()
        : Prop(frmPrinc)
    {
    }
    template <typename Controle = QAbstractButton>
    Controle *Trouve(const QString &nom) const
    {
        return findChild<Controle *>(nom);
    }
};

} // namespace

class TestProp : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Options();
    void Lecture();
    void Nombres();
    void Applique();
    void Refuse();
    void Echecs();
    void Commandes();
    void DossiersEtEditeur();
    void Aides();
    void RienNEstCoupe();
};

// A click is in the record at once and stays there when the dialog closes, but for the two that a saving takes.
void TestProp::Options()
{
    const std::tuple<QString, int C::*, int, bool> groupes[] = {
        {u"optFlow_%1"_s, &C::ControleFlux, 4, true},     {u"optEcho_%1"_s, &C::Echo, 2, true},
        {u"OptFinTrans_%1"_s, &C::TypeFinTrans, 3, true}, {u"OptFinLig_%1"_s, &C::TypeFinLig, 5, true},
        {u"OptionNul_%1"_s, &C::FiltreNul, 2, true},      {u"OptionRTS_%1"_s, &C::LigneRTS, 2, true},
        {u"OptionDRT_%1"_s, &C::LigneDTR, 2, true},       {u"OptionRCP_%1"_s, &C::TypeRecep, 3, true},
        {u"Option1_%1"_s, &C::FinLigRecep, 4, false},     {u"OptionEnvoi_%1"_s, &C::TypeEnvoi, 2, false}};
    const Etabli e;
    for (const auto &[nom, champ, nombre, auClic] : groupes) {
        for (int i = -1; i <= nombre; ++i) { // the values at both ends belong to no option
            ParamCom.*champ = i;
            const Essai prop;
            const auto *const bouton = prop.Trouve(nom.arg(i));
            QVERIFY2(bouton == nullptr || bouton->isChecked(), qPrintable(nom.arg(i)));
            for (const int clic : {i + 1, i + 2, i + 1})
                prop.Trouve(nom.arg(clic % nombre))->click();
            prop.cmdCancel->click();
            QCOMPARE(ParamCom.*champ, auClic ? (i + 1) % nombre : i);
            QCOMPARE(prop.Command20->isHidden(), ParamCom.TypeFinTrans != 2);
            QCOMPARE(prop.LabelFinLigne->isHidden(), ParamCom.TypeFinLig != 4);
        }
    }
}

// What goes with a way of receiving. What was typed is overwritten when a child dialog closes.
void TestProp::Lecture()
{
    Etabli e;
    for (const auto &[type, nombre, montre] :
         {std::tuple{0, 1, u"512"_s}, {1, 1, u"1"_s}, {2, 1, u"512"_s}, {1, 512, u"512"_s}, {2, 100, u"100"_s}}) {
        ParamCom.TypeRecep = type;
        ParamCom.NbCarLecture = nombre;
        const Essai prop;
        for (const auto *const tape : {u"77", u"1"}) {
            QCOMPARE(prop.Text2->text(), montre);
            prop.Text2->setText(QString::fromUtf16(tape));
            e.Ferme("FrmCaract");
            prop.Command22->click();
        }
    }
    const Essai prop;
    for (const auto &[avant, option, apres] :
         {std::tuple{u"7"_s, 1, u"1"_s}, {u"1"_s, 0, u"512"_s}, {u"01"_s, 2, u"01"_s}}) {
        prop.Text2->setText(avant);
        prop.Trouve(u"OptionRCP_%1"_s.arg(option))->click();
        QCOMPARE(prop.Text2->text(), apres);
    }
    for (const bool fixe : {false, true}) {
        (fixe ? prop.OptionTaille_1 : prop.OptionTaille_0)->click();
        QVERIFY(prop.Text8->text() == u"0" && prop.Text8->isHidden() != fixe && prop.Label18->isHidden() != fixe);
    }
}

// Boxes of numbers: what can be typed, what a pasted text is worth, and a number that fits no field, which leaves the
// record sound: a saving takes nothing, Apply takes the rest.
void TestProp::Nombres()
{
    const std::tuple<QString, QString, int C::*> boites[] = {{u"Text2"_s, {}, &C::NbCarLecture},
                                                             {u"Text4"_s, {}, &C::TailleTamponRecep},
                                                             {u"Text5"_s, u"Label14"_s, &C::TailleTamponEmis},
                                                             {u"Text6"_s, u"Label15"_s, &C::SeuilRecep},
                                                             {u"Text7"_s, u"Label16"_s, &C::SeuilEmis},
                                                             {u"Text8"_s, u"Label18"_s, &C::TailleRecep}};
    Etabli e;
    const Essai prop;
    for (const auto &[nom, legende, champ] : boites) {
        auto *const boite = prop.Trouve<QLineEdit>(nom);
        boite->clear();
        QTest::keyClicks(boite, u"1a-23. "_s);
        QTest::keyClick(boite, Qt::Key_Backspace);
        QCOMPARE(boite->text(), u"12"_s);
        for (const auto &[colle, valeur] :
             {std::pair{u"12a4"_s, 12}, {u" 7"_s, 7}, {u"abc"_s, 0}, {u"-5"_s, 0}, {u"1e3"_s, 1}, {u""_s, 0}}) {
            boite->setText(colle);
            e.Ferme("CommonDialog");
            prop.Command1->click();
            QCOMPARE(ParamCom.*champ, valeur);
        }
        for (const QString &trop : {u"32768"_s, QString(400, u'9')}) {
            boite->setText(trop);
            QCOMPARE(boite->text().size(), legende.isEmpty() ? 4 : trop.size());
            if (legende.isEmpty())
                continue;
            ParamCom.*champ = 44;
            for (QPushButton *const bouton : {prop.Command1, prop.cmdOK}) {
                if (boite == prop.Text8 && bouton == prop.cmdOK) // which only a saving reads
                    continue;
                ParamCom.Commentaire = u"ancien"_s;
                e.Prevenu(prop.Trouve<QLabel>(legende)->text() + u'\r' + trop + u" ne convient pas (32767 au plus)."_s);
                bouton->click();
                QCOMPARE(ParamCom.Commentaire, bouton == prop.cmdOK ? QString() : u"ancien"_s);
                QVERIFY(ParamCom.*champ == 44 && boite->text() == trop);
            }
        }
        boite->setText(u"1"_s);
    }
}

// Apply: record, control and main window follow; an open port moves, and what it refuses does not keep it from the
// rest. The way of sending and the fixed size wait for a saving; menus and files stay as they were.
void TestProp::Applique()
{
    for (const bool ouvert : {false, true}) {
        const Etabli e;
        MSComm &controle = *frmPrinc->MSComm1;
        controle.setPortOpen(ouvert);
        PortOuvert = ouvert;
        NomConf = ouvert ? u"Tour.par"_s : QString();
        const Essai prop;
        prop.cboPort->setCurrentIndex(6);
        prop.cboParity->setCurrentText(u"Mark"_s);
        prop.cboStopBits->setCurrentText(u"2"_s);
        for (const QString &option : {u"optFlow_3"_s, u"OptFinLig_2"_s, u"Option1_1"_s, u"OptionEnvoi_0"_s})
            prop.Trouve(option)->click();
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
        QCOMPARE((QList<int>{controle.CommPort(), controle.Handshaking(), controle.InputLen(), controle.InBufferSize(),
                             controle.RThreshold(), controle.SThreshold(), controle.DTREnable()}),
                 (QList<int>{7, 3, 2, ouvert ? 1024 : 4, 6, 7, 1}));
        QVERIFY(controle.PortOpen() == ouvert && PortOuvert == ouvert);
        QCOMPARE(frmPrinc->Label4->text() + frmPrinc->Label6->text(), (ouvert ? u"Tour.par"_s : u"Aucun"_s) + u'1');
        QVERIFY(FicConf.isEmpty() && !Operateur::Offre("Mnu_RecepProg"));
    }
}

// A refusal is told with its reason and ends the Apply: the record keeps what the controls held, the rest stays as it
// was. A port that cannot be opened leaves the control on the old number, closed.
void TestProp::Refuse()
{
    for (const auto &[port, bits, refus, texte] :
         {std::tuple{1, u"4"_s, 0, u"La taille d'octet spécifiée n'est pas valide\r\"4\""_s},
          {3, u"8"_s, 8002, u"Numéro de port non valide\rrefused"_s},
          {1, u"8"_s, 8015, u"Impossible de définir l'état de communication\rrefused"_s}}) {
        Etabli e;
        MSComm &controle = *frmPrinc->MSComm1;
        controle.setPortOpen(true);
        PortOuvert = true;
        e.scenario->refusReglage = refus;
        const Essai prop;
        prop.cboPort->setCurrentIndex(port - 1);
        prop.cboDataBits->setCurrentText(bits);
        prop.cboStopBits->setCurrentText(u"1"_s);
        e.Prevenu(texte);
        prop.cmdOK->click();
        QCOMPARE(ParamCom.BitsDonnees + QString::number(ParamCom.NumPort), bits + QString::number(port));
        QCOMPARE(controle.CommPort() + controle.InputLen(), 1);
        QVERIFY(controle.PortOpen() == (port == 1) && PortOuvert == controle.PortOpen());
        QCOMPARE(ParamCom.ChaineFinLig + frmPrinc->Label6->text(), u"Aucun"_s);
    }
}

// A cancelled saving and one on a full disk end without a word: the fields are taken, only the second names its file.
// The one that succeeds puts an apostrophe for the quote that no file can hold.
void TestProp::Echecs()
{
    Etabli e;
    const Essai prop;
    prop.OptionEnvoi_0->click();
    prop.Text1->setText(u"Tour \"A\""_s);
    prop.Text8->setText(u"33"_s);
    e.Ferme("CommonDialog");
    prop.Command1->click();
    QCOMPARE(FicConf + NomConf + ParamCom.Commentaire, u"Tour \"A\""_s);
    QCOMPARE(QDir::current(), QDir(DosAppli));
    QCOMPARE(ParamCom.TailleRecep * 10 + ParamCom.TypeEnvoi, 330);
    for (const QString &nom : {u"plein.par"_s, u"libre.par"_s}) {
        if (nom == u"plein.par")
            QFile::link(u"/dev/full"_s, e.Chemin(nom));
        e.Choisit(e.Chemin(nom));
        if (nom == u"plein.par")
            e.Fait("", Operateur::Clique(QMessageBox::Yes));
        prop.Command1->click();
        QCOMPARE(FicConf + NomConf, e.Chemin(nom) + nom);
        QCOMPARE(prop.Label6->text(), nom == u"plein.par" ? QString() : nom);
    }
    QVERIFY(e.Poste::Lit("libre.par").startsWith("3\r\n\"Com3\"\r\n\"Tour 'A'\"\r\n\"19200\"\r\n"));
}

// A new configuration; then one to modify, which a saving without a change gives back byte for byte, also where no list
// has its value; and one that breaks off: told, opened, saved again and whole.
void TestProp::Commandes()
{
    Etabli e;
    e.Fait("Prop", [](QWidget &fenetre) {
        QCOMPARE(fenetre.windowTitle(), u"Propriétés et configuration de la communication - Fichier : Nouveau"_s);
        QCOMPARE(Operateur::Lu("Label6") + Operateur::Lu("Text1"), u"Nouveau"_s);
        fenetre.close();
    });
    Operateur::Menu("Mnu_CreConf");
    EcrireFichierPar(e.Chemin("Neuve.par"));
    QCOMPARE(
        e.Poste::Lit("Neuve.par").replace(DosAppli.toUtf8(), "@").replace("\r\n", " "),
        QByteArray("2 \"Com2\" \"\" \"9600\" \"e\" \"7\" \"1\" 0 2 0 0 512 \"?\" 1024 512 0 0 1 0 0 \"@\" 0 0 \"\" "
                   "\"\" \"\" 0 0 0  3   1  "));
    QCOMPARE(ParamCom.CarFinLig[3], 10);
    e.Ferme("CommonDialog");
    Operateur::Menu("Mnu_ModifConf");
    QVERIFY(FicConf.isEmpty() && !Operateur::Offre("Mnu_RecepProg"));

    QFile fichier(e.m_complet);
    QVERIFY(fichier.open(QIODevice::ReadOnly));
    const QByteArray entier = fichier.readAll();
    const QByteArray autre = QByteArray(entier).replace("19200", "187500");
    DosConf = e.Dossier();
    for (const QByteArray &octets : {entier, autre, autre.chopped(5)}) {
        QFile::remove(e.Chemin("Sans suffixe"));
        e.Choisit(e.Ecrit("Ancien.par", octets));
        if (octets.size() < entier.size())
            e.Repond("Fichier de configuration erroné ou de version antérieure !",
                     "Fichier de configuration de version antérieure !\rModifier et enregistrer de nouveau.",
                     Boite::Exclamation, QMessageBox::Ok);
        e.Presse("Prop", "Command1");
        e.Fait("CommonDialog", [](QWidget &fenetre) {
            QCOMPARE(fenetre.windowTitle(), u"Enregistrer la configuration de communication"_s);
            QCOMPARE(dynamic_cast<QFileDialog &>(fenetre).selectedFiles(), QStringList{DosConf + u"/Ancien.par"_s});
        });
        e.Choisit(e.Chemin("Sans suffixe"));
        e.Fait("Prop", [](QWidget &fenetre) {
            QCOMPARE(fenetre.windowTitle(),
                     u"Propriétés et configuration de la communication - Fichier : Sans suffixe"_s);
            fenetre.close();
        });
        Operateur::Menu("Mnu_ModifConf");
        QCOMPARE(e.Poste::Lit("Sans suffixe"), octets == entier ? entier : autre);
        QVERIFY(Operateur::Offre("Mnu_RecepProg") && !frmPrinc->Bouton(10)->isEnabled());
        QCOMPARE(frmPrinc->Label4->text() + ParamCom.ChaineFinLig, u"Ancien.par"_s); // until Apply
    }
}

// A folder only looked at is in the record until Apply puts the shown one back. The editor goes to the settings at
// once, unless its choice is given up.
void TestProp::DossiersEtEditeur()
{
    Etabli e;
    ParamCom.BitsArret = u"1"_s;
    ParamCom.DosRecep = DosJauge = EditeurCN = e.Dossier();
    const Essai prop;
    e.Fait("DosProg", [](QWidget &fenetre) {
        dynamic_cast<DosProg &>(fenetre).FolderTreeview1->setSelectedFolder(u"/"_s);
        fenetre.close();
    });
    prop.Command16->click();
    QCOMPARE(ParamCom.DosRecep + prop.Label17->text(), u'/' + e.Dossier());
    prop.cmdOK->click();
    QCOMPARE(ParamCom.DosRecep, e.Dossier());
    for (const bool prend : {false, true}) {
        if (prend)
            e.Choisit(e.Ecrit("Mon editeur.exe", {}));
        else
            e.Ferme("CommonDialog");
        prop.Command5->click();
        QCOMPARE(prop.Label12->text(), prend ? e.Chemin("Mon editeur.exe") : e.Dossier());
        QCOMPARE(e.Poste::Lit("Dorvanel.CFG").endsWith("\r\n\"" + EditeurCN.toUtf8() + "\"\r\n"), prend);
    }
}

// Each help button shows a text of its own in each language, with the blanks at the ends of its lines.
void TestProp::Aides()
{
    QSet<QString> textes;
    for (int langue = 0; langue < 3; ++langue) {
        Etabli e(langue);
        const Essai prop;
        for (const int bouton : {6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 19, 23, 24, 25}) {
            e.Fait("MsgBox", [&textes](QWidget &fenetre) {
                textes << fenetre.windowTitle() + u'|' + dynamic_cast<QMessageBox &>(fenetre).text();
                fenetre.close();
            });
            prop.Trouve(u"Command%1"_s.arg(bouton))->click();
        }
    }
    QCOMPARE(textes.size(), 3 * 14);
    QVERIFY(textes.contains(u"Information on the adjustment of the parity|Information on the parity\n\nEven : \n"
                            "Marque : \nNone : None (Default value)\nOdd : \nSpace : "_s));
}

// In each language, whatever it shows, the dialog fits the screens of the shop and no word is cut. Each port says what
// it stands for.
void TestProp::RienNEstCoupe()
{
    for (int langue = 0; langue < 3; ++langue) {
        const Etabli e(langue);
        e.Relie(5, e.Ecrit("adaptateur", {}));
        ParamCom.LibFinLig = u"Xoff"_s.repeated(100);
        ParamCom.DosRecep = u"/dossier"_s.repeated(40);
        Essai prop;
        for (int onglet = 0; onglet < 3; ++onglet) {
            prop.SSTab1->setCurrentIndex(onglet);
            prop.show();
            QVERIFY(prop.sizeHint().width() <= 1280 && prop.sizeHint().height() <= 760); // and a title bar
            for (const QWidget *const controle : prop.findChildren<QWidget *>())
                QVERIFY2(!controle->isVisible() || controle->width() >= controle->minimumSizeHint().width(),
                         qPrintable(controle->objectName()));
        }
        const auto bulle = [&](int port) { return prop.cboPort->itemData(port - 1, Qt::ToolTipRole).toString(); };
        QVERIFY2(bulle(5).contains(QFileInfo(e.Chemin("adaptateur")).canonicalFilePath()), qPrintable(bulle(5)));
        QVERIFY(bulle(16).startsWith(u"Com16 : "_s) && bulle(16).section(u':', 1) != bulle(5).section(u':', 1));
    }
}

QTEST_MAIN(TestProp)
#include "TestProp.moc"
