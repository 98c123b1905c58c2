#include "Operateur.h"
#include "Poste.h"

#include "platform/Boites.h"
#include "platform/CommonDialog.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QDir>
#include <QFileDialog>
#include <QPushButton>
#include <QTest>

namespace {

const QString Iso = QStringLiteral("P.iso");
constexpr char Ouvrir[] = "Mnu_Ouvrir";
constexpr char EnregistrerSous[] = "Mnu_EnregistrerSous";
const QString Version = QStringLiteral("Dorvanel Pro version 2.7.0 : ");

QByteArray TousLesOctets()
{
    QByteArray octets;
    for (int code = 0; code < 256; ++code)
        octets += static_cast<char>(code);
    return octets;
}

void Ouvre(Operateur &operateur, const QString &chemin)
{
    operateur.Choisit(chemin);
    Operateur::Menu(Ouvrir);
}

void Enregistre(Operateur &operateur, const QString &chemin)
{
    operateur.Choisit(chemin);
    Operateur::Menu(EnregistrerSous);
}

/// Answers the file dialog's own question whether to replace a file.
Operateur::Geste Clique(QMessageBox::StandardButton bouton)
{
    return [bouton](QWidget &boite) { dynamic_cast<QMessageBox &>(boite).button(bouton)->click(); };
}

} // namespace

class TestDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AllerRetour_data();
    void AllerRetour();
    void GrosProgramme();
    void TexteRiche();
    void DialogueOuvrir();
    void DossierPropose();
    void OuvertureRatee();
    void EnregistrementRate_data();
    void EnregistrementRate();
    void Ecrase();
    void Nouveau();
    void NouveauSansNom();
};

// Through the two commands a program keeps every byte; the saving adds one CR LF.
void TestDocument::AllerRetour_data()
{
    QTest::addColumn<QByteArray>("octets");
    const std::pair<const char *, QByteArray> lignes[] = {
        {"empty", ""},
        {"CR LF", "%\r\nN10 G0 X1.5\r\nM30\r\n"},
        {"LF", "%\nN10\nM30\n"},
        {"CR", "%\rN10\rM30\r"},
        {"mixed ends", "A\r\r\nB\n\rC\n\n\r\n\r\rD\r"},
        {"tabs and form feeds", "\tN10\t\fX1 \f\r\n \t\r\n"},
        {"all bytes", TousLesOctets()},
        {"all bytes, each a line", TousLesOctets().replace("", "\r\n")},
        {"NUL only", QByteArray(3, '\0')},
        {"one long line", QByteArray(100000, 'X')},
        {"an older system's end of file", "M30\r\n\x1A"}};
    for (const auto &[nom, octets] : lignes)
        QTest::newRow(nom) << octets;
}

void TestDocument::AllerRetour()
{
    QFETCH(QByteArray, octets);
    Poste poste;
    poste.Demarre(0);
    Operateur operateur;
    const QString chemin = poste.Ecrit("Pièce n° 1.iso", octets);
    Ouvre(operateur, chemin);
    QCOMPARE(frmPrinc->Text1->Text().size(), octets.size());
    QCOMPARE(frmPrinc->windowTitle(), Version + chemin);
    QCOMPARE(frmPrinc->Label2->text(), QStringLiteral("Pièce n° 1.iso"));
    QCOMPARE(NomFichier + TitreFichier, chemin + QStringLiteral("Pièce n° 1.iso"));
    QCOMPARE(FichierModifie, 0);
    for (const char *entree : {"Mnu_EditProg", "Mnu_EnregistrerSous", "Mnu_Imprim"})
        QVERIFY(Operateur::Offre(QLatin1String(entree)));

    Enregistre(operateur, poste.Chemin("copie.iso"));
    QCOMPARE(poste.Lit("copie.iso"), octets + "\r\n");
    QCOMPARE(poste.Lit("Pièce n° 1.iso"), octets);
    QCOMPARE(frmPrinc->windowTitle(), Version + poste.Chemin("copie.iso"));
    QCOMPARE(frmPrinc->Label2->text() + TitreFichier, QStringLiteral("copie.isocopie.iso"));
}

