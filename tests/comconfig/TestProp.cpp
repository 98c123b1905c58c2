#include "Donnees.h"
#include "Etabli.h"
#include "LigneScenario.h"

#include "comconfig/CommandesConf.h"
#include "comconfig/DosProg.h"
#include "comconfig/FrmCaract.h"
#include "comconfig/Prop.h"
#include "gauges/JauTour.h"
#include "locale/Legendes.h"
#include "platform/fichiers/FichierTexte.h"
#include "transfer/Rc_Fic.h"

#include <QClipboard>
#include <QInputDialog>

using C = ConfigurationCom;

namespace {

/// A workstation whose record holds every value of a full file, with a scripted line behind every port.
struct EtabliProp : Etabli
{
    explicit EtabliProp(int langue = 0)
        : Etabli(langue)
    {
        LireFichierPar(Donnees(u"Complet.par"_s));
        frmPrinc->MSComm1->setFabrique(LigneScenario::Fabrique(scenario));
    }

    void Prevenu(const QString &texte) { Apprend("Dorvanel Pro", texte); }
    static void Ouvre(bool port) { frmPrinc->MSComm1->setPortOpen(frmPrinc->PortOuvert = port); }

    std::shared_ptr<Scenario> scenario = std::make_shared<Scenario>();
};

/// The buttons of a group, its field and their number, and whether a click is in the record at once.
const std::tuple<const char *, int C::*, int, bool> Groupes[] = {
    {"optFlow_%1", &C::ControleFlux, 4, true},     {"optEcho_%1", &C::Echo, 2, true},
    {"OptFinTrans_%1", &C::TypeFinTrans, 3, true}, {"OptFinLig_%1", &C::TypeFinLig, 5, true},
    {"OptionNul_%1", &C::FiltreNul, 2, true},      {"OptionRTS_%1", &C::LigneRTS, 2, true},
    {"OptionDRT_%1", &C::LigneDTR, 2, true},       {"OptionRCP_%1", &C::TypeRecep, 3, true},
    {"Option1_%1", &C::FinLigRecep, 4, false},     {"OptionEnvoi_%1", &C::TypeEnvoi, 2, false}};

const std::tuple<const char *, int, QString, int, QString> RefusApplique[] = {
    {"data bits", 1, u"4"_s, 0, u"La taille d'octet spécifiée n'est pas valide\r\"4\""_s},
    {"port", 3, u"8"_s, 8002, u"Numéro de port non valide\rrefused"_s},
    {"settings", 1, u"8"_s, 8015, u"Impossible de définir l'état de communication\rrefused"_s}};

using E = EtatConfiguration;
constexpr const char *Rien = nullptr, *Flux = "optFlow_3", *FinLigne = "OptFinLig_1";
/// The state of the record, an option pressed, applied, saved, and the state behind.
const std::tuple<const char *, E::Fiche, const char *, bool, bool, E::Fiche> Fermetures[] = {
    {"untouched", E::Entiere, Rien, false, false, E::Entiere},
    {"chosen only", E::Entiere, Flux, false, false, E::EnAttente},
    {"applied", E::Entiere, Flux, true, false, E::Entiere},
    {"saved", E::Entiere, Flux, false, true, E::Entiere},
    {"saved, with the former line end", E::Entiere, FinLigne, false, true, E::EnAttente},
    {"still waiting", E::EnAttente, Rien, false, false, E::EnAttente},
    {"waiting, applied", E::EnAttente, Rien, true, false, E::Entiere},
    {"broken off, applied", E::Incomplete, Flux, true, false, E::Incomplete},
    {"broken off, saved", E::Incomplete, Rien, false, true, E::Entiere}};

/// Gestures in the chooser on the chain CR LF: numbers press the character's button, "=x" applies x as the free
/// character, the rest are names of buttons. Codes, label and undo.
const std::tuple<const char *, QString, QString, bool> Compositions[] = {
    {"19", u"\r\n\x13"_s, u"CRLFXoff"_s, true},
    {"19 17 Command3 Command3", u"\r\n\x13"_s, u"CRLFXoff"_s, false},
    {"9 Command2 Command3", {}, {}, false},
    {"Command2 0", u"\0"_s, u"Nul"_s, true},
    {"Command2 38 34 30 31 32 127", u"&\"\x1E\x1F \x7F"_s, u"&&\"usrsEsp\x7F"_s, true},
    {"Command2 Command4 2 Command5", u"\u0002\u0002\u0003"_s, u"\u0002stx\u0003"_s, true},
    {"Command2 =é =€ =& =Ω =", u"é€&"_s, u"é€&"_s, true}};

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
    void Options_data() { Rangees(Groupes); }
    void Options()
    {
        const auto &[nom, champ, nombre, auClic] = Rangee(Groupes);
        const QString option = QLatin1String(nom);
        const EtabliProp etabli;
        for (int i = -1; i <= nombre; ++i) { // the values at both ends belong to no option
            const auto passe = Passe(QString::number(i));
            ParamCom.*champ = i;
            const Prop prop(frmPrinc);
            const auto *const bouton = Bouton(prop, option.arg(i));
            QVERIFY(bouton == nullptr || bouton->isChecked());
            Bouton(prop, option.arg((i + 1) % nombre))->click(); // which may be the one that stands there
            prop.cmdCancel->click();
            QCOMPARE(ParamCom.*champ, auClic ? (i + 1) % nombre : i);
            QCOMPARE(prop.Command20->isHidden(), ParamCom.TypeFinTrans != 2);
            QCOMPARE(prop.LabelFinLigne->isHidden(), ParamCom.TypeFinLig != 4);
        }
    }

