#pragma once

#include "machine/Decoupe.h"
#include "machine/EmissionMachine.h"
#include "machine/PaireTerminaux.h"
#include "machine/Reveil.h"
#include "machine/TamponRecep.h"

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

struct ReglageMachine
{
    ReglageLigne Ligne;
    ReglageTampon Tampon;
    QByteArray Debut;        ///< beginning chain; empty: a program begins with its first character
    QByteArray Fin = "\x04"; ///< end-of-transfer chain
    bool XonXoff = true;     ///< sends XON and XOFF, and obeys them
};

/// A program that the machine has received.
struct ProgrammeRecu
{
    QByteArray Texte;      ///< between the two chains, byte for byte
    QByteArray Brut;       ///< everything since the previous program, chains included
    qint64 Caracteres = 0; ///< characters on the line for it, including those lost in the buffer
    qint64 Perdus = 0;     ///< the characters lost
    int XoffDits = 0;      ///< number of XOFF sent meanwhile
    Instant Premier;       ///< beginning of the first character on the line
    Instant Dernier;       ///< end of the last character
};

/// The PC's answer to a sending of the machine, which should be the end-of-transfer chain.
enum class Retour {
    Aucun,   ///< no answer is expected: nothing was sent yet, or a burst of a bench
    Attendu, ///< the chain has not come back yet, or only in part
    Juste,   ///< exactly the chain came back
    Faux     ///< something else came
};

/// The last sending of the machine.
struct EtatEnvoi
{
    bool EnCours = false; ///< characters remain to be sent
    qint64 Emis = 0;      ///< characters sent
    int XoffRecus = 0;    ///< XOFF taken from the PC
    Retour Reponse = Retour::Aucun;
    QByteArray Octets; ///< what the PC sent back
};

/// The state and the counters of the machine at one moment. Counters start at switching on.
struct EtatMachine
{
    qint64 Recus = 0;         ///< characters that arrived on the line
    qint64 Perdus = 0;        ///< of these, lost because the buffer was full
    int Niveau = 0;           ///< characters in the buffer now
    bool Retenu = false;      ///< XOFF was sent, and no XON since
    int XoffDits = 0;         ///< number of XOFF sent
    int XonDits = 0;          ///< number of XON sent
    qint64 SuiteXoff = 0;     ///< characters that came after the last XOFF and before its XON
    qint64 SuiteXoffMax = 0;  ///< the most that came after any XOFF
    qsizetype Programmes = 0; ///< programs received whole
    QByteArray EnCours;       ///< received part of the next program, chains included
    EtatEnvoi Envoi;
};

/// Is called for each event, from the machine's own thread, one call at a time. Must not switch the machine off.
class TemoinMachine
{
public:
    virtual ~TemoinMachine() = default;
    virtual void XoffDit(qint64 /*recus*/) {}
    virtual void XonDit(qint64 /*suite: characters that came after the XOFF*/) {}
    virtual void Deborde(qint64 /*recus*/) {} ///< once for each series of lost characters
    virtual void ProgrammeComplet(const ProgrammeRecu & /*programme*/) {}
    virtual void EmissionFinie(const EtatEnvoi & /*envoi*/) {}
    virtual void ReponseVenue(Retour /*reponse*/, const QByteArray & /*octets*/) {}
};

/// A simulated machine tool at the end of a serial line. It takes and sends characters with the timing of a real line,
/// holds the PC with XOFF, loses what its buffer cannot hold, and keeps every program that it receives.
///
/// It has a thread of its own, so that its timing does not depend on the caller's. All functions may be called from any
/// thread. It keeps exactly what the line carried: received XON and XOFF are characters like any other.
class MachineSimulee
{
public:
    /// Switches on. temoin must outlive the machine. Raises std::system_error when the system gives no terminal.
    explicit MachineSimulee(const ReglageMachine &reglage = {}, TemoinMachine *temoin = nullptr);
    /// Switches off.
    ~MachineSimulee();
    Q_DISABLE_COPY_MOVE(MachineSimulee)

    /// The device that the PC opens.
    QString Chemin() const { return m_cable.Chemin(); }

    /// Holds the machine, as its operator would: XOFF is on the line when this returns, and what still comes fills the
    /// buffer.
    void Retient();
    /// Lets the machine go on. XON follows once the buffer has emptied to its low mark.
    void Reprend();
    /// Resets the machine, as its operator would: an unfinished program is dropped, a sending ends.
    void RemetAZero();
    /// Starts a sending, and ends one under way. The PC's answer to a program is compared with the end-of-transfer
    /// chain.
    void Emet(const Envoi &envoi);
    /// Switches the machine off: the line is dead for the PC. Received programs can still be read here.
    void Arrete();

    EtatMachine Etat() const;
    std::vector<ProgrammeRecu> Programmes() const;
    /// Waits until the condition is true, at most millisecondes, and returns whether it is. The condition is tested at
    /// each step of the machine and must not call it.
    bool Attend(const std::function<bool(const EtatMachine &)> &condition, int millisecondes = 10000) const;
    /// The line time of nombre characters.
    Duree TempsLigne(qint64 nombre) const { return Cadence(m_reglage.Ligne).Temps(nombre); }

private:
    void Tourne();
    void Recoit(Instant t);
    void Prend(char caractere, Instant fin);
    void Range(char caractere, Instant fin);
    void Acheve();
    void Juge(char caractere, Instant fin);
    void Envoie(Instant t);
    void Parle();
    void Annonce(const std::function<void(TemoinMachine &)> &annonce);
    void Publie(std::unique_lock<std::mutex> &verrou);
    void Dort(std::unique_lock<std::mutex> &verrou);
    std::optional<Instant> Echeance() const;
    EtatMachine EtatActuel() const;

    const ReglageMachine m_reglage;
    TemoinMachine *const m_temoin;
    PaireTerminaux m_cable;
    Reveil m_reveil;
    std::atomic<bool> m_arret = false;

    mutable std::mutex m_verrou; // guards all that follows
    mutable std::condition_variable m_change;
    Cadence m_ligne;        // timing of the received characters
    bool m_occupee = false; // the line is carrying a character
    TamponRecep m_tampon;
    Decoupe m_decoupe;
    ProgrammeRecu m_enCours;
    std::vector<ProgrammeRecu> m_programmes;
    std::optional<EmissionMachine> m_emission;
    EtatEnvoi m_envoi;
    bool m_bloquee = false; // the system's buffer towards the PC is full
    bool m_deborde = false; // the last character was lost
    QByteArray m_aDire;     // XON and XOFF still to be sent
    std::vector<std::function<void(TemoinMachine &)>> m_annonces;

    std::thread m_fil; // the last member: it uses all the others
};
