#include "Poste.h"

#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "shell/FrmPrinc.h"
#include "transfer/Em_Rc.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestLegendes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A change of language writes over no data, and over no entry without a translation; a language that is none
    // changes nothing. A dialog that hangs on the main window keeps its own captions, though names of the controls are
    // alike.
    void Donnees()
    {
        const Poste poste(0);
        poste.Charge("G0");
        const Em_Rc ouvert(frmPrinc);
        const auto montre = [&ouvert] {
            const FrmPrinc &f = *frmPrinc;
            return QStringList{f.windowTitle(),  f.Label2->text(),      f.Label4->text(),
                               f.Label6->text(), ouvert.Label1->text(), ouvert.Label4->text()};
        };
        const QStringList avant = montre();
        QMap<QAction *, QString> entrees;
        for (QAction *entree : frmPrinc->findChildren<QAction *>(QRegularExpression(u"^Mnu_(?!Lang_)"_s)))
            entrees[entree] = entree->text();
        QVERIFY(entrees.size() > 20);
        for (const int langue : {1, 2, 9, -1}) {
            LangIndex = langue;
            AppliqueLangue();
            QCOMPARE(montre(), avant);
            QCOMPARE(ouvert.Command1->text(), langue == 1 ? u"&Cancel"_s : u"&Cancelar"_s);
            for (auto entree = entrees.begin(); entree != entrees.end(); ++entree)
                QVERIFY2(entree.key()->text() != entree.value(), qPrintable(entree.value()));
        }
        QCOMPARE(frmPrinc->Label1->text(), u"Ficheros :"_s);
    }
};

QTEST_MAIN(TestLegendes)
#include "TestLegendes.moc"
