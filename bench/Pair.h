#pragma once

#include "machine/MachineSimulee.h"

#include <QProcess>

/// Another program at the PC's end of a simulated machine's line, as a shop would use it: XON/XOFF, 8 data bits, no
/// parity. It starts with the construction and is killed with the destruction.
class Pair
{
public:
    enum Logiciel { Cat, AsciiXfr, PythonSerie };

    /// vitesse: of the machine's line, bits per second.
    explicit Pair(Logiciel logiciel, int vitesse);
    ~Pair();
    Q_DISABLE_COPY_MOVE(Pair)

    /// Sends the file; it may have ended long before the line has carried it.
    void Emet(const QString &fichier);
    /// Receives into the file, python3-serial one character at a time and until the end-of-transfer character.
    void Recoit(const QString &fichier);
    /// Waits until it has ended by itself.
    void Attend() { m_processus.waitForFinished(-1); }

    MachineSimulee &Machine() { return m_machine; }
    static const char *NomDe(Logiciel logiciel);
    /// Seconds of processor that it has used so far, 0 once it has ended.
    double Processeur() const;

private:
    void Lance(const QString &commande, const QString &fichier);

    const Logiciel m_logiciel;
    const int m_vitesse;
    MachineSimulee m_machine;
    QProcess m_processus;
};

/// What the benchmarks' machines have in common.
ReglageMachine MachineDeMesure(int vitesse);
