#include "Poste.h"

#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "transfer/Em_Rc.h"

#include <QTest>

namespace {

/// What the captions and tool tips of a window read, by the control's name.
QMap<QString, QString> Lu(QWidget &fenetre)
{
    QMap<QString, QString> lu;
    QList<QObject *> controles = fenetre.findChildren<QObject *>();
    controles << &fenetre;
    for (const QObject *controle : std::as_const(controles)) {
        for (const char *propriete : {"text", "title", "windowTitle", "toolTip"}) {
            const QString texte = controle->property(propriete).toString();
            if (!controle->objectName().isEmpty() && !texte.isEmpty())
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
    void Traduites_data();
    void Traduites();
    void DialogueOuvert();
    void Donnees();
    void LangueInconnue();
};

// A few captions of each kind and window, in the three languages.
void TestLegendes::Traduites_data()
{
    QTest::addColumn<QString>("controle");
    QTest::addColumn<QString>("francais");
    QTest::addColumn<QString>("anglais");
    QTest::addColumn<QString>("espagnol");
    const char *const lignes[][4] = {
        {"frmPrinc.windowTitle", "Dorvanel Pro version 2.7.0", "Dorvanel Pro version 1.7.0",
         "Dorvanel Pro versión 1.7.0"},
        {"Mnu_Fichier.title", "&Fichier", "File", "Ficheros"},
        {"Mnu_Language.title", "Langue", "Language", "Lengua"},
        {"Mnu_EnregistrerSous.text", "Enregistrer &Sous...", "Save_As...", "Registrar bajo..."},
        {"Mn_CreeConfMac.text", "Créer une configuration machine", "Create a configuration hatches",
         "Crear una configuración máquina"},
        {"Toolbar1_17.toolTip", "A propos", "Author", "A propósito"},
        {"Frame1.title", "Explorateur de fichiers ", "File exploreur", "Explorador de ficheros"},
        {"lblPortOpen.text", "Port Fermé", "Closed port", "Puerto cerrado"},
        {"Label2.text", "Aucun", "None", "Ningún"},
        {"Em_Rc.windowTitle", "Transfert", "Transfer", "Transferencia"},
        {"Em_Rc/Frame2.title", "Configuration de communication sélectionnée ",
         "Configuration of selected communication ", "Configuración de comunicación seleccionada"},
        {"Em_Rc/Command3.text", "Sélectionner une autre &Configuration...", "Select another Configuration...",
         "Seleccionar otra &Configuración..."},
        {"Em_Rc/Command7.toolTip", "Force la fin de réception - Enregistre les lignes reçues",
         "Force the end of receiving - Records the received lines",
         "Fuerza el final de recepción - Registre las líneas recibidas"}};
    for (const auto &ligne : lignes)
        QTest::newRow(ligne[0]) << QString::fromUtf8(ligne[0]) << QString::fromUtf8(ligne[1])
                                << QString::fromUtf8(ligne[2]) << QString::fromUtf8(ligne[3]);
}

void TestLegendes::Traduites()
{
    QFETCH(QString, controle);
    for (int langue = 0; langue < 3; ++langue) {
        Poste poste;
        poste.Demarre(langue);
        Em_Rc dialogue(nullptr);
        QTEST(Lu(controle.startsWith(QLatin1String("Em_Rc")) ? static_cast<QWidget &>(dialogue) : *frmPrinc)
                  .value(controle.section(u'/', -1)),
              langue == 0   ? "francais"
              : langue == 1 ? "anglais"
                            : "espagnol");
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
