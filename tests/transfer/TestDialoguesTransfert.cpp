#include "Donnees.h"
#include "EssaiTransfert.h"

#include "donnees/ParamCom.h"
#include "locale/Langue.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr char Dialogue[] = "Em_Rc";
const QString EnMorceaux =
    u"Incomplete configuration: load or save it again. Port used: Com3, speed: 115200."_s; // of a file of two lines
const QString QuandMeme = u"\rContinuer quand même ?"_s;

const QByteArray Longue = (QByteArray(300, 'X') + "\n").repeated(50);
/// Language, text, what the line says, whether that is a warning.
const std::tuple<const char *, int, QByteArray, QString, bool> LignesApercu[] = {
    {"a heading", 0, " \r\n%2010 (PLATINE)\tA\r\nN10\n", u"%2010 (PLATINE)<HT>A : 3 lignes, 26 caractères"_s, false},
    {"lone CR", 1, "\r\rO1", u"O1: 3 lines, 4 characters"_s, false},
    {"one character", 1, "A", u"A: 1 line, 1 character"_s, false},
    {"long, French", 0, Longue, u"… : 50 lignes, 15\u202F050 caractères"_s, false},
    {"long, Spanish", 2, Longue, u"…: 50 líneas, 15.050 caracteres"_s, false},
    {"empty", 0, "", u"Le texte à envoyer est vide : 0 ligne, 0 caractère."_s, true},
    {"blank", 1, "\r\n \x7f\r\n", u"The text to be sent is empty: 2 lines, 6 characters."_s, true}};

const QString Conseil = u" : recevoir par fichier, ou faire une pause en fin de ligne à la machine."_s;
const QString SansFin =
    u" d'une ligne sans fin : recevoir par fichier, ou finir à la machine la dernière ligne par une fin de ligne."_s;
const QString Collee = u"La fin de transfert est arrivée collée à une ligne : relire le fichier."_s;
/// Type of line end, whether the operator forces the end, what the machine sends at a time, what is told behind the
/// count and the time.
const std::tuple<const char *, Genre, int, bool, QByteArrayList, QString> Pertes[] = {
    {"line", Genre::Ligne, 3, false, {"A\r\n", "B\r\n", "\x04"}, {}},
    {"line, nothing", Genre::Ligne, 3, false, {"\r\n", "\x04"}, u"Le fichier reçu est vide."_s},
    {"line, none at the end", Genre::Ligne, 3, true, {"N1\r\nN2 X", "\r\n", "N3"}, u"2 caractères"_s + SansFin},
    {"line, forced over whole lines",
     Genre::Ligne,
     3,
     true,
     {"Z\r\n", "A\r\nB\r\nC"},
     u"1 caractère"_s + SansFin + u"\n6 caractères jetés par la fin forcée : recommencer la réception."_s},
    {"line, the end behind a text",
     Genre::Ligne,
     3,
     true,
     {"A\r\n", "M30\x04"},
     u"1 caractère"_s + SansFin + u'\n' + Collee},
    {"line, the end in one reading", Genre::Ligne, 3, true, {"M30\r\n\x04"}, Collee},
    {"line, the end with its line end", Genre::Ligne, 3, true, {"\x04\r\n", "A\x04\r\n"}, Collee},
    {"character, more behind the end",
     Genre::Caractere,
     1,
     false,
     {"A\r\n", "B\r\n", "\x04Z"},
     u"1 caractère jeté derrière la fin de transfert : vérifier la fin de transfert."_s},
    {"character, NULs", Genre::Caractere, 3, false, {QByteArray("A\r\n\0\0", 5), "B\r\n", "\x04"}, {}},
    {"character, lines thrown away",
     Genre::Caractere,
     3,
     false,
     {"A\r\nB\r\nC", "D\r\n", "%\x04"},
     u"4 caractères jetés"_s + Conseil + u"\n1 caractère"_s + SansFin},
    {"character, the end thrown away",
     Genre::Caractere,
     3,
     true,
     {"A\r\nB\x04", "CD"},
     u"1 caractère jeté"_s + Conseil + u"\n2 caractères"_s + SansFin},
    {"character, the end in one reading", Genre::Caractere, 3, true, {"A\r\n\x04"}, {}},
    {"file, forced", Genre::Fichier, 3, true, {"A\r\nB"}, {}},
    {"file, the end with its line end", Genre::Fichier, 3, true, {"A\r\n", "\x04\r\n"}, Collee},
    {"file, more behind the end",
     Genre::Fichier,
     3,
     false,
     {"A\r\n", "\x04Z"},
     u"1 caractère jeté derrière la fin de transfert : vérifier la fin de transfert."_s},
    {"file", Genre::Fichier, 3, false, {"A\r\nB\r\nC", "\x04"}, {}}};

