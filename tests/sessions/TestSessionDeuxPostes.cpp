#include "Operateur.h"
#include "Poste.h"

#include "comconfig/ParamCom.h"
#include "machine/MachineSimulee.h"
#include "platform/MSComm.h"
#include "shell/Arrivee.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "transfer/PortCom.h"

#include <QProcess>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Two copies of the program, each a process of its own, on two ports of one PC and one application folder.
class TestSessionDeuxPostes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CoteACote();

private:
    static void Emet(Operateur &operateur, int port, const std::function<void()> &pendant);
    static void JoueSeconde(const QString &dossier);
};

namespace {

constexpr char Role[] = "DORVANEL_SECONDE_COPIE";
const QByteArray Programmes[] = {QByteArray("G1 X1\r\n").repeated(200), QByteArray("G2 Z-2\r\n").repeated(150)};

} // namespace

void TestSessionDeuxPostes::Emet(Operateur &operateur, int port, const std::function<void()> &pendant)
{
    ParamCom.TypeEnvoi = 1; // to the end of the file: the text as it is
    const QString titre = u"Sending of a program numerical control"_s;
    operateur.Repond(
        titre, titre + u"\rConfirm the sending of the program %1 on the port Com%2 ?"_s.arg(TitreFichier).arg(port),
        Operateur::Demande, QMessageBox::Yes);
    operateur.Presse("Em_Rc", "Command2");
    operateur.Presse("Em_Rc", "Command1", [&] {
        pendant();
        return Operateur::Lu("Label2") == u"Transfer finished successfully !";
    });
    Operateur::Barre(9);
}

/// The second copy: the port of the first is held; with the first one's configuration it makes its own for Com3.
void TestSessionDeuxPostes::JoueSeconde(const QString &dossier)
{
    const Poste poste(1);
    Operateur operateur;
    frmPrinc->MSComm1->setDossierPorts(dossier + u"/Ports"_s);
    OuvreFichier(dossier + u"/Machine.par"_s);
    operateur.Repond("Error N°:  8005Closing of the port of communication", "Already open port", Boite::Critique,
                     QMessageBox::Ok);
    OuvrePortCOM();
    ParamCom.NumPort = 3;
    ParamCom.NomPort = u"Com3"_s;
    EcrireFichierPar(dossier + u"/Seconde.par"_s);
    OuvreDocument(poste.Ecrit("SECONDE.iso", Programmes[1]));
    Emet(operateur, 3, [] {});
}

// The first sending is held by its machine until the second copy has done its own: neither waits for the other, and
// each machine gets its own program.
void TestSessionDeuxPostes::CoteACote()
{
    if (qEnvironmentVariableIsSet(Role)) {
        JoueSeconde(qEnvironmentVariable(Role));
        return;
    }
    MachineSimulee machines[2];
    const Poste poste(1);
    Operateur operateur;
    poste.Relie(2, machines[0].Chemin());
    poste.Relie(3, machines[1].Chemin());
    poste.Charge(Programmes[0]);
    qputenv(Role, poste.Dossier().toUtf8());
    QProcess seconde;
    seconde.setProcessChannelMode(QProcess::ForwardedChannels);
    Emet(operateur, 2, [&] {
        if (seconde.program().isEmpty() && machines[0].Etat().Recus > 0) {
            machines[0].Retient();
            seconde.start(QCoreApplication::applicationFilePath(), {});
        } else if (seconde.state() == QProcess::NotRunning) {
            machines[0].Reprend();
        }
    });
    QCOMPARE(seconde.exitCode(), 0);
    for (int i = 0; i < 2; ++i) {
        QVERIFY(machines[i].Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }));
        QCOMPARE(machines[i].Programmes()[0].Texte, Programmes[i]);
    }
    QVERIFY(machines[1].Programmes()[0].Dernier < machines[0].Programmes()[0].Dernier);
    OuvreFichier(poste.Chemin(u"Seconde.par"_s));
    QCOMPARE(ParamCom.NomPort + frmPrinc->Label4->text(), u"Com3Seconde.par"_s);
}

QTEST_MAIN(TestSessionDeuxPostes)
#include "TestSessionDeuxPostes.moc"
