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
    void Police();
    void Editeur();
    void AideEtApropos();
};

// The choice goes to the whole text and every effect with it; cancelling leaves all selected and the undo copy taken.
void TestServices::Police()
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

    operateur.Fait("CommonDialog", [](QWidget &fenetre) {
        auto &dialogue = dynamic_cast<QFontDialog &>(fenetre);
        QVERIFY(dialogue.currentFont().bold() && dialogue.currentFont().pointSize() == 10); // that of the pane
        dialogue.setCurrentFont(QFont(u"DejaVu Serif"_s, 18, QFont::Normal, true));
        for (QCheckBox *effet : dialogue.findChildren<QCheckBox *>())
            effet->click();
        dialogue.findChild<QPushButton *>(u"Couleur"_s)->click();
    });
    const Operateur::Geste accepte = [](QWidget &fenetre) { QMetaObject::invokeMethod(&fenetre, "accept"); };
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

// The editor gets the file; one that is named as a word processor is the system's own; a missing one is told of.
void TestServices::Editeur()
{
    const std::tuple<QString, QString, QString, QString, QString> langues[] = {
        {u"@/mon editeur"_s, u"mon editeur|"_s, u"@"_s, u"Erreur"_s,
         u"Erreur pendant l'ouverture du fichier ou\rEditeur non trouvé !"_s},
        {u"C:\\OverWRITE.EXE"_s, u"soffice|--writer|"_s, u"@/absent"_s, u"Error"_s,
         u"Error during the opening of the file or\rEditor not found !"_s},
        {u"C:\\WordPad.exe"_s, u"soffice|--writer|"_s, QString(), u"Error"_s,
         u"Error durante la apertura del fichero o\rEditor no encontrado !"_s}};
    const QByteArray chemins = qgetenv("PATH");
    for (int langue = 0; langue < 3; ++langue) {
        auto [editeur, lance, absent, titre, message] = langues[langue];
        const Poste poste(langue);
        OuvreDocument(poste.Ecrit("une pièce.iso", "N10"));
        qputenv("PATH", poste.Dossier().toLocal8Bit());
        const QString trace = poste.Chemin("trace");
        for (const char *const nom : {"soffice", "mon editeur"}) {
            const QString script = u"#!/bin/sh\nprintf '%s|' \"${0##*/}\" \"$@\" > %1.x; /bin/mv %1.x %1"_s.arg(trace);
            QFile::setPermissions(poste.Ecrit(nom, script.toUtf8()), QFile::ReadOwner | QFile::ExeOwner);
        }
        EditeurCN = editeur.replace(u'@', poste.Dossier());
        Operateur::Barre(4);
        QTRY_VERIFY(QFile::exists(trace));
        QCOMPARE(QString::fromUtf8(poste.Lit("trace")), lance + NomFichier + u'|');
        EditeurCN = absent.replace(u'@', poste.Dossier());
        Operateur operateur;
        operateur.Repond(titre, message, Boite::Critique, QMessageBox::Ok);
        Operateur::Menu("Mnu_EditProg");
        QCOMPARE(frmPrinc->Text1->Text(), u"N10"_s);
        qputenv("PATH", chemins);
    }
}

// The about window in each language, and where its links lead; the entry of the menu leads where the first one does.
void TestServices::AideEtApropos()
{
    const std::tuple<QString, QString, QString, QString> langues[] = {
        {u"A Propos"_s, u"Logiciel de Chargement/Déchargement\nde fichiers Commande Numérique"_s, u"Aide en ligne"_s,
         u""_s},
        {u"Information - Author"_s, u"Software of Load / dumping\nof files Digital control"_s, u"On line help..."_s,
         u"English/"_s},
        {u"A propósito"_s, u"Software de Carga / descarga\nde ficheros Mando numérico"_s, u"Ayuda en línea..."_s,
         u"Espanol/"_s}};
    for (int langue = 0; langue < 3; ++langue) {
        const auto &[titre, texte, aide, dossier] = langues[langue];
        const Poste poste(langue);
        Navigateur navigateur;
        for (const QString &genre : {u"https"_s, u"mailto"_s})
            QDesktopServices::setUrlHandler(genre, &navigateur, "Ouvre");
        Operateur operateur;
        operateur.Fait("Apropos", [&](QWidget &fenetre) {
            QCOMPARE(fenetre.windowTitle(), titre);
            QCOMPARE(Operateur::Lu("Label1"), u"Dorvanel Pro Version 2.7.0\n\n"_s + texte);
            QCOMPARE(Operateur::Lu("Label8"), aide);
        });
        for (const char *const bouton : {"Label8", "Label4", "Label5", "Command1"})
            operateur.Presse("Apropos", bouton);
        Operateur::Barre(17);
        Operateur::Menu("Mnu_AideEnLigne");
        const QString site = u"https://dorvanel.example"_s;
        const QString lecons = site + u"/Dorvanel/"_s + dossier + u"index.html"_s;
        QCOMPARE(navigateur.ouvertes, QStringList({lecons, u"mailto:contact@dorvanel.example"_s, site, lecons}));
    }
}

QTEST_MAIN(TestServices)
#include "TestServices.moc"
