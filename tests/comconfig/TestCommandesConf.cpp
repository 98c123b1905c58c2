#include "Etabli.h"

#include "comconfig/ParamCom.h"
#include "platform/FichierTexte.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QFileDialog>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a configuration enables (reception, sending) and shows, and the end of line in force.
QString EnService()
{
    QString actives;
    for (const bool active : {Operateur::Offre("Mnu_RecepProg"), frmPrinc->Bouton(10)->isEnabled(),
                              Operateur::Offre("Mnu_EmisProgCN"), frmPrinc->Bouton(11)->isEnabled()})
        actives += active ? u'1' : u'0';
    return actives + u' ' + frmPrinc->Label4->text() + u' ' + frmPrinc->Label6->text() + u' ' + ParamCom.ChaineFinLig;
}

} // namespace

class TestCommandesConf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Receiving needs a configuration, sending a program too, which may come before or after. The dialog opens on the
    // folder of configurations; cancelling it changes nothing. A file that breaks off is in the record as far as it
    // goes, and what was in service stays so.
    void Charge()
    {
        for (const bool programmeDAbord : {false, true}) {
            Etabli e;
            const QString programme = e.Ecrit("P.iso", "G0");
            const QString courte = e.Ecrit("Courte.par", LitOctets(e.complet).chopped(5)); // no last line
            if (programmeDAbord)
                OuvreDocument(programme);
            DosConf = QDir::rootPath();
            e.Fait("CommonDialog", [](QWidget &fenetre) {
                auto &dialogue = dynamic_cast<QFileDialog &>(fenetre);
                QCOMPARE(dialogue.windowTitle(), u"Sélectionner une configuration de communication"_s);
                QCOMPARE(dialogue.selectedNameFilter(), u"Fichiers paramètres (*.par)"_s);
                QCOMPARE(dialogue.directory(), QDir(DosConf));
                dialogue.reject();
            });
            Operateur::Barre(8);
            QCOMPARE(QDir::current(), QDir(DosAppli));
            QCOMPARE(FicConf + NomConf + ParamCom.NomPort, QString());
            e.ChoisitAncien(courte);
            Operateur::Menu("Mnu_ChargeConf");
            QCOMPARE(EnService(), u"0000 Aucun Aucun "_s);
            QCOMPARE(FicConf + NomConf + ParamCom.NomPort, courte + u"Courte.parCom3"_s);
            QCOMPARE(ParamCom.TypeEnvoi, 0);

            e.Choisit(e.complet);
            Operateur::Menu("Mnu_ChargeConf");
            const QString suite = u" Complet.par Tour 2 axes, été € \r\r\n"_s;
            QCOMPARE(EnService(), (programmeDAbord ? u"1111"_s : u"1100"_s) + suite);
            OuvreDocument(programme);
            QCOMPARE(EnService(), u"1111"_s + suite);
            e.ChoisitAncien(courte);
            Operateur::Menu("Mnu_ChargeConf");
            QCOMPARE(EnService() + NomConf, u"1111"_s + suite + u"Courte.par"_s);
        }
    }
};

QTEST_MAIN(TestCommandesConf)
#include "TestCommandesConf.moc"
