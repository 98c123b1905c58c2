#include "machine/MachineSimulee.h"

#include <poll.h>

#include <algorithm>
#include <array>
#include <utility>

MachineSimulee::MachineSimulee(const ReglageMachine &reglage, TemoinMachine *temoin)
    : m_reglage(reglage)
    , m_temoin(temoin)
    , m_ligne(reglage.Ligne)
    , m_tampon(reglage.Tampon)
    , m_decoupe(reglage.Debut, reglage.Fin)
    , m_fil(&MachineSimulee::Tourne, this)
{
}

MachineSimulee::~MachineSimulee()
{
    Arrete();
}

void MachineSimulee::Retient()
{
    {
        const std::lock_guard verrou(m_verrou);
        Recoit(HorlogeMachine::now()); // the machine's thread may be late; these characters came before the XOFF
        m_tampon.Retient();
        Parle();
    }
    m_reveil.Sonne();
}

void MachineSimulee::Reprend()
{
    {
        const std::lock_guard verrou(m_verrou);
        m_tampon.Reprend(HorlogeMachine::now());
        Parle();
    }
    m_reveil.Sonne();
}

void MachineSimulee::RemetAZero()
{
    const std::lock_guard verrou(m_verrou);
    Recoit(HorlogeMachine::now()); // the machine's thread may be late; these characters came before the reset
    m_decoupe.Vide();
    m_enCours = {};
    m_emission.reset();
    m_envoi = {};
    m_bloquee = false;
}

void MachineSimulee::Emet(const Envoi &envoi)
{
    {
        const std::lock_guard verrou(m_verrou);
        m_emission.emplace(envoi, m_reglage.Debut, m_reglage.Fin, m_reglage.Ligne, HorlogeMachine::now());
        m_envoi = {true, 0, 0, envoi.Salve ? Retour::Aucun : Retour::Attendu, {}};
        m_bloquee = false;
    }
    m_reveil.Sonne();
}

void MachineSimulee::Arrete()
{
    m_arret = true;
    m_reveil.Sonne();
    if (m_fil.joinable())
        m_fil.join();
    const std::lock_guard verrou(m_verrou);
    m_cable.Ferme();
}

EtatMachine MachineSimulee::Etat() const
{
    const std::lock_guard verrou(m_verrou);
    return EtatActuel();
}

EtatMachine MachineSimulee::EtatActuel() const
{
    return {m_tampon.Recus(),
            m_tampon.Perdus(),
            m_tampon.Niveau(),
            m_tampon.Retenu(),
            m_tampon.XoffDits(),
            m_tampon.XonDits(),
            m_tampon.SuiteXoff(),
            m_tampon.SuiteXoffMax(),
            qsizetype(m_programmes.size()),
            m_decoupe.Brut(),
            m_envoi};
}

std::vector<ProgrammeRecu> MachineSimulee::Programmes() const
{
    const std::lock_guard verrou(m_verrou);
    return m_programmes;
}

bool MachineSimulee::Attend(const std::function<bool(const EtatMachine &)> &condition, int millisecondes) const
{
    std::unique_lock verrou(m_verrou);
    return m_change.wait_for(verrou, std::chrono::milliseconds(millisecondes), [&] { return condition(EtatActuel()); });
}

void MachineSimulee::Tourne()
{
    std::unique_lock verrou(m_verrou);
    while (!m_arret) {
        const Instant t = HorlogeMachine::now();
        Recoit(t);
        m_tampon.Avance(t);
        Parle();
        Envoie(t);
        m_change.notify_all();
        Publie(verrou);
        Dort(verrou);
    }
}

void MachineSimulee::Recoit(Instant t)
{
    if (!m_occupee || m_ligne.SansDelai())
        m_ligne.Debute(t);
    m_occupee = m_cable.ALire();
    for (qint64 echus = m_ligne.Echus(t); m_occupee && echus > 0; m_occupee = m_cable.ALire()) {
        // Reads no further than a mark of the buffer, so that XOFF is sent before the next character is looked at.
        const QByteArray lus = m_cable.Lit(std::min(echus, m_tampon.JusquaMarque()));
        for (const char caractere : lus) {
            m_ligne.Passe(1);
            Prend(caractere, m_ligne.Fin(0));
        }
        Parle();
        echus -= lus.size();
    }
}

void MachineSimulee::Prend(char caractere, Instant fin)
{
    if (m_emission || m_envoi.Reponse == Retour::Attendu)
        Juge(caractere, fin);
    else
        Range(caractere, fin);
}

void MachineSimulee::Range(char caractere, Instant fin)
{
    if (m_enCours.Caracteres++ == 0)
        m_enCours.Premier = fin - m_ligne.Temps(1);
    m_enCours.Dernier = fin;
    const bool perdu = !m_tampon.Recoit(fin);
    if (perdu && !m_deborde)
        Annonce([recus = m_tampon.Recus()](TemoinMachine &temoin) { temoin.Deborde(recus); });
    m_deborde = perdu;
    if (perdu)
        ++m_enCours.Perdus;
    else if (m_decoupe.Ajoute(caractere))
        Acheve();
}