void TestDocument::GrosProgramme()
{
    QByteArray octets;
    for (int bloc = 0; octets.size() < 10'000'000; ++bloc)
        octets += "N" + QByteArray::number(bloc) + " G1 X12.345 Y-6.789 Z0.5 F1000" + (bloc % 3 == 0 ? "\n" : "\r\n");
    Poste poste;
    poste.Demarre(0);
    Operateur operateur;
    Ouvre(operateur, poste.Ecrit(Iso, octets));
    Enregistre(operateur, poste.Chemin("copie.iso"));
    QVERIFY(poste.Lit("copie.iso") == octets + "\r\n");
}

// Rich text loses its looks when it is saved, and keeps its name.
void TestDocument::TexteRiche()
{
    Poste poste;
    poste.Demarre(0);
    Operateur operateur;
    const QByteArray riche = "{\\rtf1\\ansi {\\b G0} X1\\par M30\\par}";
    Ouvre(operateur, poste.Ecrit("P.RTF", riche));
    QVERIFY(frmPrinc->Text1->Text().startsWith(QStringLiteral("G0 X1\r\nM30")));
    Ouvre(operateur, poste.Ecrit(Iso, riche));
    QCOMPARE(frmPrinc->Text1->Text(), QString::fromLatin1(riche));
}

// The filter last used comes back, also into the saving dialog with its other list; cancelling changes nothing.
void TestDocument::DialogueOuvrir()
{
    Poste poste;
    poste.Demarre(0);
    Operateur operateur;
    const auto choisit = [](int filtres, const QString &titre, const QString &montre, const QString &prend) {
        return [=](QWidget &fenetre) {
            auto &dialogue = dynamic_cast<QFileDialog &>(fenetre);
            QCOMPARE(dialogue.windowTitle(), titre);
            QCOMPARE(dialogue.nameFilters().size(), filtres);
            QVERIFY2(dialogue.selectedNameFilter().contains(montre), qPrintable(dialogue.selectedNameFilter()));
            dialogue.selectNameFilter(dialogue.nameFilters().filter(prend).value(0));
            dialogue.reject();
        };
    };
    constexpr char dialogue[] = "CommonDialog";
    operateur.Fait(dialogue, choisit(16, QStringLiteral("Ouvrir"), QStringLiteral("*.iso"), QStringLiteral("*.h")));
    Operateur::Menu(Ouvrir);
    QCOMPARE(IndexFiltre, 1);
    QCOMPARE(NomFichier + frmPrinc->Text1->Text(), QString());
    QVERIFY(!frmPrinc->CommonDialog1->CancelError);

    operateur.Fait(dialogue, [](QWidget &fenetre) {
        auto &ouverte = dynamic_cast<QFileDialog &>(fenetre);
        ouverte.selectNameFilter(ouverte.nameFilters().filter(QStringLiteral("*.xcn")).value(0));
    });
    operateur.Choisit(poste.Ecrit("P.xcn", "G0"));
    Operateur::Barre(1);
    QCOMPARE(IndexFiltre, 3);
    operateur.Fait(dialogue, choisit(14, QStringLiteral("Enregistrer Sous"), QStringLiteral("*.xcn"), QString()));
    Operateur::Barre(2);
    operateur.Fait(dialogue, choisit(16, QStringLiteral("Ouvrir"), QStringLiteral("*.xcn"), QString()));
    Operateur::Menu(Ouvrir);
    QCOMPARE(frmPrinc->Text1->Text() + TitreFichier, QStringLiteral("G0P.xcn"));
}

// The dialog starts in the default folder only when the settings say so and its listing gives a file.
void TestDocument::DossierPropose()
{
    Poste poste;
    poste.Demarre(0);
    Operateur operateur;
    QDir(poste.Dossier()).mkdir(QStringLiteral("pieces"));
    const QString avec = poste.Chemin("pieces/");
    poste.Ecrit("pieces/P.iso", "G0");
    const std::tuple<int, QString, QString> cas[] = {{1, avec, avec},
                                                     {0, avec, poste.Dossier()},
                                                     {1, avec.chopped(1), poste.Dossier()},
                                                     {1, poste.Chemin("parti/"), poste.Dossier()}};
    for (const auto &[option, dossier, propose] : cas) {
        OptDosDefaut = option;
        DosDefaut = dossier;
        operateur.Fait("CommonDialog", [](QWidget &fenetre) {
            DosDefaut = dynamic_cast<QFileDialog &>(fenetre).directory().path();
            dynamic_cast<QFileDialog &>(fenetre).reject();
        });
        Operateur::Menu(Ouvrir);
        QCOMPARE(QDir(DosDefaut), QDir(propose));
    }
}

