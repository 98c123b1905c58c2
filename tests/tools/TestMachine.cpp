#include "Essais.h"
#include "machine/Banc.h"
#include "machine/MachineSimulee.h"
#include "machine/Options.h"
#include "platform/fichiers/FichierTexte.h"
#include "platform/serie/posix/LignePosix.h"

#include <QProcess>
#include <QTemporaryDir>

namespace {

QByteArray Lit(LignePosix &pc, qsizetype nombre)
{
    QByteArray lus;
    const bool venus = QTest::qWaitFor([&] { return (lus += pc.Lit(10000).octets).size() >= nombre; });
    return venus ? lus : "too few: " + lus;
}

bool Ecrit(LignePosix &pc, const QByteArray &octets)
{
    return pc.Ecrit(octets.constData(), int(octets.size())) == octets.size();
}

} // namespace

class TestMachine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void DecoupeChaines()
    {
        // Beginning and end chain, what comes, the programs in it; the last is what remains unfinished.
        const std::tuple<QByteArray, QByteArray, QByteArray, QByteArrayList> cas[] = {
            {"", "\4", "\4N1\r\n\4N2", {"", "N1\r\n", "N2"}},
            {"", "M30", "MM3M30M3", {"MM3", "M3"}},
            {"%\r", "\4", "\4%%\rN1\4N2", {"N1", ""}},
            {"%%", "%%", "%%%N%%", {"%N", ""}}}; // the end does not eat the beginning
        for (const auto &[debut, fin, flot, textes] : cas) {
            const auto passe = Passe(QString::fromLatin1(flot.toPercentEncoding()));
            Decoupe decoupe(debut, fin);
            QByteArrayList trouves;
            for (const char caractere : flot) {
                if (!decoupe.Ajoute(caractere))
                    continue;
                trouves += decoupe.Texte();
                decoupe.Vide();
            }
            QCOMPARE(trouves << decoupe.Texte(), textes);
        }
    }

    void OptionsFausses()
    {
        for (const char *faux : {"--fin 256", "--vitesse -1", "--bits 0", "--reglage 9600,x,8,1", "--retient 5,x",
                                 "--cloche 0", "--morceaux 0,5", "--tampon 10 --haut 11", "--coupe x"})
            QVERIFY_THROWS_EXCEPTION(OptionFausse,
                                     LitOptions((QStringLiteral("machine ") + QLatin1String(faux)).split(u' ')));
    }

    // A PC that does not listen to XOFF overruns the buffer; nothing else is lost.
    void RetientEtDeborde()
    {
        ReglageMachine reglage;
        reglage.Ligne = {0, 20};
        reglage.Tampon = {8, 6, 2, 0, {{5, -1}}};
        MachineSimulee machine(reglage);
        LignePosix pc(machine.Chemin());
        QVERIFY(Ecrit(pc, "123456789abcdef"));
        QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Recus == 15; }));
        machine.Reprend();
        QVERIFY(Ecrit(pc, "z\4"));
        QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Programmes == 1; }));
        const ProgrammeRecu programme = machine.Programmes()[0];
        QCOMPARE(programme.Texte, "123456789abcz");
        QCOMPARE(programme.Perdus, 3);
        QCOMPARE(machine.Etat().SuiteXoff, 10); // said at the fifth character, though all were written at once
        QCOMPARE(Lit(pc, 2), "\x13\x11");
    }

    // Held by the PC in the middle nothing more goes, and nothing is lost.
    void EmissionObeit()
    {
        ReglageMachine reglage;
        reglage.Ligne = {1'000'000, 20};
        MachineSimulee machine(reglage);
        LignePosix pc(machine.Chemin());
        pc.Regle(ReglagePort());
        const QByteArray texte = TousLesOctets().repeated(400);
        machine.Emet({texte});
        QByteArray recu = Lit(pc, 1);
        QVERIFY(Ecrit(pc, QByteArray(5, Xoff)));
        QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Envoi.XoffRecus == 5; }));
        const qint64 emis = machine.Etat().Envoi.Emis;
        QVERIFY(Ecrit(pc, QByteArray(1, Xoff)));
        QVERIFY(machine.Attend([](const EtatMachine &etat) { return etat.Envoi.XoffRecus == 6; }));
        QCOMPARE(machine.Etat().Envoi.Emis, emis);
        QVERIFY(Ecrit(pc, QByteArray(1, Xon)));
        recu += Lit(pc, texte.size() + 1 - recu.size());
        QCOMPARE(recu, texte + '\4');
        QVERIFY(machine.Etat().Envoi.Octets.isEmpty()); // XON and XOFF are no answer
    }

    // The program, as an operator uses it: a link, keys, stored files, and a clean end.
    void ProgrammeEntier()
    {
        const QTemporaryDir dossier;
        const auto chemin = [&dossier](const char *nom) { return dossier.filePath(QLatin1String(nom)); };
        EcritFichierTexte(chemin("001.txt"), QStringLiteral("N1\r\n"));
        EcritFichierTexte(chemin("outils.txt"), QStringLiteral("5 1 2 D"));
        QProcess machine;
        QByteArray sortie;
        const auto dit = [&](const char *ligne) {
            sortie += machine.readAllStandardOutput();
            return sortie.contains(ligne);
        };
        machine.setWorkingDirectory(dossier.path());
        machine.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../tools/machine/machine"),
                      QStringLiteral("--cloche 4 --vitesse 115200 --stockage . --lien Com2 --envoie 001.txt "
                                     "--banc outils.txt")
                          .split(u' '));
        QTRY_VERIFY(dit("Keys"));
        LignePosix pc(chemin("Com2"));
        QVERIFY(Ecrit(pc, "%\r\nN2\4"));
        QTRY_VERIFY(dit("Program received: 6 characters"));
        QTRY_VERIFY(dit("stored as 002.txt"));
        machine.write("h\nr\n e \n");
        QVERIFY(machine.waitForBytesWritten());
        QCOMPARE(Lit(pc, 7), "\x13\x11N1\r\n\4");
        QVERIFY(Ecrit(pc, "\4"));
        QTRY_VERIFY(dit("came back right"));
        machine.write("b\n");
        QVERIFY(machine.waitForBytesWritten());
        QCOMPARE(Lit(pc, Banc::TailleSalve + 1), Banc::Salve("5", "1", "2", "D").insert(3, '\a'));
        QTRY_VERIFY(dit("Tool 1 of 1: TN: 5"));
        machine.closeWriteChannel();
        machine.terminate();
        QVERIFY(machine.waitForFinished());
        QCOMPARE(machine.exitStatus(), QProcess::NormalExit);
        QCOMPARE(machine.exitCode(), 0);
        QVERIFY(!QFileInfo(chemin("Com2")).isSymLink());
        QCOMPARE(LitOctets(chemin("002.txt")), "%\r\nN2");
    }
};

QTEST_GUILESS_MAIN(TestMachine)
#include "TestMachine.moc"