/// Whether there is an echo, the status and what the echo ends with.
const std::tuple<const char *, Genre, bool, QString, QString> Montrees[] = {
    {"whole file", Genre::FichierEntier, false, u"Emission du fichier. Bloc :  301"_s, {}},
    {"whole file, echo", Genre::FichierEntier, true, u"Emission du fichier. Bloc :  301"_s, u"301"_s},
    {"line by line, echo", Genre::LigneParLigne, true, u"Emission ligne  2"_s, u"C<CR><LF>"_s}};

} // namespace

/// What the operator sees and does in the dialogs of a transfer: before it, while it runs, and what they say of it.
class TestDialoguesTransfert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Annonce();
    void Apercus_data() { Rangees(LignesApercu); }
    void Apercus();
    void VideEntreTemps();
    void AutreConfiguration();
    void EmissionMontree_data() { Rangees(Montrees); }
    void EmissionMontree();
    void Bilans_data() { Rangees(Pertes); }
    void Bilans();
    void DialogueReception();
};

// A sending is confirmed: a No ends it, a Yes shows what to do at the machine; closing before the start touches
// neither port nor lamp.
void TestDialoguesTransfert::Annonce()
{
    const Poste poste(2);
    poste.Charge("G0");
    Operateur operateur;
    const QString titre = u"Emisión de un fichero Cabidas instrumentos"_s;
    const QString question = titre + u"\rConfirme la emisión del fichero mide PIECE.iso sobre el puerto Com2 ?"_s;
    operateur.Repond(titre, question, Operateur::Demande, QMessageBox::No);
    Operateur::Barre(11);
    QCOMPARE(Transfert.TypeTransfert, AucunTransfert);

    operateur.Repond(titre, question, Operateur::Demande, QMessageBox::Yes);
    operateur.Fait(Dialogue, [](QWidget &fenetre) {
        QCOMPARE(fenetre.windowTitle(), u"Emisión de las Cabidas instrumentos"_s);
        QCOMPARE(Operateur::Lu("Label1"), u"\nSobre máquina hacer un a Entrega a Cero\n\n"
                                          u"Validar el método Cargamento de las Cabidas instrumentos\n"
                                          u"Apoyar en Salida de Ciclo"_s);
        QCOMPARE(Operateur::Lu("Label2"), u"Luego presionan el botón < Emisión... >"_s);
        QCOMPARE(Operateur::Lu("Label5"), u"Machine.par  Tour"_s);
        for (const char *cache : {"Command7", "Frame4"}) // those of a reception and of a bench
            QVERIFY(!fenetre.findChild<QWidget *>(QLatin1String(cache))->isVisible());
        fenetre.close();
    });
    frmPrinc->UpdateTimer.stop();
    frmPrinc->shpPortOpen->setFillColor(Lampe::Verte);
    Operateur::Menu("Mnu_EmisJauge");
    QCOMPARE(Transfert.TypeTransfert, EmissionJauges);
    QCOMPARE(frmPrinc->shpPortOpen->FillColor(), Lampe::Verte);
}

// What will go out stands in the dialog, in words for the operator; nothing to be read is a warning, and asked about
// once more, with the text that the pane holds then.
void TestDialoguesTransfert::Apercus()
{
    const auto &[nom, langue, texte, attendu, alerte] = Rangee(LignesApercu);
    EssaiTransfert essai(Genre::FichierEntier);
    LangIndex = langue;
    essai.charge.texte = texte;
    essai.pilote.Fait(Dialogue, [&, attendu = attendu, alerte = alerte](const QWidget &fenetre) {
        const QString lu = Operateur::Lu("Bilan");
        QVERIFY2(lu.endsWith(attendu), qPrintable(lu));
        QVERIFY2(lu.size() < 100, qPrintable(lu));
        QCOMPARE(fenetre.findChild<QWidget *>(u"BilanSigne"_s)->isVisible(), alerte);
        if (lu.startsWith(u"Le "))
            frmPrinc->Text1->setText(u"N10"_s); // it is no more what it was
    });
    const auto joue = essai.Joue();
    const bool quandMeme = alerte && langue == 1;
    QCOMPARE(joue.avis.size(), quandMeme ? 1 : 0);
    QCOMPARE(joue.bilan.section(u'\n', 1), quandMeme ? u"The text sent is empty !"_s : QString());
    QCOMPARE(essai.ligne->ecrits, (alerte && !quandMeme ? "N10" : texte) + FinTrans);
}

