#include "Operateur.h"
#include "Poste.h"

#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFontDialog>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The system's browser and mail program.
class Navigateur : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void Ouvre(const QUrl &adresse) { ouvertes << adresse.toString(); }

    QStringList ouvertes;
};

class TestServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The choice goes to the whole text and every effect with it; cancelling leaves all selected and the undo copy
    // taken.
    void Police()
    {
        const Poste poste(0);
        const QString texte = u"N10\n\tN20\r\nN30"_s;
        OuvreDocument(poste.Ecrit("P.iso", texte.toLatin1()));
        RichTextBox &volet = *frmPrinc->Text1;
        Operateur operateur;
        operateur.Ferme("CommonDialog");
        Operateur::Menu("Mnu_Police");
        QCOMPARE(volet.SelText(), texte);
        QVERIFY(frmPrinc->Mnu_Annuler->isEnabled() && TexteAnnuler == texte);

        const Operateur::Geste accepte = [](QWidget &fenetre) { QMetaObject::invokeMethod(&fenetre, "accept"); };
        const QString police = volet.SelFontName();
        operateur.Fait("CommonDialog", accepte);
        Operateur::Barre(3);
        QCOMPARE(volet.SelFontName(), police);
        QCOMPARE(volet.SelFontSize(), 9.75); // and not the whole points of the dialog
        QVERIFY(volet.SelBold() && !volet.SelItalic());

        operateur.Fait("CommonDialog", [](QWidget &fenetre) {
            auto &dialogue = dynamic_cast<QFontDialog &>(fenetre);
            QVERIFY(dialogue.currentFont().bold() && dialogue.currentFont().pointSize() == 10); // that of the pane
            dialogue.setCurrentFont(QFont(u"DejaVu Serif"_s, 18, QFont::Normal, true));
            for (QCheckBox *effet : dialogue.findChildren<QCheckBox *>())
                effet->click();
            dialogue.findChild<QPushButton *>(u"Couleur"_s)->click();
        });
        operateur.Fait("ChoixCouleur", [accepte](QWidget &fenetre) {
            dynamic_cast<QColorDialog &>(fenetre).setCurrentColor(Qt::darkGreen);
            accepte(fenetre);
        });
        operateur.Fait("CommonDialog", accepte);
        Operateur::Barre(3);
        QCOMPARE(volet.Text(), texte);
        QVERIFY(FichierModifie == 0 && volet.SelLength() == 0);
        for (const int place : {0, 8, int(texte.size())}) {
            volet.setSelStart(place);
            QCOMPARE(volet.SelFontName(), u"DejaVu Serif"_s);
            QCOMPARE(volet.SelFontSize(), 18.0);
            QVERIFY(!volet.SelBold() && volet.SelItalic() && volet.SelStrikeThru() && volet.SelUnderline());
            QCOMPARE(volet.SelColor(), QColor(Qt::darkGreen));
        }
    }

    // An editor that is named as a word processor is the system's own; of a missing one the operator is told.
    void Editeur()
    {
        const Poste poste(2);
        OuvreDocument(poste.Ecrit("une pièce.iso", "N10"));
        const QString trace = poste.Chemin("trace");
        const QString script = u"#!/bin/sh\nprintf '%s|' \"$@\" > %1.x; /bin/mv %1.x %1"_s.arg(trace);
        QFile::setPermissions(poste.Ecrit("soffice", script.toUtf8()), QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", poste.Dossier().toLocal8Bit());
        EditeurCN = u"C:\\OUTILS\\OverWRITE.EXE"_s;
        Operateur::Barre(4);
        QTRY_VERIFY(QFile::exists(trace));
        QCOMPARE(QString::fromUtf8(poste.Lit("trace")), u"--writer|"_s + NomFichier + u'|');
        EditeurCN = poste.Dossier();
        Operateur operateur;
        operateur.Repond("Error", "Error durante la apertura del fichero o\rEditor no encontrado !", Boite::Critique,
                         QMessageBox::Ok);
        Operateur::Menu("Mnu_EditProg");
        QCOMPARE(frmPrinc->Text1->Text(), u"N10"_s);
    }

    // Where the links of the about window lead, in each language; the entry of the menu leads where the first one does.
    void AideEtApropos()
    {
        const QString site = u"https://dorvanel.example"_s;
        const QString pages[] = {u"/Dorvanel/index.html"_s, u"/Dorvanel/English/index.html"_s,
                                 u"/Dorvanel/Espanol/index.html"_s};
        Navigateur navigateur;
        for (const QString &genre : {u"https"_s, u"mailto"_s})
            QDesktopServices::setUrlHandler(genre, &navigateur, "Ouvre");
        for (int langue = 0; langue < 3; ++langue) {
            const Poste poste(langue);
            Operateur operateur;
            for (const char *const bouton : {"Label8", "Label4", "Label5", "Command1"})
                operateur.Presse("Apropos", bouton);
            Operateur::Barre(17);
            Operateur::Menu("Mnu_AideEnLigne");
            const QString lecons = site + pages[langue];
            QCOMPARE(navigateur.ouvertes, QStringList({lecons, u"mailto:contact@dorvanel.example"_s, site, lecons}));
            navigateur.ouvertes.clear();
        }
        QDesktopServices::unsetUrlHandler(u"https"_s);
        QDesktopServices::unsetUrlHandler(u"mailto"_s);
    }
};

QTEST_MAIN(TestServices)
#include "TestServices.moc"
