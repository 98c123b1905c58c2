#include "Etabli.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFontDialog>
#include <QPushButton>

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
    // taken; accepted as it is offered, it leaves the size, which the dialog rounds, and the name.
    void Police()
    {
        Etabli etabli(0);
        const QString texte = u"N10\n\tN20\r\nN30"_s;
        OuvreDocument(etabli.Ecrit("P.iso", texte.toLatin1()));
        RichTextBox &volet = *frmPrinc->Text1;
        etabli.Ferme("CommonDialog");
        Operateur::Menu("Mnu_Police");
        QCOMPARE(volet.SelText(), texte);
        QVERIFY(frmPrinc->Mnu_Annuler->isEnabled());
        QCOMPARE(Document.TexteAnnuler, texte);

        const Operateur::Geste accepte = [](QWidget &fenetre) { QMetaObject::invokeMethod(&fenetre, "accept"); };
        const QString police = volet.SelFontName();
        etabli.Fait("CommonDialog", accepte);
        Operateur::Barre(3);
        QCOMPARE(volet.SelFontName(), police);
        QCOMPARE(volet.SelFontSize(), 9.75);

        etabli.Fait("CommonDialog", [](QWidget &fenetre) {
            auto &dialogue = dynamic_cast<QFontDialog &>(fenetre);
            QVERIFY(dialogue.currentFont().bold()); // as the pane is
            dialogue.setCurrentFont(QFont(u"DejaVu Serif"_s, 18, QFont::Normal, true));
            for (QCheckBox *effet : dialogue.findChildren<QCheckBox *>())
                effet->click();
            dialogue.findChild<QPushButton *>(u"Couleur"_s)->click();
        });
        etabli.Fait("ChoixCouleur", [accepte](QWidget &fenetre) {
            dynamic_cast<QColorDialog &>(fenetre).setCurrentColor(Qt::darkGreen);
            accepte(fenetre);
        });
        etabli.Fait("CommonDialog", accepte);
        Operateur::Barre(3);
        QCOMPARE(volet.Text(), texte);
        QVERIFY(!Document.FichierModifie);
        QCOMPARE(volet.SelLength(), 0);
        volet.setSelStart(int(texte.size()));
        QCOMPARE(volet.SelFontName(), u"DejaVu Serif"_s);
        QCOMPARE(volet.SelFontSize(), 18.0);
        QVERIFY(!volet.SelBold());
        QVERIFY(volet.SelItalic());
        QVERIFY(volet.SelStrikeThru());
        QVERIFY(volet.SelUnderline());
        QCOMPARE(volet.SelColor(), QColor(Qt::darkGreen));
        Operateur::Menu("Mnu_Annuler");
        QCOMPARE(volet.Text(), texte);
        QVERIFY(!Document.FichierModifie);
        QCOMPARE(volet.SelFontName(), police);
        QVERIFY(volet.SelBold());
        QVERIFY(!volet.SelItalic());
        QVERIFY(!volet.SelUnderline());
    }

    // An editor that is named as a word processor is the system's own; of a missing one the operator is told.
    void Editeur()
    {
        Etabli etabli(2);
        OuvreDocument(etabli.Ecrit("une pièce.iso", "N10"));
        const QString trace = etabli.Chemin("trace");
        const QString script = u"#!/bin/sh\nprintf '%s|' \"$@\" > %1.x; /bin/mv %1.x %1"_s.arg(trace);
        QFile::setPermissions(etabli.Ecrit("soffice", script.toUtf8()), QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", etabli.Dossier().toLocal8Bit());
        Reglages.EditeurCN = u"C:\\OUTILS\\OverWRITE.EXE"_s;
        Operateur::Barre(4);
        QTRY_VERIFY(QFile::exists(trace));
        QCOMPARE(QString::fromUtf8(etabli.Lit("trace")), u"--writer|"_s + Document.NomFichier + u'|');
        Reglages.EditeurCN = etabli.Dossier();
        etabli.Apprend("Error", "Error durante la apertura del fichero o\rEditor no encontrado !", Boite::Critique);
        Operateur::Menu("Mnu_EditProg");
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
            const auto passe = Passe(QString::number(langue));
            Etabli etabli(langue);
            for (const char *const bouton : {"Label8", "Label4", "Label5", "Command1"})
                etabli.Presse("Apropos", bouton);
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
