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
    bool XonXoff = true;     ///< says XON and XOFF, and obeys them while it sends
};

/// A program that the machine has received.
struct ProgrammeRecu
{
    QByteArray Texte;      ///< between the two chains, byte for byte
    QByteArray Brut;       ///< all that came since the program before, chains included
    qint64 Caracteres = 0; ///< what the line carried for it, the characters lost in the buffer included
    qint64 Perdus = 0;     ///< the characters lost
    int XoffDits = 0;      ///< how often the machine held the PC meanwhile
    Instant Premier;       ///< the first character begins on the line
    Instant Dernier;       ///< the last one is whole
};

/// What the PC answered to a sending of the machine: it gives the end-of-transfer chain back.
enum class Retour {
    Aucun,   ///< the machine has sent nothing yet, or a burst of a bench, which has no answer
    Attendu, ///< the chain has not, or not wholly, come back
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

/// What the machine counts, at one moment. Counts run from switching on.
struct EtatMachine
{
    qint64 Recus = 0;         ///< characters that the line brought to the buffer
    qint64 Perdus = 0;        ///< of these, lost because the buffer was full
    int Niveau = 0;           ///< characters in the buffer now
    bool Retenu = false;      ///< XOFF was said, and no XON since
    int XoffDits = 0;         ///< XOFF said
    int XonDits = 0;          ///< XON said
    qint64 SuiteXoff = 0;     ///< characters that came after the last XOFF and before its XON
    qint64 SuiteXoffMax = 0;  ///< the most that came after any XOFF
    qsizetype Programmes = 0; ///< programs received whole
    QByteArray EnCours;       ///< what has come of the next one, chains included
    EtatEnvoi Envoi;
};

/// Is told what happens, from the machine's own thread, one call at a time. Must not switch the machine off.
class TemoinMachine
{
public:
    virtual ~TemoinMachine() = default;
    virtual void XoffDit(qint64 /*recus*/) {}
    virtual void XonDit(qint64 /*suite: characters that came after the XOFF*/) {}
    virtual void Deborde(qint64 /*recus*/) {} ///< once for each run of lost characters
    virtual void ProgrammeComplet(const ProgrammeRecu & /*programme*/) {}
    virtual void EmissionFinie(const EtatEnvoi & /*envoi*/) {}
    virtual void ReponseVenue(Retour /*reponse*/, const QByteArray & /*octets*/) {}
};

/// A machine tool control at the end of a serial line: it takes and gives characters when a real line would, holds the
/// PC with XOFF, loses what its buffer cannot hold, and keeps every program that it receives.
///
/// It lives in a thread of its own, so that its timing does not hang on the caller's. All functions may be called from
/// any thread. What the machine keeps is what the line carried: while it receives, XON and XOFF are characters like
/// any.
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

    /// The operator holds the machine: XOFF is on the line when this returns, and what still comes fills the buffer.
    void Retient();
    /// The operator lets it go on; XON follows once the buffer has emptied to its low mark.
    void Reprend();
    /// The operator's reset: what the line has brought of an unfinished program is dropped, a sending ends.
    void RemetAZero();
    /// Sends, from now on; a sending under way ends. What the PC answers to a program is compared with the
    /// end-of-transfer chain.
    void Emet(const Envoi &envoi);
    /// Switches the machine off: the line is dead for the PC. What was received stays readable here.
    void Arrete();

    EtatMachine Etat() const;
    std::vector<ProgrammeRecu> Programmes() const;
    /// Waits until the condition holds, at most that many milliseconds, and says whether it does. The condition is
    /// tried at each step of the machine and must not call it.
    bool Attend(const std::function<bool(const EtatMachine &)> &condition, int millisecondes = 10000) const;
    /// The line time of that many characters.
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
    Cadence m_ligne;        // of the characters that come
    bool m_occupee = false; // the line is carrying a character
    TamponRecep m_tampon;
    Decoupe m_decoupe;
    ProgrammeRecu m_enCours;
    std::vector<ProgrammeRecu> m_programmes;
    std::optional<EmissionMachine> m_emission;
    EtatEnvoi m_envoi;
    bool m_bloquee = false; // the system takes no more for the PC
    bool m_deborde = false; // the last character was lost
    QByteArray m_aDire;     // XON and XOFF that the system has not taken yet
    std::vector<std::function<void(TemoinMachine &)>> m_annonces;

    std::thread m_fil; // the last member: it uses all the others
};