// A file that the pane refuses: the former document stays, by its name, its text and its changes.
void TestDocument::OuvertureRatee()
{
    Poste poste;
    poste.Demarre(2);
    Operateur operateur;
    const QString chemin = poste.Ecrit(Iso, "G0");
    Ouvre(operateur, chemin);
    frmPrinc->Text1->setText(QStringLiteral("G1"));
    const QString faux = poste.Ecrit("Faux.rtf", "G0 X1\r\n");
    const auto refuse = [&](const QString &nom) {
        operateur.Repond(
            "Mensaje",
            QStringLiteral("Error en la apertura del fichero : %1. \r Formato no reconocido o fichero déja "
                           "abierto por otra aplicación.\r - Abrir el fichero con Worpad.\r - Registrar el "
                           "fichero al formato TXT.\r  Quieren utilizar a WordPad para leer este fichero ?")
                .arg(nom),
            Boite::Information | Boite::OuiNon, QMessageBox::No);
    };
    operateur.Choisit(faux);
    refuse(QStringLiteral("Faux.rtf"));
    Operateur::Menu(Ouvrir);
    refuse(QStringLiteral("x.iso"));
    OuvreDocument(poste.Chemin("parti/x.iso")); // from a list that shows a folder gone meanwhile
    refuse(QStringLiteral("Ports"));
    OuvreDocument(QStringLiteral("/dev/null/Ports"));

    QCOMPARE(frmPrinc->Text1->Text() + NomFichier + TitreFichier, QStringLiteral("G1") + chemin + Iso);
    QCOMPARE(frmPrinc->windowTitle() + frmPrinc->Label2->text(), Version + chemin + Iso);
    QCOMPARE(FichierModifie, Vrai);
    QCOMPARE(poste.Lit("Faux.rtf"), QByteArray("G0 X1\r\n"));
}

// A full disk, a place under a file, a folder that goes while the dialog is open: told once, and nothing of the
// document is lost or renamed.
void TestDocument::EnregistrementRate_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<QString>("ou");
    QTest::addColumn<QString>("titre");
    QTest::addColumn<QString>("texte");
    QTest::newRow("full disk") << 0 << "plein.iso"
                               << "Erreur"
                               << "Erreur lors de l'enregistrement du fichier";
    QTest::newRow("under a file") << 1 << "P.iso/x.iso"
                                  << "Error"
                                  << "Error at the time of the recording of the file";
    QTest::newRow("folder gone") << 2 << "parti/x.iso"
                                 << "Error"
                                 << "Error en el registro del fichero";
}

void TestDocument::EnregistrementRate()
{
    QFETCH(int, langue);
    QFETCH(QString, ou);
    QFETCH(QString, titre);
    QFETCH(QString, texte);
    Poste poste;
    poste.Demarre(langue);
    Operateur operateur;
    const QString chemin = poste.Ecrit(Iso, "G0");
    Ouvre(operateur, chemin);
    frmPrinc->Text1->setText(QStringLiteral("G1"));
    QFile::link(QStringLiteral("/dev/full"), poste.Chemin("plein.iso"));
    operateur.Choisit(poste.Chemin(ou));
    if (ou == QLatin1String("plein.iso"))
        operateur.Fait(QString(), Clique(QMessageBox::Yes)); // replace the file of that name
    operateur.Repond(titre, texte, Boite::Critique, QMessageBox::Ok);
    Operateur::Menu(EnregistrerSous);
    QCOMPARE(frmPrinc->Text1->Text() + NomFichier + TitreFichier, QStringLiteral("G1") + chemin + Iso);
    QCOMPARE(frmPrinc->windowTitle() + frmPrinc->Label2->text(), Version + chemin + Iso);
    QCOMPARE(FichierModifie, Vrai);
    QCOMPARE(poste.Lit(Iso), QByteArray("G0"));
}

