#include "Poste.h"

#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "shell/CadreExplorateur.h"
#include "shell/FrmPrinc.h"
#include "transfer/Em_Rc.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestLegendes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Traduites();
    void Donnees();
};

// A caption of each kind: window, menu, entry, tool tip, frame, label, tool bar; and those of a dialog.
void TestLegendes::Traduites()
{
    const Poste poste(2);
    const Em_Rc d(nullptr);
    frmPrinc->CreeExplorateur();
    const FrmPrinc &f = *frmPrinc;
    QCOMPARE((QStringList{f.windowTitle(), f.Mnu_Fichier->title(), f.Mnu_EnregistrerSous->text(),
                          f.Bouton(17)->toolTip(), f.Frame1->title(), f.Label2->text(), f.Toolbar1->windowTitle()}
                  .join(u'|')),
             u"Dorvanel Pro versión 1.7.0|Ficheros|Registrar bajo...|A propósito|Explorador de ficheros|Ningún|"
             u"Barra de herramientas"_s);
    QCOMPARE(f.Bouton(17)->text(), f.Bouton(17)->toolTip());
    QCOMPARE((QStringList{d.windowTitle(), d.Frame2->title(), d.Command2->text(), d.Command1->toolTip()}.join(u'|')),
             u"Transferencia|Configuración de comunicación seleccionada|Emisión...|Cancela la transferencia"_s);
}

// A change of language writes over no data, and over no entry without a translation; a language that is none changes
// nothing. A dialog that hangs on the main window keeps its own captions, though names of the controls are alike.
void TestLegendes::Donnees()
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

QTEST_MAIN(TestLegendes)
#include "TestLegendes.moc"
