#include "platform/serie/EmissionPort.h"

#include "platform/base/CedeLaMain.h"
#include "platform/base/Journal.h"

#include <algorithm>

namespace {

using namespace std::chrono_literals;

constexpr auto PeriodeRetenue = 5ms; // how often a held line is polled

} // namespace

void EmissionPort::Ouvre(LigneSerie &ligne, const ReglagePort &reglage)
{
    m_minuteur = std::make_unique<MinuteurPrecis>();
    connect(m_minuteur.get(), &MinuteurPrecis::Echu, this, &EmissionPort::Pompe);
    m_ligne = &ligne;
    m_cadence = CadenceEmission();
    Regle(reglage);
    connect(m_ligne, &LigneSerie::Inscriptible, this, &EmissionPort::Pompe);
}

void EmissionPort::Arrete()
{
    m_minuteur->Arrete();
    m_ligne->AnnonceInscriptible(false);
    m_file.clear();
    m_reveilVain = m_seuilArme = false;
    m_retenue.OublieAppareil();
}

void EmissionPort::Ferme()
{
    Arrete();
    m_minuteur.reset();
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
    if (!m_retenue.Refus())
        Pompe();
}

void EmissionPort::Jette()
{
    Arrete();
    m_ligne->JetteEmission();
}

void EmissionPort::SuitRetenue()
{
    const bool retenue = m_retenue.ParMachine();
    if (retenue != m_cadence.Suspendue())
        qCInfo(JournalLigne) << "the machine" << (retenue ? "holds the line" : "lets the line go");
    if (retenue)
        m_cadence.Suspend(Horloge::Maintenant());
    else
        m_cadence.Reprend(Horloge::Maintenant());
}

/// Hands over what the cadence allows and arranges the next call for the rest.
void EmissionPort::Pompe()
{
    if (m_file.isEmpty())
        return;
    SuitRetenue();
    try {
        const auto maintenant = Horloge::Maintenant();
        ArmeRemise(Remet(maintenant), maintenant);
    } catch (const Erreur &erreur) {
        Q_EMIT Panne(erreur);
        return;
    }
    if (m_seuilArme && m_file.size() < m_seuil) {
        m_seuilArme = false;
        Q_EMIT SousSeuil();
    }
}

/// Hands the system the characters that are due and returns how many it took.
int EmissionPort::Remet(CadenceEmission::Instant maintenant)
{
    const bool refusAvant = m_retenue.Refus();
    bool refus = false;
    int remis = 0;
    int place = std::min(m_cadence.Place(maintenant, m_retenue.Systeme(maintenant)), Nombre());
    while (place > 0 && !refus) {
        const int pris = m_ligne->Ecrit(m_file.constData(), place);
        m_file.remove(0, pris);
        remis += pris;
        place -= pris;
        refus = pris == 0;
    }
    m_retenue.NoteRemise(remis, refus, maintenant);
    m_cadence.Remet(remis, maintenant);
    if (refus || (remis == 0 && m_cadence.Place(maintenant, 0) > 0))
        m_cadence.Empeche();
    m_reveilVain = refusAvant && refus && remis == 0;
    if (remis > 0)
        SignaleMouvement();
    return remis;
}

/// Arranges the next handover. A line that has refused characters announces when it takes them again. If it announces
/// that and still takes nothing, it is polled by timer instead of spinning.
void EmissionPort::ArmeRemise(int remis, CadenceEmission::Instant maintenant)
{
    const bool reste = !m_file.isEmpty();
    const bool parReveil = reste && m_retenue.Refus() && !m_reveilVain;
    m_ligne->AnnonceInscriptible(parReveil);
    if (!reste || parReveil) {
        m_minuteur->Arrete();
        return;
    }
    const auto delai = m_cadence.AvantRemise(maintenant);
    const bool retenue = m_cadence.Suspendue() || (remis == 0 && delai == 0ns);
    m_minuteur->Arme(retenue ? PeriodeRetenue : delai);
}
