#pragma once

#include "machine/MachineSimulee.h"

#include <QProcess>

/// Another program at the PC's end of a simulated machine's line, as a shop would use it: XON/XOFF, 8 data bits, no
/// parity. The destructor kills it.
class Pair
{
public:
    enum Logiciel { Cat, AsciiXfr, PythonSerie };

    /// vitesse: of the line, bits per second.
    explicit Pair(Logiciel logiciel, int vitesse);
    ~Pair();
    Q_DISABLE_COPY_MOVE(Pair)

    /// Starts sending the file. The program may end long before the line has carried it all.
    void Emet(const QString &fichier);
    /// Starts receiving into the file. python3-serial takes one character at a time, until the end-of-transfer
    /// character.
    void Recoit(const QString &fichier);
    /// Waits until the program has ended by itself.
    void Attend() { m_processus.waitForFinished(-1); }

    MachineSimulee &Machine() { return m_machine; }
    static const char *NomDe(Logiciel logiciel);
    /// Processor seconds that it has used so far; 0 once it has ended.
    double Processeur() const;

private:
    void Lance(const QString &commande, const QString &fichier);

    const Logiciel m_logiciel;
    const int m_vitesse;
    MachineSimulee m_machine;
    QProcess m_processus;
};

/// The settings shared by the machines of all benchmarks. vitesse: bits per second.
ReglageMachine MachineDeMesure(int vitesse);
