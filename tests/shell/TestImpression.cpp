#include "Etabli.h"

#include "platform/base/Erreur.h"
#include "platform/dialogues/Printer.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPrinter>
#include <QProcess>
#include <QRadioButton>
#include <QSpinBox>

#include <numeric>

namespace {

/// A workstation whose printer is a PDF file.
struct Atelier : Etabli
{
    using Etabli::Etabli;

    /// Prints the program in the pane to a file, "" for the one that is proposed. "PDF" is the last of the printers,
    /// and there on every PC.
    void Imprime(const QString &fichier, int copies = 1)
    {
        Fait("CommonDialog", [fichier, copies](QWidget &fenetre) {
            auto *const imprimantes = fenetre.findChild<QComboBox *>(u"printers"_s);
            imprimantes->setCurrentIndex(imprimantes->count() - 1);
            if (!fichier.isEmpty())
                fenetre.findChild<QLineEdit *>(u"filename"_s)->setText(fichier);
            fenetre.findChild<QSpinBox *>(u"copies"_s)->setValue(copies);
            QMetaObject::invokeMethod(&fenetre, "accept");
        });
        Barre(5);
    }
};

/// The lines of each page of a PDF file that bear something.
QList<QStringList> Pages(const QString &fichier)
{
    QProcess lecteur;
    lecteur.start(u"pdftotext"_s, {u"-layout"_s, fichier, u"-"_s});
    lecteur.waitForFinished();
    QList<QStringList> pages;
    const QString texte = QString::fromUtf8(lecteur.readAllStandardOutput())
                              .normalized(QString::NormalizationForm_KC); // some fonts print "fl" as one sign
    for (const QString &page : texte.split(u'\f', Qt::SkipEmptyParts))
        pages << page.split(u'\n', Qt::SkipEmptyParts);
    return pages;
}

} // namespace

class TestImpression : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Whatever is selected, the whole text comes out, over as many pages as it needs and with the heading on the first
    // one alone. Of a line wider than the page the end is missing, and the next line follows it. Blank lines at the end
    // take no sheet.
    void ToutLeTexte()
    {
        for (const QString &fin : {u"\r\n"_s, u"\r"_s, u"\n"_s}) {
            const auto passe = Passe(QString::fromLatin1(fin.toLatin1().toHex()));
            Atelier atelier(1);
            QStringList lignes{u"%\tA"_s, u"12345678B"_s, QString(1000, u'X') + u"FIN"_s};
            for (int numero = 1; numero <= 400; ++numero)
                lignes << u"N%1 G1 X%2 (é)"_s.arg(numero).arg(numero * 7);
            OuvreDocument(atelier.Ecrit("P.iso", (lignes.join(fin) + fin.repeated(90)).toLatin1()));
            frmPrinc->Text1->setFont(QFont(u"DejaVu Sans Mono"_s, 10));
            frmPrinc->Text1->setSelLength(3);
            atelier.Imprime(atelier.Chemin("P.pdf"));
            QCOMPARE(frmPrinc->Text1->SelLength(), 0);

            const QList<QStringList> pages = Pages(atelier.Chemin("P.pdf"));
            QCOMPARE(pages.size(), 6);
            QCOMPARE(pages[1].size(), pages[4].size());
            QVERIFY(pages[1].size() > 60);
            QStringList lues = std::accumulate(pages.begin(), pages.end(), QStringList());
            QCOMPARE(lues.takeFirst(), u"Programme : "_s + Document.NomFichier);
            QCOMPARE(lues[0].indexOf(u'A'), lues[1].indexOf(u'B')); // the tabulator has gone to the eighth column
            QVERIFY2(QRegularExpression(u"^X{80,150}$"_s).match(lues[2]).hasMatch(), qPrintable(lues[2]));
            QCOMPARE(lues.mid(3), lignes.mid(3));
        }
    }

    // Each copy is a job of its own, and in PDF a file that replaces no other; the look is that of the insertion point.
    void Copies()
    {
        Atelier atelier(2);
        OuvreDocument(atelier.Ecrit("P.iso", "N10\r\n\r\nN20"));
        frmPrinc->Text1->setSelLength(3);
        frmPrinc->Text1->setSelFontName(u"DejaVu Serif"_s);
        atelier.Ecrit("P_2.pdf", "mine");
        atelier.Imprime(atelier.Chemin("P.pdf"), 3);
        QCOMPARE(atelier.Lit("P_2.pdf"), "mine");
        const QList<QStringList> attendu{QStringList{u"Programme : "_s + Document.NomFichier, u"N10"_s, u"N20"_s}};
        for (const char *const fichier : {"P.pdf", "P_3.pdf", "P_4.pdf"}) {
            const auto passe = Passe(QLatin1String(fichier));
            QCOMPARE(Pages(atelier.Chemin(fichier)), attendu);
            QVERIFY(atelier.Lit(fichier).contains("DejaVuSerif-Bold"));
        }
        OuvreDocument(atelier.Ecrit("Q.iso", "N10"));
        atelier.Imprime(QString());
        QVERIFY(QFile::exists(atelier.Chemin("Q.pdf")));
    }

    // The set-up turns the paper of what is printed behind it, unless it is cancelled.
    void Reglage()
    {
        Atelier atelier(1);
        OuvreDocument(atelier.Ecrit("P.iso", "N10"));
        for (const bool accepte : {false, true}) {
            const auto passe = Passe(accepte ? u"accepted"_s : u"cancelled"_s);
            atelier.Fait("CommonDialog", [accepte](QWidget &fenetre) {
                auto *const paysage = fenetre.findChild<QRadioButton *>(u"Paysage"_s);
                QCOMPARE((QStringList{fenetre.windowTitle(), paysage->text()}),
                         (QStringList{u"Print setup"_s, u"Landscape"_s}));
                paysage->click();
                QMetaObject::invokeMethod(&fenetre, accepte ? "accept" : "reject");
            });
            Operateur::Menu("Mnu_ConfigIMP");
            const QString fichier = accepte ? u"Q.pdf"_s : u"P.pdf"_s;
            atelier.Imprime(atelier.Chemin(fichier));
            QVERIFY(atelier.Lit(fichier).contains(accepte ? "[0 0 842.0" : "[0 0 595.0"));
        }
    }

    // Cancelling prints nothing and leaves the selection. A file that cannot be written is a failure; of a job that is
    // given up nothing stays.
    void Refus()
    {
        Atelier atelier(0);
        OuvreDocument(atelier.Ecrit("P.iso", "N10 N20"));
        frmPrinc->Text1->setSelLength(3);
        atelier.Ferme("CommonDialog");
        Operateur::Menu("Mnu_Imprim");
        QCOMPARE(frmPrinc->Text1->SelText(), u"N10"_s);
        QPrinter imprimante;
        imprimante.setOutputFileName(atelier.Chemin("absent/P.pdf"));
        QVERIFY_EXCEPTION_THROWN(Printer(imprimante).Print(), Erreur);
        imprimante.setOutputFileName(atelier.Chemin("P.pdf"));
        Printer(imprimante).Print(u"N10"_s);
        QVERIFY(!QFile::exists(atelier.Chemin("P.pdf")));
    }
};

QTEST_MAIN(TestImpression)
#include "TestImpression.moc"
