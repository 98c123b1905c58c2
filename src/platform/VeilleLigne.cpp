#include "platform/VeilleLigne.h"

#include <array>
#include <utility>

namespace {

constexpr int EvtAnneau = 6;
constexpr int PremiereFaute = 1001; // the events from here on are errors

constexpr std::array<std::pair<unsigned CompteursLigne::*, int>, 8> EvtCompteurs = {{
    {&CompteursLigne::cts, 3},
    {&CompteursLigne::dsr, 4},
    {&CompteursLigne::cd, 5},
    {&CompteursLigne::pauses, 1001},
    {&CompteursLigne::trame, 1004},
    {&CompteursLigne::cadence, 1006},
    {&CompteursLigne::debordements, 1008},
    {&CompteursLigne::parite, 1009},
}};

constexpr std::array<std::pair<bool EtatsLigne::*, int>, 3> EvtEtats = {{
    {&EtatsLigne::cts, 3},
    {&EtatsLigne::dsr, 4},
    {&EtatsLigne::cd, 5},
}};

} // namespace

void VeilleLigne::Ouvre(LigneSerie &ligne)
{
    m_etats = ligne.Etats();
    m_compteurs = ligne.Compteurs();
    m_depart = m_compteurs; // each device counts from a beginning of its own
}

QList<int> VeilleLigne::Regarde(LigneSerie &ligne)
{
    const std::optional<EtatsLigne> etats = ligne.Etats();
    const EtatsLigne avant = std::exchange(m_etats, etats).value_or(EtatsLigne());
    const EtatsLigne apres = etats.value_or(EtatsLigne());
    const CompteursLigne comptes = std::exchange(m_compteurs, ligne.Compteurs());

    QList<int> codes;
    for (const auto &[champ, code] : EvtEtats) {
        if (apres.*champ != avant.*champ)
            codes << code;
    }
    for (const auto &[champ, code] : EvtCompteurs) {
        if (m_compteurs.*champ != comptes.*champ)
            codes << code;
    }
    // A ring is one event, though the driver counts its end.
    if (!avant.anneau && (apres.anneau || m_compteurs.anneau != comptes.anneau))
        codes << EvtAnneau;
    return codes;
}

void VeilleLigne::RemetComptes()
{
    m_depart = m_compteurs;
    m_recus = 0;
}

void VeilleLigne::NoteReception(qsizetype nombre)
{
    m_dernier = Horloge::now();
    if (m_recus == 0)
        m_premier = m_dernier;
    m_recus += nombre;
}

ComptesPort VeilleLigne::Comptes() const
{
    ComptesPort comptes;
    comptes.recus = m_recus;
    if (m_recus > 0)
        comptes.dureeReception = std::chrono::duration_cast<std::chrono::milliseconds>(m_dernier - m_premier);
    for (const auto &[champ, code] : EvtCompteurs) {
        if (code >= PremiereFaute)
            comptes.fautes.*champ = m_compteurs.*champ - m_depart.*champ;
    }
    return comptes;
}
