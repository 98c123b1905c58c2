#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "machine/MachineSimulee.h"
#include "platform/Boites.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QTest>

namespace {

const QString Dialogue = QStringLiteral("Em_Rc");
const QString Succes = QStringLiteral("Transfer finished successfully !");

} // namespace

/// A day of an operator, from the first start to the end, through menus, buttons, boxes and the line alone.
class TestSessionEmission : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Journee();

private:
    void EcritConfiguration(const Poste &poste, const QString &nom, const QByteArray &commentaire, int finLigne,
                            int typeEnvoi);
    void Emet(Operateur &operateur, bool jauges, const QString &fichier);
};

void TestSessionEmission::EcritConfiguration(const Poste &poste, const QString &nom, const QByteArray &commentaire,
                                             int finLigne, int typeEnvoi)
{
    poste.Ecrit(nom,
                "2\r\n\"Com2\"\r\n\"" + commentaire + "\"\r\n\"38400\"\r\n\"e\"\r\n\"7\"\r\n\"1\"\r\n1\r\n1\r\n1\r\n" +
                    QByteArray::number(finLigne) +
                    "\r\n512\r\n\"?\"\r\n1024\r\n512\r\n0\r\n0\r\n1\r\n1\r\n1\r\n\"\"\r\n0\r\n0\r\n\"%\"\r\n\"\"\r\n"
                    "\"\"\r\n1\r\n0\r\n0\r\n37\r\n 0 \r\n " +
                    QByteArray::number(typeEnvoi) + " \r\n");
}

void TestSessionEmission::Emet(Operateur &operateur, bool jauges, const QString &fichier)
{
    const QString titre = jauges ? QStringLiteral("Sending of a file Gauges Tools")
                                 : QStringLiteral("Sending of a program numerical control");
    const QString question = jauges ? titre : QStringLiteral("Confirm the sending of the program");
    operateur.Repond(titre,
                     titre + u'\r' +
                         (jauges ? QStringLiteral("Confirm the sending of a file Gauges Tools ") : question + u' ') +
                         fichier + QStringLiteral(" on the port Com2 ?"),
                     Boite::Question | Boite::OuiNon | Boite::SecondBouton, QMessageBox::Yes);
    operateur.Presse(Dialogue, QStringLiteral("Command2"));
    operateur.Presse(Dialogue, QStringLiteral("Command1"),
                     [] { return Operateur::Lu(QStringLiteral("Label2")) == Succes; });
    Operateur::Barre(jauges ? 11 : 9);
}

void TestSessionEmission::Journee()
{
    ReglageMachine reglage;
    reglage.Ligne = {38400, 20};
    reglage.Tampon = {256, 128, 32, 2000, {}}; // a small, slow control: it holds the PC again and again
    MachineSimulee machine(reglage);
    Poste poste;
    poste.Relie(2, machine.Chemin());
    EcritConfiguration(poste, QStringLiteral("Fraiseuse.par"), "Fraiseuse 3 axes", 0, 1);
    EcritConfiguration(poste, QStringLiteral("Tour.par"), "Tour", 0, 0);
    QByteArray piece;
    for (int bloc = 10; bloc < 400; bloc += 10)
        piece += "N" + QByteArray::number(bloc) + " G1 X" + QByteArray::number(bloc * 7 % 300) + "\r\n";
    const QString fraisage = poste.Ecrit(QStringLiteral("FRAISAGE.iso"), piece);

    // The first start, in English; a configuration, a program, and off it goes.
    Operateur operateur;
    operateur.Presse(QStringLiteral("FrmLangue"), QStringLiteral("Option2"));
    operateur.Presse(QStringLiteral("FrmLangue"), QStringLiteral("Command1"));
    poste.Demarre();
    operateur.Choisit(poste.Chemin(QStringLiteral("Fraiseuse.par")));
    Operateur::Barre(8);
    operateur.Choisit(fraisage);
    Operateur::Barre(1);
    Emet(operateur, false, QStringLiteral("FRAISAGE.iso"));
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }));
    QVERIFY(machine.Etat().XoffDits > 0);
    QCOMPARE(machine.Etat().Perdus, 0);
    QCOMPARE(machine.Programmes()[0].Brut, "%\n" + piece + "\x04");

    // He corrects it, saves it under another name, and sends it line by line to the lathe as a gauge file.
    frmPrinc->Text1->setSelStart(0);
    frmPrinc->Text1->setSelLength(int(piece.size()));
    Operateur::Menu(QStringLiteral("Mnu_Supprimer"));
    QTest::keyClicks(frmPrinc->Text1, QStringLiteral("D1 X12.5"));
    QTest::keyClick(frmPrinc->Text1, Qt::Key_Return);
    QTest::keyClicks(frmPrinc->Text1, QStringLiteral("M30"));
    operateur.Choisit(poste.Chemin(QStringLiteral("JAUGES.jau")));
    Operateur::Barre(2);
    QCOMPARE(poste.Lit(QStringLiteral("JAUGES.jau")), QByteArray("D1 X12.5\r\nM30\r\n"));
    QCOMPARE(poste.Lit(QStringLiteral("FRAISAGE.iso")), piece);
    operateur.Choisit(poste.Chemin(QStringLiteral("Tour.par")));
    Operateur::Menu(QStringLiteral("Mnu_ChargeConf"));
    Emet(operateur, true, QStringLiteral("JAUGES.jau"));
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 2; }));
    QCOMPARE(machine.Programmes()[1].Brut, QByteArray("%\nD1 X12.5\r\nM30\n\x04"));

    // A new program, begun and given up; home.
    operateur.Repond(QStringLiteral("New file ?"), QStringLiteral("New file\r\n        Confirm ? "),
                     Boite::Exclamation | Boite::OuiNon, QMessageBox::Yes);
    Operateur::Menu(QStringLiteral("Mnu_Nouveau"));
    QDir::setCurrent(poste.Dossier());
    QTest::keyClicks(frmPrinc->Text1, QStringLiteral("%O1"));
    operateur.Repond(QStringLiteral("Leave the editor of program numerical control"),
                     QStringLiteral("Modified file New.iso !\r\n            Record the file ? "),
                     Boite::Exclamation | Boite::OuiNon, QMessageBox::Yes);
    operateur.Repond(QStringLiteral("Leave the program"), QStringLiteral("Leave Dorvanel\r   Confirm  ?"),
                     Boite::Question | Boite::OuiNon | Boite::SecondBouton, QMessageBox::Yes);
    QTimer::singleShot(0, frmPrinc, [] { Operateur::Barre(6); });
    QCOMPARE(QApplication::exec(), 0);
    QCOMPARE(poste.Lit(QStringLiteral("New.iso")), QByteArray("%O1\r\n"));
}

QTEST_MAIN(TestSessionEmission)
#include "TestSessionEmission.moc"
