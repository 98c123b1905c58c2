#include "locale/FrmLangue.h"
#include "Operateur.h"
#include "Poste.h"
#include "shell/FrmAide.h"
#include "shell/FrmPrinc.h"

#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList Manuels{u"DORVANEL.HLP"_s, u"DORVANEL_EN.HLP"_s, u"DORVANEL_ES.HLP"_s};
const QDir Ressources(QString::fromUtf16(DONNEES) + u"/../../resources"_s);

/// What a pattern with one group finds in a manual, in its order.
QStringList Trouve(const QString &manuel, const QString &motif)
{
    QFile fichier(Ressources.filePath(u"aide/"_s + manuel));
    const QString texte = fichier.open(QIODevice::ReadOnly) ? QString::fromUtf8(fichier.readAll()) : QString();
    QStringList trouves;
    for (auto un = QRegularExpression(motif).globalMatch(texte); un.hasNext();)
        trouves << un.next().captured(1);
    return trouves;
}

QStringList Sections(const QString &manuel)
{
    return Trouve(manuel, u"<h[1-3] id=\"(\\w+)\">"_s);
}

/// A workstation with manuals and samples beside its settings, and the help open on its main window.
struct PosteAide : Poste
{
    explicit PosteAide(int langue)
        : Poste(langue)
    {
        for (const QDir livres : {Ressources.filePath(u"aide"_s), Ressources.filePath(u"exemples"_s)})
            for (const QString &nom : livres.entryList(QDir::AllEntries | QDir::NoDotAndDotDot))
                QFile::link(livres.absoluteFilePath(nom), Chemin(nom));
        Operateur::Menu(u"Mnu_Aide");
        aide = Ouverte(frmPrinc);
        QVERIFY(QTest::qWaitForWindowActive(aide));
    }

    static FrmAide *Ouverte(const QWidget *fenetre)
    {
        return fenetre->findChild<FrmAide *>({}, Qt::FindDirectChildrenOnly);
    }
    QString Fragment() const { return aide->TextBrowser1->source().fragment(); }
    QString Section() const { return aide->TreeView1->currentItem()->data(0, Qt::UserRole).toString(); }

    FrmAide *aide = nullptr;
};

} // namespace

