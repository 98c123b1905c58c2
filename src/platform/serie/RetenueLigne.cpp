#include "platform/serie/RetenueLigne.h"

#include "platform/base/Journal.h"

namespace {

constexpr int SautSysteme = 24; // a driver counts down in steps of a FIFO, not character by character

} // namespace

void RetenueLigne::Ouvre(LigneSerie &ligne, const ReglagePort &reglage)
{
    m_ligne = &ligne;
    OublieAppareil();
    Regle(reglage);
}

void RetenueLigne::Regle(const ReglagePort &reglage)
{
    m_rtsCts = reglage.ARtsCts();
    m_patience = JeuAdaptateur + Duree(qRound64(SautSysteme * 1e9 / reglage.CaracteresParSeconde()));
}

bool RetenueLigne::ParMachine() const
{
    return m_xonXoff.Retenue() || CtsBas();
}

bool RetenueLigne::CtsBas() const
{
    const auto bas = [](const std::optional<EtatsLigne> &etats) { return etats && !etats->cts; };
    return m_rtsCts && bas(m_veille.Etats()) && bas(m_ligne->Etats());
}

bool RetenueLigne::ParAppareil(Instant maintenant)
{
    const bool immobile = Systeme(maintenant) > 0 && maintenant - m_progres > m_patience;
    const bool refuse = m_refus && maintenant - m_depuisRefus > JeuAdaptateur;
    return immobile || refuse;
}

int RetenueLigne::Systeme(Instant maintenant)
{
    const int systeme = m_ligne->NonEmis();
    if (systeme < m_systeme || systeme == 0)
        m_progres = maintenant;
    m_systeme = systeme;
    return systeme;
}

void RetenueLigne::NoteRemise(int pris, bool refus, Instant maintenant)
{
    if (refus != m_refus)
        qCInfo(JournalLigne) << "the device" << (refus ? "refuses characters" : "takes characters again");
    if (!m_refus || pris > 0)
        m_depuisRefus = maintenant;
    m_refus = refus;
    m_systeme += pris;
}

void RetenueLigne::OublieAppareil()
{
    m_refus = false;
    m_systeme = 0;
}
