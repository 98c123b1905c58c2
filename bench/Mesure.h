#pragma once

#include <QString>

#include <functional>

/// One figure of a benchmark, beside the bound that it must not pass.
struct Mesure
{
    QString quoi;
    double valeur;
    double borne;
};

/// Prints the figure in the table; false when it passes its bound.
bool Montre(const Mesure &mesure);

/// Seconds of processor that the calling thread has used so far.
double TempsProcesseur();

/// Memory of this process in bytes, as the system counts it, after unused memory has been given back.
qint64 MemoireResidente();

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