class TestFrmAide : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The manual of the language opens, once, from menu and button, with its headings as contents; a missing one is
    // told.
    void Langues()
    {
        const QString textes[][2] = {{u"Aide de Dorvanel Pro"_s, u"Le fichier d'aide n'existe pas :\r"_s},
                                     {u"Dorvanel Pro help"_s, u"The help file does not exist:\r"_s},
                                     {u"Ayuda de Dorvanel Pro"_s, u"El fichero de ayuda no existe:\r"_s}};
        for (int langue = 0; langue < 3; ++langue) {
            const PosteAide poste(langue);
            QCOMPARE(poste.aide->windowTitle(), textes[langue][0]);
            QCOMPARE(poste.aide->TextBrowser1->source().fileName(), Manuels[langue]);
            QStringList sections;
            for (QTreeWidgetItemIterator ligne(poste.aide->TreeView1); *ligne != nullptr; ++ligne)
                sections << (*ligne)->data(0, Qt::UserRole).toString();
            QCOMPARE(sections, Sections(Manuels[langue]));
            Operateur::Barre(16);
            QCOMPARE(frmPrinc->findChildren<FrmAide *>().size(), 1);

            QVERIFY(poste.aide->close() && QFile::remove(poste.Chemin(Manuels[langue])));
            Operateur operateur;
            operateur.Repond(textes[langue][0], textes[langue][1] + poste.Chemin(Manuels[langue]), Boite::Exclamation,
                             QMessageBox::Ok);
            Operateur::Menu(u"Mnu_Aide");
        }
    }

    // Contents, back and forward, by the keyboard alone.
    void Parcours()
    {
        const PosteAide poste(0);
        for (const char *const section : {"adaptateurs", "Prop"})
            poste.aide->Montre(poste.Chemin(Manuels[0]), QLatin1String(section));
        QTest::keyClick(poste.aide->TreeView1, Qt::Key_Down);
        QTest::keyClick(poste.aide->TreeView1, Qt::Key_Return);
        QStringList vues{poste.Fragment()};
        for (const Qt::Key touche : {Qt::Key_Left, Qt::Key_Left, Qt::Key_Right}) {
            QTest::keyClick(poste.aide, touche, Qt::AltModifier);
            vues << poste.Section();
        }
        QCOMPARE(vues.join(u' '), u"Prop_divers Prop adaptateurs Prop"_s);
    }

    // A search meets accents and capitals, goes from match to match through the whole text and round its end.
    void Recherche()
    {
        const PosteAide poste(0);
        const Ui::FrmAide &aide = *poste.aide;
        for (const auto &[cherche, trouve] : {std::pair("udev(", "Introuvable"), std::pair("REGLE  udev", "1 / 1")}) {
            QTest::keySequence(poste.aide, QKeySequence::Find);
            QTest::keyClicks(aide.Text1, QLatin1String(cherche));
            QCOMPARE(aide.Label2->text(), QLatin1String(trouve));
        }
        QCOMPARE(poste.Section(), u"adaptateurs"_s);

        aide.Text1->setText(u"emission"_s);
        const QString texte = aide.TextBrowser1->toPlainText();
        const auto nombre =
            texte.count(QRegularExpression(u"[eé]mission"_s, QRegularExpression::CaseInsensitiveOption));
        const QString depart = aide.Label2->text();
        QSet<QString> vus;
        for (qsizetype i = 0; i < nombre; ++i) {
            QTest::keyClick(aide.Text1, Qt::Key_Return);
            vus << aide.Label2->text();
            QVERIFY(
                texte.mid(aide.TextBrowser1->textCursor().position(), 8).endsWith(u"mission"_s, Qt::CaseInsensitive));
        }
        QCOMPARE(vus.size(), nombre);
        QCOMPARE(aide.Label2->text(), depart);
        QTest::keyClick(aide.Text1, Qt::Key_F3, Qt::ShiftModifier);
        QVERIFY(aide.Label2->text() != depart);
    }

    // F1 in a modal dialog gives the page of the dialog, in a window that the dialog does not block.
    void DansUnDialogue()
    {
        const PosteAide poste(1);
        Operateur operateur;
        operateur.Fait(u"FrmLangue", [](QWidget &fenetre) {
            QTest::keyClick(&fenetre, Qt::Key_F1);
            FrmAide *const aide = PosteAide::Ouverte(&fenetre);
            QVERIFY(aide != nullptr && aide->isVisible());
            QCOMPARE(aide->TextBrowser1->source().fragment(), u"FrmLangue"_s);
            QTest::mouseClick(aide->windowHandle(), Qt::LeftButton, {}, aide->Command1->geometry().center());
            QCOMPARE(aide->TextBrowser1->source().fragment(), QString());
            fenetre.close();
        });
        FrmLangue(frmPrinc).exec();
        QTRY_COMPARE(PosteAide::Ouverte(frmPrinc), nullptr); // the help of the main window made room
    }

    // The manuals have the same sections; links and pictures lead somewhere; what is in bold stands on a window.
    void ManuelsEntiers()
    {
        QFile liste(QString::fromUtf16(DONNEES) + u"/legendes.tsv"_s);
        QVERIFY(liste.open(QIODevice::ReadOnly));
        const QStringList lignes = QString::fromUtf8(liste.readAll()).split(u'\n', Qt::SkipEmptyParts);
        for (int langue = 0; langue < 3; ++langue) {
            const QString &manuel = Manuels[langue];
            const QStringList sections = Sections(manuel);
            QVERIFY(sections.size() > 20 && sections == Sections(Manuels[0]));
            for (const QString &lien : Trouve(manuel, u"href=\"([^\"]*)\""_s))
                QVERIFY2(sections.contains(lien.mid(1)), qPrintable(manuel + lien));
            for (const QString &image : Trouve(manuel, u"src=\"([^\"]*)\""_s)) {
                const int largeur = QImage(Ressources.filePath(u"aide/"_s + image)).width();
                QVERIFY2(largeur > 0 && largeur < 900, qPrintable(image));
            }
            QStringList legendes{u"CD"_s,       u"RTS"_s,     u"CTS"_s,
                                 u"XOn/XOff"_s, u"RTS/CTS"_s, u"?"_s}; // in no need of a language
            for (const QString &ligne : lignes)
                legendes << ligne.section(u'\t', 3 + langue, 3 + langue)
                                .remove(u'&')
                                .remove(QRegularExpression(u"[ :]+$"_s));
            for (QString &cite : Trouve(manuel, u"<b>([^<]*)</b>"_s))
                QVERIFY2(legendes.contains(cite.replace(u"&gt;"_s, u">"_s)), qPrintable(manuel + u": "_s + cite));
        }
    }
};

QTEST_MAIN(TestFrmAide)
#include "TestFrmAide.moc"
