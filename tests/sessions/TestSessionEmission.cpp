#include "Operateur.h"
#include "Poste.h"

#include "machine/MachineSimulee.h"
#include "shell/FrmPrinc.h"

#include <QApplication>
#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// A day of an operator, from the first start to the end, through menus, buttons, boxes and the line alone.
class TestSessionEmission : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Journee();
};

namespace {

QString EcritConfiguration(const Poste &poste, const QString &nom, int typeEnvoi)
{
    return poste.Ecrit(
        nom, "2\r\n\"Com2\"\r\n\"Atelier\"\r\n\"38400\"\r\n\"e\"\r\n\"7\"\r\n\"1\"\r\n1\r\n1\r\n1\r\n0\r\n512\r\n"
             "\"?\"\r\n1024\r\n512\r\n0\r\n0\r\n1\r\n1\r\n1\r\n\"\"\r\n0\r\n0\r\n\"%\"\r\n\"\"\r\n\"\"\r\n1\r\n0\r\n"
             "0\r\n37\r\n 0 \r\n " +
                 QByteArray::number(typeEnvoi) + " \r\n");
}

void Emet(Operateur &operateur, int bouton, const QString &titre, const QString &question)
{
    operateur.Repond(titre, titre + u'\r' + question, Operateur::Demande, QMessageBox::Yes);
    operateur.Presse("Em_Rc", "Command2");
    operateur.Presse("Em_Rc", "Command1",
                     [] { return Operateur::Lu("Label2") == u"Transfer finished successfully !"; });
    Operateur::Barre(bouton);
}

} // namespace

void TestSessionEmission::Journee()
{
    ReglageMachine reglage;
    reglage.Ligne = {38400, 20};
    reglage.Tampon = {256, 128, 32, 2000, {}}; // a small, slow control: it holds the PC again and again
    MachineSimulee machine(reglage);
    Poste poste;
    poste.Relie(2, machine.Chemin());
    const QString fraiseuse = EcritConfiguration(poste, u"Fraiseuse.par"_s, 1);
    const QString tour = EcritConfiguration(poste, u"Tour.par"_s, 0);
    QByteArray piece;
    for (int bloc = 10; bloc < 400; bloc += 10)
        piece += "N" + QByteArray::number(bloc) + " G1 X" + QByteArray::number(bloc * 7 % 300) + "\r\n";
    const QString fraisage = poste.Ecrit("FRAISAGE.iso", piece);

    // The first start, in English; a configuration, a program, and off it goes.
    Operateur operateur;
    operateur.Presse("FrmLangue", "Option2");
    operateur.Presse("FrmLangue", "Command1");
    poste.Demarre();
    operateur.Choisit(fraiseuse);
    Operateur::Barre(8);
    operateur.Choisit(fraisage);
    Operateur::Barre(1);
    Emet(operateur, 9, u"Sending of a program numerical control"_s,
         u"Confirm the sending of the program FRAISAGE.iso on the port Com2 ?"_s);
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }));
    QVERIFY(machine.Etat().XoffDits > 0);
    QCOMPARE(machine.Etat().Perdus, 0);
    QCOMPARE(machine.Programmes()[0].Brut, "%\n" + piece + "\x04");

    // He corrects it, saves it under another name, and sends it line by line to the lathe as a gauge file.
    frmPrinc->Text1->setSelStart(0);
    frmPrinc->Text1->setSelLength(int(piece.size()));
    Operateur::Menu("Mnu_Supprimer");
    QTest::keyClicks(frmPrinc->Text1, u"D1 X12.5"_s);
    QTest::keyClick(frmPrinc->Text1, Qt::Key_Return);
    QTest::keyClicks(frmPrinc->Text1, u"M30"_s);
    operateur.Choisit(poste.Chemin("JAUGES.jau"));
    Operateur::Barre(2);
    QCOMPARE(poste.Lit("JAUGES.jau"), QByteArray("D1 X12.5\r\nM30\r\n"));
    QCOMPARE(poste.Lit("FRAISAGE.iso"), piece);
    operateur.Choisit(tour);
    Operateur::Menu("Mnu_ChargeConf");
    Emet(operateur, 11, u"Sending of a file Gauges Tools"_s,
         u"Confirm the sending of a file Gauges Tools JAUGES.jau on the port Com2 ?"_s);
    QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 2; }));
    QCOMPARE(machine.Programmes()[1].Brut, QByteArray("%\nD1 X12.5\r\nM30\n\x04"));

    // A new program, begun and given up; home.
    operateur.Repond("New file ?", "New file\r\n        Confirm ? ", Operateur::DemandeSimple, QMessageBox::Yes);
    Operateur::Menu("Mnu_Nouveau");
    QDir::setCurrent(poste.Dossier());
    QTest::keyClicks(frmPrinc->Text1, u"%O1"_s);
    operateur.Repond("Leave the editor of program numerical control",
                     "Modified file New.iso !\r\n            Record the file ? ", Operateur::DemandeSimple,
                     QMessageBox::Yes);
    operateur.Repond("Leave the program", "Leave Dorvanel\r   Confirm  ?", Operateur::Demande, QMessageBox::Yes);
    QTimer::singleShot(0, frmPrinc, [] { Operateur::Barre(6); });
    QCOMPARE(QApplication::exec(), 0);
    QCOMPARE(poste.Lit("New.iso"), QByteArray("%O1\r\n"));
}

QTEST_MAIN(TestSessionEmission)
#include "TestSessionEmission.moc"
