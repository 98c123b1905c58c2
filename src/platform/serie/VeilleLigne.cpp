#include "platform/serie/VeilleLigne.h"

#include "platform/serie/EvenementPort.h"

#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<unsigned CompteursLigne::*, int>, 8> EvtCompteurs = {{
    {&CompteursLigne::cts, EvenementPort::Cts},
    {&CompteursLigne::dsr, EvenementPort::Dsr},
    {&CompteursLigne::cd, EvenementPort::Cd},
    {&CompteursLigne::pauses, EvenementPort::Pause},
    {&CompteursLigne::trame, EvenementPort::Cadrage},
    {&CompteursLigne::cadence, EvenementPort::Cadence},
    {&CompteursLigne::debordements, EvenementPort::Perte},
    {&CompteursLigne::parite, EvenementPort::Parite},
}};

constexpr std::array<std::pair<bool EtatsLigne::*, int>, 3> EvtEtats = {{
    {&EtatsLigne::cts, EvenementPort::Cts},
    {&EtatsLigne::dsr, EvenementPort::Dsr},
    {&EtatsLigne::cd, EvenementPort::Cd},
}};

} // namespace

void VeilleLigne::Ouvre(LigneSerie &ligne)
{
    m_etats = ligne.Etats();
    m_compteurs = ligne.Compteurs();
    m_depart = m_compteurs; // each device's counters start at a value of their own
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
    // One ring is one event: the driver counts its end too.
    if (!avant.anneau && (apres.anneau || m_compteurs.anneau != comptes.anneau))
        codes << EvenementPort::Sonnerie;
    return codes;
}

void VeilleLigne::RemetComptes()
{
    m_depart = m_compteurs;
    m_recus = 0;
}

void VeilleLigne::NoteReception(qsizetype nombre)
{
    m_dernier = Horloge::Maintenant();
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
        if (code >= EvenementPort::PremiereFaute)
            comptes.fautes.*champ = m_compteurs.*champ - m_depart.*champ;
    }
    return comptes;
}