    // What goes with a way of receiving. What was typed is overwritten when a child dialog closes.
    void Lecture()
    {
        EtabliProp etabli;
        for (const auto &[type, nombre, montre] :
             {std::tuple{0, 1, u"512"_s}, {1, 1, u"1"_s}, {2, 1, u"512"_s}, {1, 512, u"512"_s}, {2, 100, u"100"_s}}) {
            const auto passe = Passe(u"%1: %2"_s.arg(type).arg(nombre));
            ParamCom.TypeRecep = type;
            ParamCom.NbCarLecture = nombre;
            const Prop prop(frmPrinc);
            prop.Text2->setText(u"77"_s);
            etabli.Ferme("FrmCaract");
            prop.Command22->click();
            QCOMPARE(prop.Text2->text(), montre);
        }
        const Prop prop(frmPrinc);
        for (const auto &[avant, option, apres] :
             {std::tuple{u"7"_s, 1, u"1"_s}, {u"1"_s, 0, u"512"_s}, {u"01"_s, 2, u"01"_s}}) {
            const auto passe = Passe(avant);
            prop.Text2->setText(avant);
            Bouton(prop, u"OptionRCP_%1"_s.arg(option))->click();
            QCOMPARE(prop.Text2->text(), apres);
        }
        prop.OptionTaille_0->click();
        QCOMPARE(prop.Text8->text(), u"0"_s);
        QVERIFY(prop.Text8->isHidden());
        prop.OptionTaille_1->click();
        QVERIFY(!prop.Text8->isHidden());
    }

    // Boxes of numbers: what can be typed, what a pasted text is worth, and a number that fits no field, which leaves
    // the record sound: a saving takes nothing, Apply takes the rest.
    void Nombres()
    {
        EtabliProp etabli;
        const Prop prop(frmPrinc);
        for (QLineEdit *const boite : {prop.Text2, prop.Text4, prop.Text5, prop.Text6, prop.Text7, prop.Text8}) {
            const auto passe = Passe(boite->objectName());
            QTest::keyClick(boite, Qt::Key_A, Qt::ControlModifier); // what stood there gives way
            QTest::keyClicks(boite, u"1a-2. "_s);
            QInputMethodEvent methode;
            methode.setCommitString(u"(3é"_s);
            QCoreApplication::sendEvent(boite, &methode);
            QCOMPARE(boite->text(), u"123"_s);
            QTest::keyClick(boite, Qt::Key_Backspace);
            QCOMPARE(boite->text(), u"12"_s);
        }
        for (const auto &[colle, valeur] :
             {std::pair{"12a4", 12}, {" 7", 7}, {"abc", 0}, {"-5", 0}, {"1e3", 1}, {"", 0}}) {
            const auto passe = Passe(QLatin1String(colle));
            prop.Text6->setText(QLatin1String(colle));
            etabli.Ferme("CommonDialog");
            prop.Command1->click();
            QCOMPARE(ParamCom.SeuilRecep, valeur);
            QCOMPARE(prop.Text6->text(), QString::number(valeur));
        }
        for (const auto &[boite, legende] :
             {std::pair{prop.Text5, prop.Label14}, {prop.Text7, prop.Label16}, {prop.Text8, prop.Label18}}) {
            const auto passe = Passe(boite->objectName());
            boite->setText(u"32768"_s);
            ParamCom.Commentaire = u"ancien"_s;
            etabli.Prevenu(legende->text() + u"\r32768 ne convient pas (32767 au plus)."_s);
            prop.Command1->click();
            QCOMPARE(ParamCom.Commentaire, u"ancien"_s);
            boite->setText(u"1"_s);
        }
        const QString trop(400, u'9');
        prop.Text7->setText(trop);
        etabli.Prevenu(u"Un nombre est trop grand pour le champ qui doit le recevoir.\r"_s + prop.Label16->text() +
                       u'\r' + trop + u" ne convient pas (32767 au plus)."_s);
        prop.cmdOK->click();
        QCOMPARE(ParamCom.Commentaire, QString());
        QCOMPARE(ParamCom.SeuilEmis, 12);
        QCOMPARE(prop.SSTab1->currentWidget(), prop.divers);
        QCOMPARE(prop.focusWidget(), prop.Text7);
    }

