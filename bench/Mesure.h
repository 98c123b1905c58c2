#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include <functional>

/// One measured figure with its bound, and the same figure of another program (the peer) beside it.
struct Mesure
{
    QString quoi;
    double programme; ///< figure of this program
    double pair;      ///< figure of the peer, NaN where there is no peer
    QString nomPair;
    double jugee; ///< figure compared with the bound
    double borne; ///< largest allowed value of jugee
};

/// Prints the row of the table; false when the figure exceeds its bound.
bool Montre(const Mesure &mesure);

/// Processor seconds that the calling thread has used so far.
double TempsProcesseur();

/// Resident memory of this process in bytes, after unused memory has been given back to the system.
qint64 MemoireResidente();

/// The median of the values.
double Mediane(QList<double> valeurs);

/// The median of fois results of mesure.
double Mediane(int fois, const std::function<double()> &mesure);

/// Seconds that action takes.
double SecondesDe(const std::function<void()> &action);

/// A CN program of lignes lines of about 25 characters, each ended by CR LF.
QString ProgrammeCN(int lignes);

/// Seconds that a bare text pane of Qt takes to show texte.
double DureeVoletNu(const QString &texte);

/// Sets ParamCom for a simulated machine on Com2 with XON/XOFF and EOT. vitesse: bits per second.
void ConfigureMachine(int vitesse);

/// A run of the same benchmark in another process, with its role and further values as arguments. It starts in the
/// constructor, so that several can run side by side.
class Enfant
{
public:
    explicit Enfant(const QStringList &arguments);
    /// Waits for its end and returns the nombre figures that it printed with Rend(); infinite ones when it failed.
    QList<double> Chiffres(qsizetype nombre);

private:
    QProcess m_processus;
};

/// Prints the figures for the process that started this one.
void Rend(const QList<double> &chiffres);
