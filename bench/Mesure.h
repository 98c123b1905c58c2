#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

/// One figure of a benchmark with its bound, and the peer that it stands beside.
struct Mesure
{
    QString quoi;
    double programme; ///< what the program needs
    double pair;      ///< what the peer needs for the same, NaN where there is nothing to compare
    QString nomPair;
    double jugee; ///< the figure that the bound is on
    double borne; ///< the most that it may be
};

/// Prints the figure in the table; false when it passes its bound.
bool Montre(const Mesure &mesure);

/// Seconds of processor that the calling thread has used so far.
double TempsProcesseur();

/// Memory of this process in bytes, as the system counts it, after unused memory has been given back.
qint64 MemoireResidente();

/// The middle one of the values.
double Mediane(QList<double> valeurs);

/// The middle one of the values that mesure gives in fois runs.
double Mediane(int fois, const std::function<double()> &mesure);

/// Seconds that action takes.
double SecondesDe(const std::function<void()> &action);

/// A CN program of that many lines of about 25 characters, CR LF behind each.
QString ProgrammeCN(int lignes);

/// Seconds that a bare text pane of Qt takes to show texte.
double DureeVoletNu(const QString &texte);

/// ParamCom becomes a configuration for a simulated machine on Com2 with XON/XOFF and EOT. vitesse: bits per second.
void ConfigureMachine(int vitesse);

/// A run of this same benchmark in a process of its own, with its role and the rest as arguments. It starts with the
/// construction, so that several may run side by side.
class Enfant
{
public:
    explicit Enfant(const QStringList &arguments);
    /// Waits for its end and gives the figures that it has printed with Rend(); infinite ones when it has failed.
    QList<double> Chiffres(qsizetype nombre);

private:
    QProcess m_processus;
};

/// Prints the figures for the process that waits for them.
void Rend(const QList<double> &chiffres);