// Another file of that name is replaced only after a Yes.
void TestDocument::Ecrase()
{
    Poste poste;
    poste.Demarre(0);
    Operateur operateur;
    poste.Ecrit("autre.iso", "M30 and a longer text than the new one");
    Ouvre(operateur, poste.Ecrit(Iso, "G0"));
    operateur.Choisit(poste.Chemin("autre.iso"));
    operateur.Fait(QString(), Clique(QMessageBox::No));
    operateur.AnnuleChoix();
    Operateur::Menu(EnregistrerSous);
    QVERIFY(poste.Lit("autre.iso").startsWith("M30") && TitreFichier == Iso);
    operateur.Choisit(poste.Chemin("autre.iso"));
    operateur.Fait(QString(), Clique(QMessageBox::Yes));
    Operateur::Menu(EnregistrerSous);
    QCOMPARE(poste.Lit("autre.iso"), QByteArray("G0\r\n"));
}

// A changed text with a name: whether to save it, then whether to go on.
void TestDocument::Nouveau()
{
    Poste poste;
    poste.Demarre(2);
    Operateur operateur;
    const int drapeaux = Boite::Exclamation | Boite::OuiNon;
    const QString chemin = poste.Ecrit(Iso, "G0");
    const auto nouveau = [&](const QString &tape, QMessageBox::StandardButton enregistre,
                             QMessageBox::StandardButton va) {
        if (!tape.isEmpty()) {
            frmPrinc->Text1->setText(tape);
            operateur.Repond("Fichero en curso modificado",
                             QStringLiteral("Fichero %1 modificado !\r\n            Enregsi el fichero ? ").arg(chemin),
                             drapeaux, enregistre);
        }
        operateur.Repond("Nuevo fichero ?", "Nuevo fichero\r\n        Confirme ? ", drapeaux, va);
        Operateur::Menu("Mnu_Nouveau");
    };
    Ouvre(operateur, chemin);
    nouveau(QString(), QMessageBox::NoButton, QMessageBox::No);
    nouveau(QStringLiteral("G1"), QMessageBox::No, QMessageBox::No);
    QCOMPARE(frmPrinc->Text1->Text(), QStringLiteral("G1"));
    QCOMPARE(FichierModifie, Vrai);
    nouveau(QStringLiteral("G2"), QMessageBox::Yes, QMessageBox::No);
    QCOMPARE(poste.Lit(Iso), QByteArray("G2\r\n"));
    QCOMPARE(FichierModifie, 0);
    nouveau(QStringLiteral("G3"), QMessageBox::No, QMessageBox::Yes);
    QCOMPARE(poste.Lit(Iso), QByteArray("G2\r\n"));
    QCOMPARE(frmPrinc->Text1->Text(), QString());
    const QString nom = QStringLiteral("Nuevo.iso");
    QCOMPARE(NomFichier, nom);
    QCOMPARE(TitreFichier + frmPrinc->Label2->text(), Iso + Iso);
    QCOMPARE(frmPrinc->windowTitle(), Version + nom);
    QCOMPARE(FichierModifie, 0);
    QVERIFY(frmPrinc->Bouton(2)->isEnabled() && !frmPrinc->Mnu_Annuler->isEnabled());
}

// A typed text without a name gets one in the current folder, and keeps it when the new file is refused.
void TestDocument::NouveauSansNom()
{
    Poste poste;
    poste.Demarre(0);
    Operateur operateur;
    QDir::setCurrent(poste.Dossier());
    QTest::keyClicks(frmPrinc->Text1, QStringLiteral("G0"));
    QVERIFY(FichierModifie == Vrai && frmPrinc->Bouton(2)->isEnabled());
    const QString chemin = poste.Chemin("Nouveau.iso");
    operateur.Repond("Fichier en cours modifié",
                     QStringLiteral("Fichier %1 modifié !\r\n            Enregistrer le fichier ? ").arg(chemin),
                     Boite::Exclamation | Boite::OuiNon, QMessageBox::Yes);
    operateur.Repond("Nouveau fichier ?", "Nouveau fichier\r\n        Confirmez ? ", Boite::Exclamation | Boite::OuiNon,
                     QMessageBox::No);
    Operateur::Menu("Mnu_Nouveau");
    QCOMPARE(NomFichier, chemin);
    QCOMPARE(poste.Lit("Nouveau.iso"), QByteArray("G0\r\n"));
}

QTEST_MAIN(TestDocument)
#include "TestDocument.moc"