void MachineSimulee::Acheve()
{
    m_enCours.Texte = m_decoupe.Texte();
    m_enCours.Brut = m_decoupe.Brut();
    m_programmes.push_back(m_enCours);
    Annonce([programme = m_enCours](TemoinMachine &temoin) { temoin.ProgrammeComplet(programme); });
    m_enCours = {};
    m_decoupe.Vide();
}

void MachineSimulee::Juge(char caractere, Instant fin)
{
    if (m_reglage.XonXoff && (caractere == Xoff || caractere == Xon)) {
        m_envoi.XoffRecus += caractere == Xoff ? 1 : 0;
        if (m_emission)
            m_emission->Retient(caractere == Xoff, fin);
        return;
    }
    m_envoi.Octets += caractere;
    if (m_envoi.Reponse != Retour::Attendu)
        return;
    if (m_envoi.Octets == m_reglage.Fin)
        m_envoi.Reponse = Retour::Juste;
    else if (!m_reglage.Fin.startsWith(m_envoi.Octets))
        m_envoi.Reponse = Retour::Faux;
    else
        return;
    Annonce([envoi = m_envoi](TemoinMachine &temoin) { temoin.ReponseVenue(envoi.Reponse, envoi.Octets); });
}

void MachineSimulee::Envoie(Instant t)
{
    if (!m_emission)
        return;
    if (m_bloquee)
        m_emission->Repart(t);
    const QByteArray echu = m_emission->Echu(t);
    const qint64 partis = m_cable.Ecrit(echu);
    m_emission->Parti(partis);
    m_bloquee = partis < echu.size();
    m_envoi.Emis = m_emission->Emis();
    if (!m_emission->Finie())
        return;
    m_emission.reset();
    m_envoi.EnCours = false;
    Annonce([envoi = m_envoi](TemoinMachine &temoin) { temoin.EmissionFinie(envoi); });
}

void MachineSimulee::Parle()
{
    const std::optional<char> parole = m_reglage.XonXoff ? m_tampon.Parole() : std::nullopt;
    if (parole == Xoff) {
        ++m_enCours.XoffDits;
        Annonce([recus = m_tampon.Recus()](TemoinMachine &temoin) { temoin.XoffDit(recus); });
    } else if (parole == Xon) {
        Annonce([suite = m_tampon.SuiteXoff()](TemoinMachine &temoin) { temoin.XonDit(suite); });
    }
    if (parole)
        m_aDire += *parole;
    if (!m_aDire.isEmpty())
        m_aDire.remove(0, m_cable.Ecrit(m_aDire));
}

void MachineSimulee::Annonce(const std::function<void(TemoinMachine &)> &annonce)
{
    if (m_temoin)
        m_annonces.push_back(annonce);
}

// Calls the witness without the lock, so that it may call the machine.
void MachineSimulee::Publie(std::unique_lock<std::mutex> &verrou)
{
    while (!m_annonces.empty()) {
        const auto annonces = std::exchange(m_annonces, {});
        verrou.unlock();
        for (const auto &annonce : annonces)
            annonce(*m_temoin);
        verrou.lock();
    }
}

// Sleeps until a character comes on the idle line, something is due, or another thread wakes it.
void MachineSimulee::Dort(std::unique_lock<std::mutex> &verrou)
{
    const int lecture = m_occupee ? 0 : POLLIN;
    const int ecriture = m_bloquee || !m_aDire.isEmpty() ? POLLOUT : 0;
    std::array<pollfd, 2> attentes{
        {{m_cable.Maitre(), short(lecture | ecriture), 0}, {m_reveil.Descripteur(), POLLIN, 0}}};
    timespec delai{};
    const std::optional<Instant> echeance = Echeance();
    if (echeance) {
        constexpr qint64 Seconde = 1'000'000'000;
        const qint64 reste = std::max<qint64>(0, (*echeance - HorlogeMachine::now()).count());
        delai = {time_t(reste / Seconde), long(reste % Seconde)};
    }
    verrou.unlock();
    if (ppoll(attentes.data(), attentes.size(), echeance ? &delai : nullptr, nullptr) > 0 && attentes[1].revents != 0)
        m_reveil.Acquitte();
    verrou.lock();
}

std::optional<Instant> MachineSimulee::Echeance() const
{
    std::optional<Instant> premiere = m_tampon.Echeance();
    const auto retient = [&premiere](const std::optional<Instant> &autre) {
        if (autre && (!premiere || *autre < *premiere))
            premiere = autre;
    };
    if (m_occupee)
        retient(m_ligne.Fin(std::min(m_ligne.Lot(), m_tampon.JusquaMarque())));
    if (m_emission && !m_bloquee)
        retient(m_emission->Echeance());
    return premiere;
}