// The operator empties the text while the dialog stands open, and thinks better of it: the port is not even opened.
void TestDialoguesTransfert::VideEntreTemps()
{
    EssaiTransfert essai(Genre::FichierEntier);
    essai.charge.texte = "A";
    essai.pilote.Fait(Dialogue, [](const QWidget &fenetre) {
        frmPrinc->Text1->setText(QString());
        Operateur::Presse(fenetre, "Command2");
    });
    essai.pilote.Repond("Emission d'un programme CN",
                        u"Le texte à envoyer est vide : 0 ligne, 0 caractère."_s + QuandMeme,
                        Operateur::DemandeSimple | Boite::SecondBouton, QMessageBox::No);
    essai.pilote.Ferme(Dialogue);
    essai.Joue();
    QVERIFY(essai.ligne->reglages.isEmpty());
}

// Another configuration from inside the dialog; a cancelled choice leaves the first, and a file that breaks off,
// which is told, leaves its name.
void TestDialoguesTransfert::AutreConfiguration()
{
    const Poste poste(1);
    poste.Charge("G0");
    const QString autre = poste.Chemin("Tour.par");
    QVERIFY(QFile::copy(Donnees(u"Complet.par"_s), autre));
    Reglages.DosConf = u"/"_s; // not where this choice begins
    Operateur operateur;
    operateur.Fait("MsgBox", Operateur::Clique(QMessageBox::Yes));
    operateur.Presse(Dialogue, "Command3");
    operateur.Fait("CommonDialog", [](QWidget &fenetre) {
        QCOMPARE(dynamic_cast<QFileDialog &>(fenetre).directory(), QDir(Reglages.DosAppli));
        fenetre.close();
    });
    operateur.Presse(Dialogue, "Command3");
    operateur.Choisit(poste.Ecrit("Faux.par", "3\r\nCom3\r\n"));
    operateur.Repond("Erroneous file of configuration",
                     "File of configuration of former version !\rModify to record some again.", Boite::Exclamation,
                     QMessageBox::Ok);
    operateur.Fait(Dialogue, [](QWidget &) {
        QCOMPARE(Operateur::Lu("Label5"), u"Machine.par  Tour"_s);
        QCOMPARE(frmPrinc->Label4->text(), u"Machine.par"_s);
        QCOMPARE(Operateur::Lu("Bilan"), u"G0: 1 line, 2 characters\n"_s + EnMorceaux);
    });
    operateur.Presse(Dialogue, "Command2");
    operateur.Repond("Sending of a program", EnMorceaux + u"\rGo on all the same ?"_s,
                     Operateur::DemandeSimple | Boite::SecondBouton, QMessageBox::No);
    operateur.Presse(Dialogue, "Command3");
    operateur.Choisit(autre);
    operateur.Fait(Dialogue, [](QWidget &fenetre) {
        QCOMPARE(Operateur::Lu("Label5"), u"Tour.par  Tour 2 axes, été €"_s);
        QCOMPARE(Operateur::Lu("Bilan"), u"G0: 1 line, 2 characters"_s);
        QVERIFY(fenetre.findChild<QWidget *>(u"Label3"_s)->isVisible()); // its echo is on
    });
    operateur.Presse(Dialogue, "Command1");
    Operateur::Menu("Mnu_EmisProgCN");
    QCOMPARE((QStringList{EtatConf.FicConf, frmPrinc->Label4->text()}), (QStringList{autre, u"Tour.par"_s}));
    QCOMPARE(ParamCom.ChaineFinLig, u"\r\r\n"_s);

    EtatConf.neuve = true; // applied, and in no file: told, whatever name stands beside it
    operateur.Fait("MsgBox", Operateur::Clique(QMessageBox::Yes));
    operateur.Fait(Dialogue, [](QWidget &) {
        QCOMPARE(Operateur::Lu("Bilan"), u"G0: 1 line, 2 characters\nNew configuration, which is in no file. "
                                         "Port used: Com%1, speed: 19200."_s.arg(ParamCom.NumPort));
    });
    operateur.Presse(Dialogue, "Command1");
    Operateur::Menu("Mnu_EmisProgCN");
}

