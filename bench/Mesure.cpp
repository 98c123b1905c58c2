#include "Mesure.h"

#include "donnees/ParamCom.h"
#include "platform/serie/ReglagePort.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPlainTextEdit>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <malloc.h>
#include <unistd.h>

bool Montre(const Mesure &mesure)
{
    const bool tenue = mesure.jugee <= mesure.borne;
    const QString pair = std::isnan(mesure.pair) ? QStringLiteral("-") : QString::number(mesure.pair, 'f', 3);
    std::printf("%-62s %10.3f %10s %-16s %8.3f %8.3f  %s\n", qPrintable(mesure.quoi), mesure.programme,
                qPrintable(pair), qPrintable(mesure.nomPair), mesure.jugee, mesure.borne, tenue ? "held" : "MISSED");
    std::fflush(stdout);
    return tenue;
}

double TempsProcesseur()
{
    timespec temps{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &temps);
    return static_cast<double>(temps.tv_sec) + static_cast<double>(temps.tv_nsec) * 1e-9;
}

qint64 MemoireResidente()
{
    malloc_trim(0);
    QFile pages(QStringLiteral("/proc/self/statm"));
    if (!pages.open(QIODevice::ReadOnly))
        return 0;
    return pages.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

double Mediane(QList<double> valeurs)
{
    std::sort(valeurs.begin(), valeurs.end());
    return valeurs.at(valeurs.size() / 2);
}

double Mediane(int fois, const std::function<double()> &mesure)
{
    QList<double> valeurs(fois);
    std::generate(valeurs.begin(), valeurs.end(), mesure);
    return Mediane(valeurs);
}

double SecondesDe(const std::function<void()> &action)
{
    QElapsedTimer montre;
    montre.start();
    action();
    return static_cast<double>(montre.nsecsElapsed()) * 1e-9;
}

double DureeVoletNu(const QString &texte)
{
    QPlainTextEdit editeur;
    editeur.show();
    QCoreApplication::processEvents();
    return SecondesDe([&] {
        editeur.setPlainText(texte);
        QCoreApplication::processEvents();
    });
}

void ConfigureMachine(int vitesse)
{
    ParamCom = ConfigurationCom();
    ParamCom.NumPort = 2;
    ParamCom.NomPort = QStringLiteral("Com2");
    ParamCom.Vitesse = QString::number(vitesse);
    ParamCom.Parite = QStringLiteral("n");
    ParamCom.BitsDonnees = QStringLiteral("8");
    ParamCom.BitsArret = QStringLiteral("1");
    ParamCom.ControleFlux = static_cast<int>(ControleFlux::XonXoff);
    ParamCom.TypeFinTrans = FinTransEot;
    ParamCom.TypeFinLig = FinLigCrLf;
    ParamCom.TailleTamponRecep = 1024;
    ParamCom.TailleTamponEmis = 512;
    ParamCom.Echo = 1;
    EtatConf.fiche = EtatConfiguration::Entiere; // a sending asks about any other, and nobody answers here
    BatirChaines();
}

QString ProgrammeCN(int lignes)
{
    QString texte;
    for (int i = 1; i <= lignes; ++i)
        texte += QStringLiteral("N%1 G1 X%2 Z-%3\r\n").arg(i * 10).arg(i % 997 * 0.125, 0, 'f', 3).arg(i % 211);
    return texte;
}

Enfant::Enfant(const QStringList &arguments)
{
    m_processus.start(QCoreApplication::applicationFilePath(), arguments);
}

QList<double> Enfant::Chiffres(qsizetype nombre)
{
    m_processus.waitForFinished(-1);
    QList<double> chiffres;
    for (const QByteArray &chiffre : m_processus.readAllStandardOutput().simplified().split(' '))
        chiffres << chiffre.toDouble();
    return m_processus.exitCode() == 0 && chiffres.size() == nombre ? chiffres : QList<double>(nombre, qInf());
}

void Rend(const QList<double> &chiffres)
{
    for (const double chiffre : chiffres)
        std::printf("%.9g ", chiffre);
    std::fflush(stdout);
}