    // Apply: record, control and main window follow; an open port moves, and what it refuses does not keep it from the
    // rest. The way of sending and the fixed size wait for a saving; menus and files stay as they were.
    void Applique_data() { OuiEtNon("ouvert", "open port", "closed port"); }
    void Applique()
    {
        QFETCH(bool, ouvert);
        const EtabliProp etabli;
        MSComm &controle = *frmPrinc->MSComm1;
        EtabliProp::Ouvre(ouvert);
        EtatConf.NomConf = ouvert ? u"Tour.par"_s : QString();
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
        QCOMPARE((QStringList{controle.Settings(), controle.ParityReplace()}), (QStringList{u"19200,m,8,2"_s, u"3"_s}));
        QCOMPARE((QList<int>{controle.CommPort(), controle.Handshaking(), controle.InputLen(), controle.InBufferSize(),
                             controle.RThreshold(), controle.SThreshold(), controle.DTREnable(), controle.PortOpen(),
                             frmPrinc->PortOuvert}),
                 (QList<int>{7, 3, 2, ouvert ? 1024 : 4, 6, 7, 1, ouvert, ouvert}));
        QCOMPARE((QStringList{frmPrinc->Label4->text(), frmPrinc->Label6->text()}),
                 (QStringList{ouvert ? u"Tour.par"_s : u"Aucun"_s, u"1"_s}));
        QVERIFY(EtatConf.FicConf.isEmpty());
        QVERIFY(!Operateur::Offre("Mnu_RecepProg"));
    }

    // A refusal is told with its reason and ends the Apply: the record keeps what the controls held, the rest stays as
    // it was. A port that cannot be opened leaves the control on the old number, closed.
    void Refuse_data() { Rangees(RefusApplique); }
    void Refuse()
    {
        const auto &[nom, port, bits, refus, texte] = Rangee(RefusApplique);
        EtabliProp etabli;
        const MSComm &controle = *frmPrinc->MSComm1;
        EtabliProp::Ouvre(true);
        etabli.scenario->refusReglage = refus;
        const Prop prop(frmPrinc);
        prop.cboPort->setCurrentIndex(port - 1);
        prop.cboDataBits->setCurrentText(bits);
        prop.cboStopBits->setCurrentText(u"1"_s);
        etabli.Prevenu(texte);
        prop.cmdOK->click();
        QCOMPARE(ParamCom.BitsDonnees, bits);
        QCOMPARE(ParamCom.NumPort, port);
        QCOMPARE(controle.CommPort(), 1);
        QCOMPARE(controle.InputLen(), 0);
        QCOMPARE(controle.PortOpen(), port == 1);
        QCOMPARE(frmPrinc->PortOuvert, controle.PortOpen());
        QCOMPARE((QStringList{ParamCom.ChaineFinLig, frmPrinc->Label6->text()}), (QStringList{QString(), u"Aucun"_s}));
    }