// A double click on the button, and a hand left on Enter since the confirmation: all that sends once. While the machine
// holds the line in the third piece, the dialog shows how far the sending is, and neither Escape nor the close box ends
// it unasked; at the end it shows the end.
void TestDialoguesTransfert::EmissionMontree()
{
    const auto &[nom, genre, echo, statut, echoLu] = Rangee(Montrees);
    QByteArray corps;
    for (const char lettre : {'A', 'B', 'C'})
        corps += QByteArray(98, lettre) + "\r\n";
    EssaiTransfert essai(genre);
    essai.charge.texte = corps + 'D';
    essai.ligne->accepte = 210;
    ParamCom.Echo = echo ? 1 : 0;
    ParamCom.TailleTamponEmis = 100;
    QTest::keyPress(frmPrinc, Qt::Key_Return);
    essai.pilote.Fait(Dialogue, [&](QWidget &fenetre) {
        auto *const bouton = fenetre.findChild<QPushButton *>(u"Command2"_s);
        const auto appuie = [=] { QTest::simulateEvent(bouton, true, Qt::Key_Return, {}, u"\r"_s, true); };
        appuie(); // still from the confirmation
        QVERIFY(bouton->isEnabled());
        QVERIFY(essai.ligne->ecrits.isEmpty());
        QTest::mouseClick(bouton, Qt::LeftButton);
        QTest::mouseDClick(bouton, Qt::LeftButton);
        QTest::mouseRelease(bouton, Qt::LeftButton);
        appuie();
    });
    essai.pilote.Fait(
        Dialogue,
        [&, echo = echo, echoLu = echoLu](QWidget &fenetre) {
            const auto controle = [&](const QString &objet) { return fenetre.findChild<QWidget *>(objet); };
            QCOMPARE(essai.ligne->accepte, 0);
            QCOMPARE(controle(u"Label3"_s)->isVisible(), echo);
            QVERIFY(Operateur::Lu("Label3").endsWith(echoLu));
            QVERIFY(!controle(u"Label4"_s)->isVisible());
            QVERIFY(!controle(u"Frame2"_s)->isVisible());
            QVERIFY(!controle(u"Command2"_s)->isEnabled());
            QCOMPARE(frmPrinc->shpSend->FillColor(), Lampe::Verte);
            if (echo)
                fenetre.close();
            else
                QTest::keyClick(&fenetre, Qt::Key_Escape);
            QVERIFY(fenetre.isVisible());
        },
        [echo = echo, statut = statut] {
            return Operateur::Lu("Label2") == statut &&
                   (echo || Operateur::Lu("Progression").startsWith(u"69 %  -  reste "));
        });
    essai.pilote.Repond("Transfert en cours", "Le transfert n'est pas terminé !\rConfirmez l'arrêt du transfert ?",
                        Operateur::Demande, QMessageBox::No);
    essai.pilote.Fait(Dialogue, [&](QWidget &) { essai.ligne->accepte = 1'000'000; });
    essai.pilote.Fait(
        Dialogue,
        [echo = echo](QWidget &) {
            QCOMPARE(Operateur::Lu("Label3") == u"<EOT>", echo);
            QCOMPARE(Operateur::Lu("Command1"), u"&Annuler"_s);
            QCOMPARE(frmPrinc->shpSend->FillColor(), Lampe::Rouge);
        },
        [] { return Operateur::Lu("Label2") == u"Transfert terminé avec succès !"; });
    QCOMPARE(essai.Joue().avis.size(), 0);
    QCOMPARE(essai.ligne->ecrits, corps + (genre == Genre::FichierEntier ? "D\x04" : "D\n\x04"));
}

