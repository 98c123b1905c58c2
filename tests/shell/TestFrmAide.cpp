#include "Operateur.h"
#include "Poste.h"

#include "locale/FrmLangue.h"
#include "locale/Langue.h"
#include "shell/FrmAide.h"
#include "shell/FrmPrinc.h"

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList Manuels{u"DORVANEL.HLP"_s, u"DORVANEL_EN.HLP"_s, u"DORVANEL_ES.HLP"_s};

QDir Livres()
{
    return QDir(QString::fromUtf16(DONNEES) + u"/../../resources/aide"_s);
}

/// What a pattern with one group finds in a manual, in its order.
QStringList Trouve(const QString &manuel, const QString &motif)
{
    QFile fichier(Livres().filePath(manuel));
    if (!fichier.open(QIODevice::ReadOnly))
        return {};
    const QString texte = QString::fromUtf8(fichier.readAll());
    QStringList trouves;
    for (const auto &un : QRegularExpression(motif).globalMatch(texte))
        trouves << un.captured(1);
    return trouves;
}

/// A workstation with the manuals beside its settings.
struct PosteAide : Poste
{
    explicit PosteAide(int langue)
        : Poste(langue)
    {
        for (const QString &nom : Manuels + QStringList{u"images"_s})
            QFile::link(Livres().absoluteFilePath(nom), Chemin(nom));
    }

    static FrmAide *Aide(QWidget *appelante = frmPrinc)
    {
        return appelante->findChild<FrmAide *>(Qt::FindDirectChildrenOnly);
    }
};

/// The heading at the top of what the reader sees.
QString Lue(const FrmAide &aide)
{
    return aide.TreeView1->currentItem() == nullptr ? QString()
                                                    : aide.TreeView1->currentItem()->data(0, Qt::UserRole).toString();
}

} // namespace

class TestFrmAide : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Langues();
    void Manquant();
    void Parcours();
    void Recherche();
    void DansUnDialogue();
    void ManuelsEntiers();
};

// The manual of the language opens, once, from the menu and the button; its contents are its headings.
void TestFrmAide::Langues()
{
    const QString titres[] = {u"Aide de Dorvanel Pro"_s, u"Dorvanel Pro help"_s, u"Ayuda de Dorvanel Pro"_s};
    for (int langue = 0; langue < 3; ++langue) {
        const PosteAide poste(langue);
        Operateur::Menu(u"Mnu_Aide");
        const FrmAide *const aide = poste.Aide();
        QVERIFY(aide != nullptr && aide->isVisible() && !aide->isModal());
        QCOMPARE(aide->windowTitle(), titres[langue]);
        QCOMPARE(aide->TextBrowser1->source().fileName(), Manuels[langue]);
        QStringList sections;
        for (QTreeWidgetItemIterator ligne(aide->TreeView1); *ligne != nullptr; ++ligne)
            sections << (*ligne)->data(0, Qt::UserRole).toString();
        QCOMPARE(sections, Trouve(Manuels[langue], u"<h[1-3] id=\"(\\w+)\">"_s));
        Operateur::Barre(16);
        QCOMPARE(frmPrinc->findChildren<FrmAide *>().size(), 1);
    }
}

void TestFrmAide::Manquant()
{
    const QString textes[][2] = {{u"Aide de Dorvanel Pro"_s, u"Le fichier d'aide n'existe pas :\r"_s},
                                 {u"Dorvanel Pro help"_s, u"The help file does not exist:\r"_s},
                                 {u"Ayuda de Dorvanel Pro"_s, u"El fichero de ayuda no existe:\r"_s}};
    for (int langue = 0; langue < 3; ++langue) {
        const Poste poste(langue);
        Operateur operateur;
        operateur.Repond(textes[langue][0], textes[langue][1] + poste.Chemin(Manuels[langue]), Boite::Exclamation,
                         QMessageBox::Ok);
        Operateur::Menu(u"Mnu_Aide");
        QCOMPARE(PosteAide::Aide(), nullptr);
    }
}

