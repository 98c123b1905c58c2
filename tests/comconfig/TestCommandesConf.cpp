#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QDir>
#include <QFileDialog>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The commands that a configuration enables: receiving, sending.
QList<bool> Actives()
{
    return {Operateur::Offre("Mnu_RecepProg"), frmPrinc->Bouton(10)->isEnabled(), Operateur::Offre("Mnu_EmisProgCN"),
            frmPrinc->Bouton(11)->isEnabled()};
}

} // namespace

class TestCommandesConf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Charge();
    void Erronee();

private:
    const QString m_complet = QString::fromUtf16(DONNEES) + u"/Complet.par"_s;
};

// Receiving needs a configuration, sending a file too; the file may come before or after. The dialog opens on the
// folder of configurations; cancelling it changes nothing.
void TestCommandesConf::Charge()
{
    for (const bool fichierDAbord : {false, true}) {
        const Poste poste(2);
        Operateur operateur;
        const QString programme = poste.Ecrit("P.iso", "G0");
        if (fichierDAbord)
            OuvreDocument(programme);
        DosConf = QDir::rootPath();
        operateur.Fait("CommonDialog", [](QWidget &fenetre) {
            auto &dialogue = dynamic_cast<QFileDialog &>(fenetre);
            QCOMPARE(dialogue.windowTitle(), u"Seleccionar una configuración de comunicación"_s);
            QCOMPARE(dialogue.selectedNameFilter(), u"Ficheros parámetros (*.par)"_s);
            QCOMPARE(dialogue.directory(), QDir(DosConf));
            dialogue.reject();
        });
        Operateur::Barre(8);
        QCOMPARE(QDir::current(), QDir(DosAppli));
        QCOMPARE(FicConf + NomConf + ParamCom.NomPort, QString());
        QCOMPARE(Actives(), QList<bool>({false, false, false, false}));

        operateur.Choisit(m_complet);
        Operateur::Menu("Mnu_ChargeConf");
        QCOMPARE(Actives(), QList<bool>({true, true, fichierDAbord, fichierDAbord}));
        OuvreDocument(programme);
        QCOMPARE(Actives(), QList<bool>({true, true, true, true}));
        QCOMPARE(FicConf + NomConf, m_complet + u"Complet.par"_s);
        QCOMPARE(frmPrinc->Label4->text() + frmPrinc->Label6->text(), u"Complet.parTour 2 axes, été €"_s);
        QCOMPARE(ParamCom.ChaineFinLig, u"\r\r\n"_s);
    }
}

// A file that breaks off: the record holds what was read, while menus, labels and derived strings stay as they were.
void TestCommandesConf::Erronee()
{
    const Poste poste(0);
    Operateur operateur;
    QFile complet(m_complet);
    QVERIFY(complet.open(QIODevice::ReadOnly));
    const QString courte = poste.Ecrit("Courte.par", complet.readAll().chopped(5)); // no last line
    for (const bool apresUneBonne : {false, true}) {
        if (apresUneBonne) {
            operateur.Choisit(m_complet);
            Operateur::Menu("Mnu_ChargeConf");
        }
        operateur.Choisit(courte);
        operateur.Repond("Fichier de configuration erroné ou de version antérieure !",
                         "Fichier de configuration de version antérieure !\rModifier et enregistrer de nouveau.",
                         Boite::Exclamation, QMessageBox::Ok);
        Operateur::Menu("Mnu_ChargeConf");
        QCOMPARE(Actives(), QList<bool>({apresUneBonne, apresUneBonne, false, false}));
        QCOMPARE(FicConf + NomConf, courte + u"Courte.par"_s);
        QCOMPARE(ParamCom.NomPort, u"Com3"_s);
        QCOMPARE(ParamCom.ChaineFinLig, apresUneBonne ? u"\r\r\n"_s : QString());
        QCOMPARE(ParamCom.TypeEnvoi, apresUneBonne ? 1 : 0);
        QCOMPARE(frmPrinc->Label4->text(), apresUneBonne ? u"Complet.par"_s : u"Aucun"_s);
    }
}

QTEST_MAIN(TestCommandesConf)
#include "TestCommandesConf.moc"
