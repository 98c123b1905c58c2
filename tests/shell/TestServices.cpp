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

// An editor that is named as a word processor is the system's own; of a missing one the operator is told.
void TestServices::Editeur()
{
    const std::pair<QString, QString> messages[] = {
        {u"Erreur"_s, u"Erreur pendant l'ouverture du fichier ou\rEditeur non trouvé !"_s},
        {u"Error"_s, u"Error during the opening of the file or\rEditor not found !"_s},
        {u"Error"_s, u"Error durante la apertura del fichero o\rEditor no encontrado !"_s}};
    const QByteArray chemins = qgetenv("PATH");
    for (int langue = 0; langue < 3; ++langue) {
        const Poste poste(langue);
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
        operateur.Repond(messages[langue].first, messages[langue].second, Boite::Critique, QMessageBox::Ok);
        Operateur::Menu("Mnu_EditProg");
        QCOMPARE(frmPrinc->Text1->Text(), u"N10"_s);
        qputenv("PATH", chemins);
    }
}

// The about window in each language, and where its links lead; the entry of the menu leads where the first one does.
void TestServices::AideEtApropos()
{
    const QString site = u"https://dorvanel.example"_s;
    const std::pair<QString, QString> langues[] = {
        {u"A Propos|Dorvanel Pro Version 2.7.0||Logiciel de Chargement/Déchargement|de fichiers Commande Numérique|"
         u"Aide en ligne"_s,
         site + u"/Dorvanel/index.html"_s},
        {u"Information - Author|Dorvanel Pro Version 2.7.0||Software of Load / dumping|of files Digital control|"
         u"On line help..."_s,
         site + u"/Dorvanel/English/index.html"_s},
        {u"A propósito|Dorvanel Pro Version 2.7.0||Software de Carga / descarga|de ficheros Mando numérico|"
         u"Ayuda en línea..."_s,
         site + u"/Dorvanel/Espanol/index.html"_s}};
    Navigateur navigateur;
    for (const QString &genre : {u"https"_s, u"mailto"_s})
        QDesktopServices::setUrlHandler(genre, &navigateur, "Ouvre");
    for (int langue = 0; langue < 3; ++langue) {
        const auto &[mots, lecons] = langues[langue];
        const Poste poste(langue);
        Operateur operateur;
        operateur.Fait("Apropos", [&mots = mots](QWidget &fenetre) {
            const QStringList lus{fenetre.windowTitle(), Operateur::Lu("Label1"), Operateur::Lu("Label8")};
            QCOMPARE(lus.join(u'|').replace(u'\n', u'|'), mots);
            for (const char *const lien : {"Label8", "Label4", "Label5"}) { // the keyboard's place is to be seen
                auto *const bouton = fenetre.findChild<QPushButton *>(QLatin1String(lien));
                const QImage sans = bouton->grab().toImage();
                bouton->setFocus();
                QVERIFY2(bouton->grab().toImage() != sans, lien);
            }
        });
        for (const char *const bouton : {"Label8", "Label4", "Label5", "Command1"})
            operateur.Presse("Apropos", bouton);
        Operateur::Barre(17);
        Operateur::Menu("Mnu_AideEnLigne");
        QCOMPARE(navigateur.ouvertes, QStringList({lecons, u"mailto:contact@dorvanel.example"_s, site, lecons}));
        navigateur.ouvertes.clear();
    }
    QDesktopServices::unsetUrlHandler(u"https"_s);
    QDesktopServices::unsetUrlHandler(u"mailto"_s);
}

QTEST_MAIN(TestServices)
#include "TestServices.moc"