// What a reception had to throw away is counted, and what no program misses is not: the rest of a line end, a leader of
// NULs.
void TestDialoguesTransfert::Bilans()
{
    const auto &[nom, genre, finLigne, force, pieces, attendu] = Rangee(Pertes);
    EssaiTransfert essai(genre);
    ParamCom.TypeFinLig = finLigne;
    ParamCom.NbCarLecture = pieces.last() == "\x04Z" ? 1 : ParamCom.NbCarLecture;
    BatirChaines();
    essai.charge.pieces = pieces;
    const qsizetype recus = essai.Envoye().size();
    if (force)
        essai.PreditEnsuite();
    bool presse = false;
    const auto joue =
        essai.Joue(force ? recus : 0, [&, force = force, pieces = pieces, attendu = attendu](const QDialog &transfert) {
            const QString lu = Operateur::Lu("Bilan"); // he would wait for ever, were he not told
            const bool dit = lu.contains(u"a fin de transfert "_s) && attendu.startsWith(lu.section(u'\n', 1));
            if (force && pieces.last().endsWith(FinTrans) && !dit)
                return false;
            if (force && !std::exchange(presse, true))
                Operateur::Presse(transfert, "Command7");
            return true;
        });
    QCOMPARE(joue.bilan.section(u" en "_s, 0, 0), u"%1 caractères reçus"_s.arg(recus));
    QCOMPARE(joue.bilan.section(u'\n', 0, 0).endsWith(u" s, fin forcée."_s), force);
    QCOMPARE(joue.bilan.section(u'\n', 1), attendu);
}

// The name takes only what a file name may hold, and an existing file is replaced only when the operator says so.
// Another configuration brings its line end and folder; a try given up leaves the extension chosen. One that a file
// name may not have is told.
void TestDialoguesTransfert::DialogueReception()
{
    const Poste poste(0);
    poste.Charge("ANCIEN");
    ParamCom.DosRecep = poste.Dossier();
    poste.Ecrit("PIECE.ISO", "PRECIEUX");
    Operateur operateur;
    operateur.Fait("Rc_Fic", [](const QWidget &fenetre) {
        auto *const nom = fenetre.findChild<QLineEdit *>(u"Text1"_s);
        QVERIFY(!fenetre.findChild<QWidget *>(u"Command2"_s)->isEnabled());
        QTest::keyClicks(nom, u"pi ,e/c\"e"_s);
        nom->insert(u"é°"_s);
        QCOMPARE(nom->text(), u"piece"_s);
        Operateur::Presse(fenetre, "Command2");
    });
    operateur.Repond("Fichier existant !",
                     u"Remplacer le fichier PIECE.ISO\rDans le dossier %1\rConfirmez  ?"_s.arg(poste.Dossier()),
                     Operateur::Demande, QMessageBox::No);
    const QString autre = poste.Chemin("Tour.par");
    QVERIFY(QFile::copy(Donnees(u"Complet.par"_s), autre));
    operateur.Presse("Rc_Fic", "Command4");
    operateur.Choisit(autre);
    operateur.Fait("Rc_Fic", [](const QWidget &fenetre) {
        QCOMPARE(Operateur::Lu("Label4"), u"Tour.par  Tour 2 axes, été €"_s);
        QVERIFY(Operateur::Lu("Label3").endsWith(u"C:\\Programmes CN"_s));
        QVERIFY(fenetre.findChild<QAbstractButton *>(u"Option1_3"_s)->isChecked());
        for (const QString &extension : {u":"_s, u""_s, u"a."_s, u"cnc"_s}) {
            fenetre.findChild<QComboBox *>()->setCurrentText(extension);
            QCOMPARE(Operateur::Lu("AvisExtension").isEmpty(), extension == u"cnc");
        }
        Operateur::Presse(fenetre, "Command2");
    });
    operateur.Fait("MsgBox", Operateur::Clique(QMessageBox::No));
    operateur.Fait("Rc_Fic", [](const QWidget &fenetre) {
        QCOMPARE(fenetre.findChild<QComboBox *>()->currentText(), u"cnc"_s); // for the next try
        Operateur::Presse(fenetre, "Command1");
    });
    Operateur::Menu("Mnu_RecepProg");
    QCOMPARE(frmPrinc->Label4->text(), u"Tour.par"_s);
    QCOMPARE(poste.Lit("PIECE.ISO"), QByteArray("PRECIEUX"));
}

QTEST_MAIN(TestDialoguesTransfert)
#include "TestDialoguesTransfert.moc"
