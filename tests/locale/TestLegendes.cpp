#include "Poste.h"

#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "transfer/Em_Rc.h"

#include <QTest>

namespace {

/// What the captions and tool tips of a window read, by the control's name. The lamps compose theirs as they go.
QMap<QString, QString> Lu(QWidget &fenetre)
{
    QMap<QString, QString> lu;
    QList<QObject *> controles = fenetre.findChildren<QObject *>();
    controles << &fenetre;
    for (const QObject *controle : std::as_const(controles)) {
        for (const char *propriete : {"text", "title", "windowTitle", "toolTip"}) {
            const QString texte = controle->property(propriete).toString();
            if (!controle->objectName().isEmpty() && !texte.isEmpty() &&
                qobject_cast<const Lampe *>(controle) == nullptr)
                lu[controle->objectName() + u'.' + QLatin1String(propriete)] = texte;
        }
    }
    return lu;
}

} // namespace

class TestLegendes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Traduites();
    void DialogueOuvert();
    void Donnees();
    void LangueInconnue();
};

// A caption of each kind: window, menu, entry, tool tip, frame, label, button; in the three languages.
void TestLegendes::Traduites()
{
    const QStringList attendus[] = {
        {QStringLiteral("Dorvanel Pro version 2.7.0|&Fichier|Enregistrer &Sous...|A propos|Explorateur de fichiers "
                        "|Aucun|Barre d'outils"),
         QStringLiteral("Transfert|Configuration de communication sélectionnée |Emission...|Annule le transfert")},
        {QStringLiteral("Dorvanel Pro version 1.7.0|File|Save_As...|Author|File exploreur|None|Toolbar"),
         QStringLiteral("Transfer|Configuration of selected communication |Sending...|Cancel the transfer")},
        {QStringLiteral("Dorvanel Pro versión 1.7.0|Ficheros|Registrar bajo...|A propósito|Explorador de "
                        "ficheros|Ningún|Barra de herramientas"),
         QStringLiteral(
             "Transferencia|Configuración de comunicación seleccionada|Emisión...|Cancela la transferencia")}};
    for (int langue = 0; langue < 3; ++langue) {
        Poste poste;
        poste.Demarre(langue);
        Em_Rc d(nullptr);
        const FrmPrinc &f = *frmPrinc;
        QCOMPARE((QStringList{f.windowTitle(), f.Mnu_Fichier->title(), f.Mnu_EnregistrerSous->text(),
                              f.Bouton(17)->toolTip(), f.Frame1->title(), f.Label2->text(), f.Toolbar1->windowTitle()}
                      .join(u'|')),
                 attendus[langue][0]);
        QCOMPARE(f.Bouton(17)->text(), f.Bouton(17)->toolTip());
        QCOMPARE(
            (QStringList{d.windowTitle(), d.Frame2->title(), d.Command2->text(), d.Command1->toolTip()}.join(u'|')),
            attendus[langue][1]);
    }
}

// An open dialog hangs on the main window and keeps its own captions, though the names of the controls are alike.
void TestLegendes::DialogueOuvert()
{
    Poste poste;
    poste.Demarre(2);
    Em_Rc dialogue(frmPrinc);
    const QMap<QString, QString> avant = Lu(dialogue);
    AppliqueLangue();
    QCOMPARE(Lu(dialogue), avant);
    LangIndex = 1;
    AppliqueLangue();
    QCOMPARE(dialogue.Command1->toolTip(), QStringLiteral("Cancel the transfer"));
}

// A caption gives way to data for good: no change of language writes over a file name. English and Spanish differ from
// French in every caption but those that are the same word.
void TestLegendes::Donnees()
{
    Poste poste;
    poste.Demarre(0);
    const QMap<QString, QString> francais = Lu(*frmPrinc);
    poste.Charge("G0");
    const auto donnees = [] {
        return QStringList{frmPrinc->windowTitle(), frmPrinc->Label2->text(), frmPrinc->Label4->text(),
                           frmPrinc->Label6->text()};
    };
    const QStringList avant = donnees();
    for (const int langue : {1, 2}) {
        LangIndex = langue;
        AppliqueLangue();
        QCOMPARE(donnees(), avant);
        const QMap<QString, QString> traduit = Lu(*frmPrinc);
        for (auto ligne = francais.begin(); ligne != francais.end(); ++ligne) {
            if (ligne.key().startsWith(QLatin1String("Mnu_")) && ligne.key().endsWith(QLatin1String(".text")) &&
                !ligne.key().startsWith(QLatin1String("Mnu_Lang")))
                QVERIFY2(traduit[ligne.key()] != ligne.value(), qPrintable(ligne.key()));
        }
    }
    QCOMPARE(frmPrinc->Label1->text(), QStringLiteral("Ficheros :"));
}

// From English back to French the captions stay; so they do for a language that is none.
void TestLegendes::LangueInconnue()
{
    Poste poste;
    poste.Demarre(1);
    const QMap<QString, QString> anglais = Lu(*frmPrinc);
    for (const int langue : {0, 9, -1}) {
        LangIndex = langue;
        AppliqueLangue();
        QCOMPARE(Lu(*frmPrinc), anglais);
        QCOMPARE(Texte({u"a", u"b", u"c"}), langue == 0 ? QStringLiteral("a") : QString());
    }
}

QTEST_MAIN(TestLegendes)
#include "TestLegendes.moc"