    // A cancelled saving ends without a word: the fields are taken. One whose end of transfer the flow control takes
    // away, or whose comment the file cannot hold, is told. A folder only looked at is in the record until the one that
    // is shown is put back. The editor goes to the settings at once.
    void Choix()
    {
        EtabliProp etabli;
        ParamCom.DosRecep = Reglages.EditeurCN = etabli.Dossier();
        const Prop prop(frmPrinc);
        etabli.Fait("DosProg", [](QWidget &fenetre) {
            dynamic_cast<DosProg &>(fenetre).FolderTreeview1->setSelectedFolder(QDir::rootPath());
            fenetre.close();
        });
        prop.Command16->click();
        QCOMPARE(ParamCom.DosRecep, QDir::toNativeSeparators(QDir::rootPath()));
        prop.OptionEnvoi_0->click();
        prop.Text8->setText(u"33"_s);
        etabli.Ferme("CommonDialog");
        prop.Command1->click();
        QCOMPARE((QStringList{EtatConf.FicConf, EtatConf.NomConf, ParamCom.DosRecep}),
                 (QStringList{{}, {}, etabli.Dossier()}));
        QCOMPARE(QDir::current(), QDir(etabli.Dossier()));
        QCOMPARE(ParamCom.TailleRecep, 33);
        QCOMPARE(ParamCom.TypeEnvoi, 0);
        ParamCom.ControleFlux = 1;
        prop.OptFinTrans_0->click();
        etabli.Choisit(etabli.Chemin("Fin.par"));
        prop.Text1->setText(u"Tour é Łódź"_s);
        etabli.ApprendQue(u"  Ł ź\n"_s);
        etabli.ApprendQue(u"17 ou 19"_s);
        prop.Command1->click();
        QVERIFY(QFile::exists(etabli.Chemin("Fin.par")));

        const QString editeur = etabli.Ecrit("Mon editeur.exe", {});
        etabli.Ferme("CommonDialog");
        prop.Command5->click();
        QCOMPARE(prop.Label12->text(), etabli.Dossier());
        etabli.Choisit(editeur);
        prop.Command5->click();
        QCOMPARE(prop.Label12->text(), editeur);
        QVERIFY(etabli.Lit("Dorvanel.CFG").endsWith("\r\n\"" + editeur.toUtf8() + "\"\r\n"));
    }

    // What the transfers are told of the record that a closed dialog leaves: a choice that was neither applied nor
    // saved is no configuration yet, nor is a saved one whose ends of line and of transfer are still the former ones. A
    // file that broke off has to be saved.
    void Fermee_data() { Rangees(Fermetures); }
    void Fermee()
    {
        const auto &[nom, avant, option, applique, enregistre, apres] = Rangee(Fermetures);
        EtabliProp etabli;
        ParamCom.BitsArret = u"1"_s; // which go with 8 data bits
        BatirChaines();
        EtatConf.fiche = avant;
        const Prop prop(frmPrinc);
        if (option != nullptr)
            Bouton(prop, QLatin1String(option))->click();
        if (applique)
            prop.cmdOK->click();
        if (enregistre) {
            etabli.Choisit(etabli.Chemin("Tour.par"));
            prop.Command1->click();
        }
        prop.cmdCancel->click();
        QCOMPARE(EtatConf.fiche, apres);
    }

    // A configuration to modify: a saving without a change gives it back byte for byte, also where no list has its
    // value, or no box takes as many digits. One that breaks off is told, opened, saved again and whole.
    void Modifie()
    {
        EtabliProp etabli;
        etabli.Ferme("CommonDialog"); // and nothing opens
        Operateur::Menu("Mnu_ModifConf");
        const QByteArray entier = LitOctets(Donnees(u"Complet.par"_s));
        const QByteArray autre = QByteArray(entier).replace("19200", "187500").replace("2048", "20480");
        Reglages.DosConf = etabli.Dossier();
        for (const QByteArray &octets : {entier, autre, autre.chopped(5)}) {
            const auto passe = Passe(u"%1 bytes"_s.arg(octets.size()));
            QFile::remove(etabli.Chemin("Sans suffixe")); // or the dialog asks about it
            const QString ancien = etabli.Ecrit("Ancien.par", octets);
            if (octets.size() < entier.size())
                etabli.ChoisitAncien(ancien);
            else
                etabli.Choisit(ancien);
            etabli.Presse("Prop", "Command1");
            etabli.Choisit(etabli.Chemin("Sans suffixe"));
            etabli.Fait("Prop", [](QWidget &fenetre) {
                QCOMPARE(fenetre.windowTitle(),
                         u"Propriétés et configuration de la communication - Fichier : Sans suffixe"_s);
                fenetre.close();
            });
            Operateur::Menu("Mnu_ModifConf");
            QCOMPARE(etabli.Lit("Sans suffixe"), octets == entier ? entier : autre);
            QVERIFY(Operateur::Offre("Mnu_RecepProg"));
            QVERIFY(!frmPrinc->Bouton(10)->isEnabled());
            QCOMPARE((QStringList{frmPrinc->Label4->text(), ParamCom.ChaineFinLig}),
                     (QStringList{u"Ancien.par"_s, QString()})); // until Apply
        }
    }

