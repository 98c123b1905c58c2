#include "Operateur.h"
#include "platform/Essais.h"
#include "Poste.h"

#include "platform/CommonDialog.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QDir>
#include <QFileDialog>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Iso = QStringLiteral("P.iso");
const QString Version = QStringLiteral("Dorvanel Pro version 2.7.0 : ");

/// A workstation and its operator, who opens and saves programs.
struct Atelier : Poste, Operateur
{
    explicit Atelier(int langue = 0)
        : Poste(langue)
    {
    }

    void Choisit(const char *entree, const QString &chemin)
    {
        Operateur::Choisit(chemin);
        Menu(entree);
    }

    /// Opens "P.iso", which holds G0, and types G1 instead.
    QString Change()
    {
        const QString chemin = Poste::Ecrit(Iso, "G0");
        OuvreDocument(chemin);
        frmPrinc->Text1->setText(u"G1"_s);
        return chemin;
    }
};

/// The document stands as Change() left it.
void VerifieChange(const QString &chemin)
{
    QCOMPARE(frmPrinc->Text1->Text() + NomFichier + TitreFichier, u"G1"_s + chemin + Iso);
    QCOMPARE(frmPrinc->windowTitle() + frmPrinc->Label2->text(), Version + chemin + Iso);
    QCOMPARE(FichierModifie, Vrai);
}

} // namespace

class TestDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Through the two commands a program keeps every byte, whatever stood in the pane; the saving adds one CR LF.
    void AllerRetour()
    {
        Atelier atelier;
        const QByteArray tous = TousLesOctets();
        QByteArray gros;
        for (int bloc = 0; gros.size() < 10'000'000; ++bloc)
            gros += "N" + QByteArray::number(bloc) + " G1 X12.345 Y-6.789 F1000" + (bloc % 3 == 0 ? "\n" : "\r\n");
        for (const QByteArray &octets :
             {QByteArray(), QByteArray("%\nN10\nM30\n"), QByteArray("%\rN10\rM30\r"),
              QByteArray("A\r\r\nB\n\rC\n\n\r\n\r\rD\r"), QByteArray("\tN10\t\fX1 \f\r\n \t\r\n"), tous,
              QByteArray(tous).replace("", "\r\n"), QByteArray(3, '\0'), QByteArray(100'000, 'X'),
              QByteArray("M30\r\n\x1A"), QByteArray("{\\rtf1 G0}"), gros}) {
            const QString chemin = atelier.Ecrit("Pièce n° 1.iso", octets);
            atelier.Choisit("Mnu_Ouvrir", chemin);
            QCOMPARE(frmPrinc->Text1->Text().size(), octets.size());
            QCOMPARE(frmPrinc->windowTitle(), Version + chemin);
            QCOMPARE(frmPrinc->Label2->text(), u"Pièce n° 1.iso"_s);
            QCOMPARE(NomFichier + TitreFichier, chemin + u"Pièce n° 1.iso"_s);
            QCOMPARE(FichierModifie, 0);
            for (const char *entree : {"Mnu_EditProg", "Mnu_EnregistrerSous", "Mnu_Imprim"})
                QVERIFY(Operateur::Offre(entree));

            atelier.Choisit("Mnu_EnregistrerSous", atelier.Chemin("copie.iso"));
            QVERIFY(atelier.Lit("copie.iso") == octets + "\r\n");
            QVERIFY(atelier.Lit("Pièce n° 1.iso") == octets);
            QCOMPARE(frmPrinc->windowTitle(), Version + atelier.Chemin("copie.iso"));
            QCOMPARE(frmPrinc->Label2->text() + TitreFichier, u"copie.isocopie.iso"_s);
            QFile::remove(atelier.Chemin("copie.iso"));
        }
    }

    // The filter last used comes back, also into the saving dialog with its other list; cancelling changes nothing.
    void DialogueOuvrir()
    {
        Atelier atelier;
        const QString programme = atelier.Ecrit("P.xcn", "G0");
        for (const auto &[entree, filtres, montre, prend, fichier] :
             {std::tuple{"Mnu_Ouvrir", 16, "*.iso", "*.h", QString()},
              {"Mnu_Ouvrir", 16, "*.iso", "*.xcn", programme},
              {"Mnu_EnregistrerSous", 14, "*.xcn", "*.iso", QString()},
              {"Mnu_Ouvrir", 16, "*.xcn", "*.iso", QString()}}) {
            atelier.Fait("CommonDialog", [=](QWidget &fenetre) {
                auto &dialogue = dynamic_cast<QFileDialog &>(fenetre);
                QCOMPARE(dialogue.nameFilters().size(), filtres);
                QVERIFY2(dialogue.selectedNameFilter().contains(QLatin1String(montre)), montre);
                dialogue.selectNameFilter(dialogue.nameFilters().filter(QLatin1String(prend)).value(0));
                if (fichier.isEmpty())
                    dialogue.reject();
            });
            if (!fichier.isEmpty())
                atelier.Operateur::Choisit(fichier);
            Operateur::Menu(entree);
        }
        QCOMPARE(frmPrinc->Text1->Text() + TitreFichier, u"G0P.xcn"_s);
        QVERIFY(!frmPrinc->CommonDialog1->CancelError);
    }

    // A file that the pane refuses: the former document stays, by its name, its text and its changes.
    void OuvertureRatee()
    {
        Atelier atelier(2);
        const QString chemin = atelier.Change();
        atelier.Ecrit("Faux.RTF", "G0 X1\r\n");
        for (const QString &refuse :
             {atelier.Chemin("Faux.RTF"), atelier.Chemin("parti/x.iso"), u"/dev/null/Ports"_s}) {
            atelier.Repond("Mensaje",
                           u"Error en la apertura del fichero : %1. \r Formato no reconocido o fichero déja "
                           "abierto por otra aplicación.\r - Abrir el fichero con Worpad.\r - Registrar el "
                           "fichero al formato TXT.\r  Quieren utilizar a WordPad para leer este fichero ?"_s.arg(
                               QFileInfo(refuse).fileName()),
                           Boite::Information | Boite::OuiNon, QMessageBox::No);
            OuvreDocument(refuse);
            VerifieChange(chemin);
        }
        QCOMPARE(atelier.Lit("Faux.RTF"), QByteArray("G0 X1\r\n"));
    }

    // A changed text with a name: whether to save it, then whether to go on. A new program is offered the folder of the
    // programs, wherever the file dialog was last used.
    void Nouveau()
    {
        Atelier atelier(2);
        const QString chemin = atelier.Ecrit(Iso, "G0");
        atelier.Choisit("Mnu_Ouvrir", chemin);
        for (const auto &[tape, enregistre, va, fichier] :
             {std::tuple{u""_s, QMessageBox::NoButton, QMessageBox::No, "G0"},
              {u"G1"_s, QMessageBox::No, QMessageBox::No, "G0"},
              {u"G2"_s, QMessageBox::Yes, QMessageBox::No, "G2\r\n"},
              {u"G3"_s, QMessageBox::No, QMessageBox::Yes, "G2\r\n"}}) {
            if (!tape.isEmpty()) {
                frmPrinc->Text1->setText(tape);
                atelier.Repond("Fichero en curso modificado",
                               u"Fichero %1 modificado !\r\n            Enregsi el fichero ? "_s.arg(chemin),
                               Operateur::DemandeSimple, enregistre);
            }
            atelier.Repond("Nuevo fichero ?", "Nuevo fichero\r\n        Confirme ? ", Operateur::DemandeSimple, va);
            Operateur::Menu("Mnu_Nouveau");
            QCOMPARE(atelier.Lit(Iso), QByteArray(fichier));
            QCOMPARE(FichierModifie, tape == u"G1" ? Vrai : 0);
            QCOMPARE(frmPrinc->Text1->Text(), va == QMessageBox::Yes ? QString() : tape.isEmpty() ? u"G0"_s : tape);
        }
        QCOMPARE(NomFichier, u"Nuevo.iso"_s);
        QCOMPARE(TitreFichier + frmPrinc->Label2->text(), Iso + Iso);
        QCOMPARE(frmPrinc->windowTitle(), Version + u"Nuevo.iso"_s);
        QVERIFY(frmPrinc->Bouton(2)->isEnabled() && !frmPrinc->Mnu_Annuler->isEnabled());
        frmPrinc->CommonDialog1->InitDir = u"/"_s;
        atelier.Fait("CommonDialog", [](QWidget &fenetre) {
            QCOMPARE(dynamic_cast<QFileDialog &>(fenetre).directory().path(), DosDefaut);
            fenetre.close();
        });
        Operateur::Menu("Mnu_EnregistrerSous");
    }
};

QTEST_MAIN(TestDocument)
#include "TestDocument.moc"
