#include "platform/serie/EmissionPort.h"

#include "platform/base/CedeLaMain.h"

#include <algorithm>

namespace {

using namespace std::chrono_literals;
using Horloge = std::chrono::steady_clock;

constexpr auto PeriodeRetenue = 5ms; // how often a held line is tried where nothing wakes us
constexpr int SautSysteme = 24;      // a driver counts down in steps of a FIFO, not character by character
constexpr auto Jeu = 20ms;           // and not always at once; a refusal may be over as soon

} // namespace

EmissionPort::EmissionPort(QObject *parent)
    : QObject(parent)
{
}

void EmissionPort::Ouvre(LigneSerie &ligne, const ReglagePort &reglage)
{
    m_minuteur = std::make_unique<MinuteurPrecis>();
    connect(m_minuteur.get(), &MinuteurPrecis::Echu, this, &EmissionPort::Pompe);
    m_ligne = &ligne;
    m_cadence = CadenceEmission();
    Regle(reglage);
    m_reveil = std::make_unique<QSocketNotifier>(ligne.Descripteur(), QSocketNotifier::Write);
    m_reveil->setEnabled(false);
    connect(m_reveil.get(), &QSocketNotifier::activated, this, &EmissionPort::Pompe);
}

void EmissionPort::Arrete()
{
    m_minuteur->Arrete();
    m_reveil->setEnabled(false);
    m_file.clear();
    m_refus = m_reveilVain = m_seuilArme = false;
    m_systeme = 0;
}

void EmissionPort::Ferme()
{
    Arrete();
    m_minuteur.reset();
    m_reveil.reset();
    m_ligne = nullptr;
}

void EmissionPort::Regle(const ReglagePort &reglage)
{
    m_cadence.Regle(reglage.vitesse, reglage.BitsParCaractere());
}

void EmissionPort::Ajoute(const QByteArray &octets)
{
    m_file += octets;
    m_seuilArme = true;
    if (!m_refus)
        Pompe();
}

void EmissionPort::Jette()
{
    Arrete();
    m_ligne->JetteEmission();
}

void EmissionPort::Retient(bool retient)
{
    if (retient)
        m_cadence.Suspend(Horloge::now());
    else
        m_cadence.Reprend(Horloge::now());
}

bool EmissionPort::Retenue()
{
    const auto maintenant = Horloge::now();
    ObserveSysteme(maintenant);
    const bool immobile = m_systeme > 0 && maintenant - m_progres > m_cadence.Temps(SautSysteme) + Jeu;
    const bool refuse = m_refus && maintenant - m_refuse > Jeu;
    return immobile || refuse || m_cadence.Suspendue();
}

void EmissionPort::ObserveSysteme(CadenceEmission::Instant maintenant)
{
    const int systeme = m_ligne->NonEmis();
    if (systeme < m_systeme || systeme == 0)
        m_progres = maintenant;
    m_systeme = systeme;
}

/// Hands over what the cadence allows and sees to it that it is called again in time for the rest.
void EmissionPort::Pompe()
{
    if (m_file.isEmpty())
        return;
    if (m_cadence.Suspendue())
        Q_EMIT AttendMachine();
    try {
        const auto maintenant = Horloge::now();
        Programme(Remet(maintenant), maintenant);
    } catch (const Erreur &erreur) {
        Q_EMIT Panne(erreur);
        return;
    }
    if (m_seuilArme && m_file.size() < m_seuil) {
        m_seuilArme = false;
        Q_EMIT SousSeuil();
    }
}

/// Hands the system what it may have now and returns how many characters it took.
int EmissionPort::Remet(CadenceEmission::Instant maintenant)
{
    ObserveSysteme(maintenant);
    const bool refusAvant = m_refus;
    m_refus = false;
    int remis = 0;
    int place = std::min(m_cadence.Place(maintenant, m_systeme), Nombre());
    while (place > 0 && !m_refus) {
        const int pris = m_ligne->Ecrit(m_file.constData(), place);
        m_file.remove(0, pris);
        remis += pris;
        place -= pris;
        m_refus = pris == 0;
    }
    if (!refusAvant || remis > 0)
        m_refuse = maintenant;
    m_cadence.Remet(remis, maintenant);
    if (m_refus || (remis == 0 && m_cadence.Place(maintenant, 0) > 0))
        m_cadence.Empeche();
    m_systeme += remis;
    m_reveilVain = refusAvant && m_refus && remis == 0;
    if (remis > 0)
        SignaleMouvement();
    return remis;
}

/// The write notifier wakes a line that was refused. Where it wakes in vain the timer takes its turn, lest it spins.
void EmissionPort::Programme(int remis, CadenceEmission::Instant maintenant)
{
    const bool reste = !m_file.isEmpty();
    const bool parReveil = reste && m_refus && !m_reveilVain;
    m_reveil->setEnabled(parReveil);
    if (!reste || parReveil) {
        m_minuteur->Arrete();
        return;
    }
    const auto delai = m_cadence.AvantRemise(maintenant);
    const bool retenue = m_cadence.Suspendue() || (remis == 0 && delai == 0ns);
    m_minuteur->Arme(retenue ? PeriodeRetenue : delai);
}