    // In each language each help button has a text of its own, with the blanks
    // at the ends of its lines.
    void Aides()
    {
        QSet<QString> aides;
        for (int langue = 0; langue < 3; ++langue) {
            EtabliProp etabli(langue);
            const Prop prop(frmPrinc);
            SuppleantBoites().message = [&aides](const QString &texte, int, const QString &titre) {
                aides << titre + u'|' + PourAffichage(texte);
                return Reponse::Ok;
            };
            for (const int bouton : {6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 19, 23, 24, 25})
                Bouton(prop, u"Command%1"_s.arg(bouton))->click();
        }
        QCOMPARE(aides.size(), 3 * 14);
        QVERIFY(aides.contains(u"Information on the adjustment of the parity|Information on the parity\n\nEven : \n"
                               "Marque : \nNone : None (Default value)\nOdd : \nSpace : "_s));
    }

    // The chooser of characters; behind the chain no code is left.
    void Compose_data() { Rangees(Compositions); }
    void Compose()
    {
        const auto &[gestes, chaine, libelle, annulable] = Rangee(Compositions);
        const Poste poste(0);
        ParamCom.CarFinLig = {0, '\r', '\n'};
        ParamCom.NbCarFinLig = 2;
        const FrmCaract dialogue(ChaineLigne, u"CRLF"_s, frmPrinc);
        for (const QString &geste : QString::fromUtf8(gestes).split(u' ')) {
            const bool libre = geste.startsWith(u'=');
            dialogue.Text1->setText(libre ? geste.mid(1) : QString());
            const QString nom = libre ? u"Command6"_s : geste.startsWith(u'C') ? geste : u"Car_"_s + geste;
            dialogue.findChild<QPushButton *>(nom)->click();
        }
        QCOMPARE(CaracteresDe(ChaineLigne), chaine);
        ParamCom.NbCarFinLig = 100;
        QCOMPARE(CaracteresDe(ChaineLigne), chaine.leftJustified(100, QChar()));
        QCOMPARE(dialogue.Label1->text(), libelle);
        QCOMPARE(dialogue.Command3->isEnabled(), annulable);
    }