// Contents, back, forward, a link of the text; by the keyboard alone.
void TestFrmAide::Parcours()
{
    const PosteAide poste(0);
    Mnu_Aide();
    FrmAide &aide = *poste.Aide();
    QVERIFY(QTest::qWaitForWindowActive(&aide));
    QVERIFY(!aide.Command1->isEnabled());
    for (const char *const section : {"adaptateurs", "Prop"}) {
        aide.Montre(aide.TextBrowser1->source().toLocalFile(), QLatin1String(section));
        QCOMPARE(aide.TextBrowser1->source().fragment(), QLatin1String(section));
        QCOMPARE(Lue(aide), QLatin1String(section));
    }
    QTest::keyClick(&aide, Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(Lue(aide), u"adaptateurs"_s);
    QTest::keyClick(&aide, Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(Lue(aide), u"Prop"_s);
    QTest::keyClick(aide.TreeView1, Qt::Key_Down);
    QTest::keyClick(aide.TreeView1, Qt::Key_Return);
    QCOMPARE(aide.TextBrowser1->source().fragment(), u"Prop_divers"_s);
    QTest::keyClick(&aide, Qt::Key_Escape);
    QVERIFY(!aide.isVisible());
}

// A search meets accents and capitals, goes from match to match through the whole text and round its end.
void TestFrmAide::Recherche()
{
    const PosteAide poste(0);
    Mnu_Aide();
    FrmAide &aide = *poste.Aide();
    QVERIFY(QTest::qWaitForWindowActive(&aide));
    QTest::keySequence(&aide, QKeySequence::Find);
    QTest::keyClicks(aide.Text1, u"COM2 a"_s);
    QCOMPARE(aide.Label2->text(), u"Introuvable"_s);
    QVERIFY(!aide.Command4->isEnabled());
    QTest::keySequence(&aide, QKeySequence::Find);
    QTest::keyClicks(aide.Text1, u"regle  UDEV"_s); // one of the headings has none of it
    const QString premier = aide.Label2->text();
    QCOMPARE(premier, u"1 / 1"_s);
    QCOMPARE(Lue(aide), u"adaptateurs"_s);

    aide.Text1->setText(u"emission"_s);
    const auto nombre = aide.TextBrowser1->extraSelections().size();
    const QString texte = aide.TextBrowser1->toPlainText();
    QCOMPARE(nombre, texte.count(QRegularExpression(u"[eé]mission"_s, QRegularExpression::CaseInsensitiveOption)));
    const QString depart = aide.Label2->text();
    QSet<QString> vus;
    for (qsizetype i = 0; i < nombre; ++i) {
        QTest::keyClick(aide.Text1, Qt::Key_Return);
        vus << aide.Label2->text();
        const QTextCursor ou = aide.TextBrowser1->textCursor();
        QVERIFY(QStringView(texte).mid(ou.position(), 8).endsWith(u"mission"_s, Qt::CaseInsensitive));
    }
    QCOMPARE(vus.size(), nombre);
    QCOMPARE(aide.Label2->text(), depart);
    QTest::keyClick(aide.Text1, Qt::Key_F3, Qt::ShiftModifier);
    QVERIFY(aide.Label2->text() != depart);
}

// F1 in a modal dialog gives the page of the dialog, in a window that the dialog does not block.
void TestFrmAide::DansUnDialogue()
{
    const PosteAide poste(1);
    Mnu_Aide();
    FrmLangue dialogue(frmPrinc);
    Operateur operateur;
    operateur.Fait(u"FrmLangue", [&](QWidget &fenetre) {
        QTest::keyClick(&fenetre, Qt::Key_F1);
        FrmAide *const aide = poste.Aide(&fenetre);
        QVERIFY(aide != nullptr && aide->isVisible());
        QCOMPARE(aide->TextBrowser1->source().fragment(), u"FrmLangue"_s);
        QTest::keyClicks(aide->Text1, u"dial"_s);
        QVERIFY(aide->Label2->text().startsWith(u"1 / "_s));
        aide->close();
        fenetre.close();
    });
    dialogue.exec();
    QTRY_COMPARE(poste.Aide(), nullptr); // the one of the main window made room
}

// The three manuals have the same sections; every link and every picture of theirs leads somewhere.
void TestFrmAide::ManuelsEntiers()
{
    for (const QString &manuel : Manuels) {
        const QStringList sections = Trouve(manuel, u"<h[1-3] id=\"(\\w+)\">"_s);
        QVERIFY(sections.size() > 20);
        QCOMPARE(sections, Trouve(Manuels[0], u"<h[1-3] id=\"(\\w+)\">"_s));
        QCOMPARE(sections.size(), QSet<QString>(sections.begin(), sections.end()).size());
        for (const QString &lien : Trouve(manuel, u"href=\"([^\"]*)\""_s))
            QVERIFY2(lien.startsWith(u'#') && sections.contains(lien.mid(1)), qPrintable(manuel + lien));
        const QStringList images = Trouve(manuel, u"src=\"([^\"]*)\""_s);
        QCOMPARE(images.size(), Trouve(Manuels[0], u"src=\"([^\"]*)\""_s).size());
        for (const QString &image : images) {
            const QImage lue(Livres().filePath(image));
            QVERIFY2(!lue.isNull() && lue.width() < 900, qPrintable(image));
        }
    }
}

QTEST_MAIN(TestFrmAide)
#include "TestFrmAide.moc"
