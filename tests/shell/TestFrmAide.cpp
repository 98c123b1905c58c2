#include "Donnees.h"
#include "Etabli.h"

#include "platform/fichiers/FichierTexte.h"
#include "shell/FrmAide.h"
#include "shell/FrmLangue.h"

#include <QRegularExpression>

#include <filesystem>

namespace {

const QStringList Manuels{u"DORVANEL.HLP"_s, u"DORVANEL_EN.HLP"_s, u"DORVANEL_ES.HLP"_s};
const QDir Ressources(Donnees(u"../../resources"_s));

/// The sections of a manual, in its order.
QStringList Sections(const QString &manuel)
{
    static const QRegularExpression titre(u"<h[1-3] id=\"(\\w+)\">"_s);
    QStringList sections;
    for (auto trouve = titre.globalMatch(QString::fromUtf8(LitOctets(Ressources.filePath(u"aide/"_s + manuel))));
         trouve.hasNext();)
        sections << trouve.next().captured(1);
    return sections;
}

FrmAide *Ouverte(const QWidget *fenetre)
{
    return fenetre->findChild<FrmAide *>({}, Qt::FindDirectChildrenOnly);
}

/// A workstation with manuals and samples beside its settings, and the help open on its main window.
struct PosteAide : Etabli
{
    explicit PosteAide(int langue)
        : Etabli(langue)
    {
        for (const QDir livres : {Ressources.filePath(u"aide"_s), Ressources.filePath(u"exemples"_s)})
            std::filesystem::copy(livres.filesystemPath(), QDir(Dossier()).filesystemPath(),
                                  std::filesystem::copy_options::recursive);
        Menu(u"Mnu_Aide");
        aide = Ouverte(frmPrinc);
        QVERIFY(QTest::qWaitForWindowActive(aide));
    }

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
            const auto passe = Passe(QString::number(langue));
            PosteAide poste(langue);
            QCOMPARE(poste.aide->windowTitle(), textes[langue][0]);
            QCOMPARE(poste.aide->TextBrowser1->source().fileName(), Manuels[langue]);
            QStringList sections;
            for (QTreeWidgetItemIterator ligne(poste.aide->TreeView1); *ligne != nullptr; ++ligne)
                sections << (*ligne)->data(0, Qt::UserRole).toString();
            QCOMPARE(sections, Sections(Manuels[langue]));
            Operateur::Barre(16);
            QCOMPARE(frmPrinc->findChildren<FrmAide *>().size(), 1);

            QVERIFY(poste.aide->close());
            QVERIFY(QFile::remove(poste.Chemin(Manuels[langue])));
            poste.Apprend(textes[langue][0], textes[langue][1] + poste.Chemin(Manuels[langue]));
            Operateur::Menu(u"Mnu_Aide");
        }
    }

    // A search meets accents and capitals, and goes from match to match round the end of the text. The
    // contents lead to their sections.
    void Recherche()
    {
        const PosteAide poste(0);
        const Ui::FrmAide &aide = *poste.aide;
        for (const auto &[cherche, trouve] : {std::pair("udev(", "Introuvable"), std::pair("REGLE  udev", "1 / 1")}) {
            QTest::keySequence(poste.aide, QKeySequence::Find);
            QTest::keyClicks(aide.Text1, QLatin1String(cherche));
            QCOMPARE(aide.Label2->text(), QLatin1String(trouve));
        }
        const QRegularExpression mot(u"[eé]mission"_s, QRegularExpression::CaseInsensitiveOption);
        const auto nombre = aide.TextBrowser1->toPlainText().count(mot);
        aide.Text1->setText(u"emission"_s);
        const QString depart = aide.Label2->text();
        QSet<QString> vus;
        for (qsizetype i = 0; i < nombre; ++i) {
            QTest::keyClick(aide.Text1, Qt::Key_Return);
            vus << aide.Label2->text();
        }
        QCOMPARE(vus.size(), nombre);
        QCOMPARE(aide.Label2->text(), depart);
        QTest::keyClick(aide.Text1, Qt::Key_F3, Qt::ShiftModifier);
        QVERIFY(aide.Label2->text() != depart);

        poste.aide->Montre(poste.Chemin(Manuels[0]), u"Prop"_s);
        QTest::keyClick(aide.TreeView1, Qt::Key_Down);
        QTest::keyClick(aide.TreeView1, Qt::Key_Return);
        QCOMPARE(aide.TextBrowser1->source().fragment(), u"Prop_divers"_s);
    }

    // F1 in a modal dialog gives the page of the dialog, in a window that the dialog does not block and that stands
    // within the screen; the page stays where it is whatever the window's size.
    void DansUnDialogue()
    {
        PosteAide poste(1);
        poste.Fait(u"FrmLangue", [](QWidget &fenetre) {
            const QRect ecran = fenetre.screen()->availableGeometry();
            fenetre.move(ecran.bottomRight() - QPoint(60, 40));
            QTest::keyClick(&fenetre, Qt::Key_F1);
            FrmAide *const aide = Ouverte(&fenetre);
            QCoreApplication::processEvents(); // it gets its frame
            QVERIFY(aide != nullptr);
            QVERIFY(aide->isVisible());
            QVERIFY(ecran.contains(aide->frameGeometry()));
            QCOMPARE(aide->TextBrowser1->source().fragment(), u"FrmLangue"_s);
            for (const QSize &taille : {aide->size(), QSize(500, 300), QSize(790, 500)}) {
                aide->resize(taille);
                QCoreApplication::processEvents();
                const QTextCursor haut = aide->TextBrowser1->cursorForPosition({0, 8});
                QCOMPARE(haut.block().text(), u"The language"_s);
            }
            QVERIFY(!aide->Command1->isEnabled());
            fenetre.close();
        });
        FrmLangue(frmPrinc).exec();
        const QList<std::pair<const char *, QString>> pages{{"Mnu_Ouvrir", u"frmPrinc"_s},
                                                            {"Mnu_Police", u"impression"_s},
                                                            {"Mnu_ConfigIMP", u"impression"_s},
                                                            {"Mnu_ChargeConf", u"configurer"_s},
                                                            {"Mn_ModifConfMac", u"ConfMac"_s}};
        for (const auto &[entree, page] : pages) {
            const auto passe = Passe(QLatin1String(entree));
            poste.Fait(u"CommonDialog", [page = page](QWidget &fenetre) {
                Mnu_Aide();
                QCOMPARE(Ouverte(&fenetre)->TextBrowser1->source().fragment(), page);
                fenetre.close();
            });
            Operateur::Menu(QLatin1String(entree));
        }
        poste.Fait(u"Prop", [](QWidget &fenetre) {
            auto *const onglets = fenetre.findChild<QTabWidget *>();
            for (const auto &[onglet, page] :
                 {std::pair{1, u"Prop_divers"_s}, {2, u"Prop_dossiers"_s}, {0, u"Prop"_s}}) {
                const auto passe = Passe(page);
                onglets->setCurrentIndex(onglet);
                Mnu_Aide();
                QCOMPARE(Ouverte(&fenetre)->TextBrowser1->source().fragment(), page);
            }
            fenetre.close();
        });
        Operateur::Menu(u"Mnu_CreConf");
        QTRY_COMPARE(Ouverte(frmPrinc), nullptr); // the help of the main window made room
    }
};

QTEST_MAIN(TestFrmAide)
#include "TestFrmAide.moc"