    // The arrows go through the table as it is seen. Enter on a character that the line cannot carry keeps it in sight.
    void Touches()
    {
        const Poste poste(0);
        FrmCaract dialogue(ChaineLigne, {}, frmPrinc);
        dialogue.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialogue));
        dialogue.findChild<QPushButton *>(u"Car_3"_s)->setFocus();
        for (const auto &[touche, vers] : {std::pair{Qt::Key_Up, 3},
                                           {Qt::Key_Down, 19},
                                           {Qt::Key_End, 31},
                                           {Qt::Key_Right, 32},
                                           {Qt::Key_Home, 32},
                                           {Qt::Key_Left, 31}}) {
            const auto passe = Passe(QKeySequence(touche).toString());
            QTest::keyClick(dialogue.focusWidget(), touche);
            QCOMPARE(dialogue.focusWidget()->objectName(), u"Car_%1"_s.arg(vers));
        }
        dialogue.Text1->setFocus();
        dialogue.Text1->setText(u"Ł"_s);
        QTest::keyClick(dialogue.Text1, Qt::Key_Return);
        QVERIFY(dialogue.isVisible());
        QCOMPARE(dialogue.Text1->selectedText(), u"Ł"_s);
        QCOMPARE(ParamCom.NbCarFinLig, 0);
    }

    // The 101st character finds every way shut; an undo opens them again.
    void ChainePleine()
    {
        const Poste poste(0);
        ParamCom.NbCarFinLig = 99;
        const FrmCaract dialogue(ChaineLigne, {}, frmPrinc);
        dialogue.Text1->setText(u"é"_s);
        for (const bool ouvertes : {true, false, true}) {
            QPushButton *const bouton = dialogue.findChild<QPushButton *>(u"Car_13"_s);
            for (QPushButton *const voie : {bouton, dialogue.Command4, dialogue.Command6})
                QCOMPARE(voie->isEnabled(), ouvertes);
            (ouvertes ? dialogue.Command5 : dialogue.Command3)->click();
            QCOMPARE(ParamCom.NbCarFinLig, ouvertes ? 100 : 99);
        }
    }

    // The names of characters in a tool tip are no tags; as many "&" are shown as the chain has, whether a button has
    // doubled them or the free character has not.
    void BullesDesCaracteres()
    {
        const Poste poste(1);
        const FrmCaract dialogue(ChaineLigne, {}, frmPrinc);
        QCOMPARE(dialogue.findChild<QPushButton *>(u"Car_17"_s)->toolTip(), u"17 = 11h  DC1"_s);
        for (const auto &[libelle, chaine, visible] : {std::tuple{u"A&&\u0003"_s, u"A&\u0003"_s, u"A&<ETX>"_s},
                                                       {u"&&"_s, u"&&"_s, u"&&"_s},
                                                       {u"&&&LF&&"_s, u"&&\n&"_s, u"&&LF&"_s},
                                                       {u"R&&D"_s, u"RD"_s, u"R&D"_s},
                                                       {u"\u0019"_s, u"\u0019"_s, u"&lt;EM&gt;"_s}}) {
            const auto passe = Passe(visible);
            dialogue.Label1->MontreChaine(libelle, chaine);
            QCOMPARE(dialogue.Label1->toolTip(), visible);
        }
        const QString longue(400, u'W');
        dialogue.Label1->MontreChaine(longue, longue);
        QVERIFY(dialogue.Label1->toolTip().section(u'\n', 0, 0).size() < 100); // in one line it would leave the screen
        QCOMPARE(dialogue.Label1->toolTip().remove(u'\n'), longue);
    }

    // What is pasted or composed into a one-line box keeps to one line: in a box without a rule, of one character, with
    // a rule, in a list's, and in one that the system makes. What an old file holds makes no label grow.
    void UneLigne()
    {
        const EtabliProp etabli;
        Prop prop(frmPrinc);
        FrmCaract chaine(ChaineLigne, {}, &prop);
        JauTour cadran(frmPrinc);
        Rc_Fic reception(frmPrinc);
        QInputDialog demande;
        for (QDialog *const fenetre : std::initializer_list<QDialog *>{&prop, &chaine, &cadran, &reception, &demande})
            fenetre->show();
        for (const auto &[boite, texte, ligne] : {std::tuple{prop.Text1, u"A\r\nB\n\rC\u2028D\n"_s, u"A B  C D "_s},
                                                  {prop.Text3, u"\n"_s, {}},
                                                  {chaine.Text1, u"\r\n"_s, {}},
                                                  {cadran.Text1, u"0.4\r\n"_s, u"0.4"_s},
                                                  {cadran.Text1, u"0\n4"_s, {}},
                                                  {reception.Combo1->lineEdit(), u"a\nb"_s, u"a b"_s},
                                                  {demande.findChild<QLineEdit *>(), u"a\nb"_s, u"a b"_s}}) {
            const auto passe = Passe(boite->window()->objectName() + boite->objectName());
            boite->clear();
            QGuiApplication::clipboard()->setText(texte);
            boite->paste();
            QCOMPARE(boite->text(), ligne);
            boite->clear();
            QInputMethodEvent methode;
            methode.setCommitString(texte);
            QCoreApplication::sendEvent(boite, &methode);
            QCOMPARE(boite->text(), ligne);
        }
        const int hauteur = frmPrinc->Label6->sizeHint().height();
        ParamCom.Commentaire = u"A\r\nB"_s;
        MontreDonnee(frmPrinc->Label6, ParamCom.Commentaire);
        QCOMPARE(frmPrinc->Label6->sizeHint().height(), hauteur);
        QCOMPARE(ConfigurationEnClair(), u"  A B"_s);
    }
};

QTEST_MAIN(TestProp)
#include "TestProp.moc"
