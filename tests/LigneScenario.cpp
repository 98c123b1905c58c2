#include "LigneScenario.h"

#include "platform/Erreur.h"
#include "platform/ErreurPort.h"

#include <algorithm>
#include <sys/eventfd.h>
#include <unistd.h>

Scenario::Scenario()
    : m_reveil(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC))
{
}

Scenario::~Scenario()
{
    close(m_reveil);
}

void Scenario::Envoie(const QByteArray &octets, const QList<qsizetype> &fausses)
{
    for (const qsizetype fausse : fausses)
        m_fausses.append(m_enRoute.size() + fausse);
    m_enRoute += octets;
    eventfd_write(m_reveil, 1);
}

void Scenario::Debranche()
{
    disparue = true;
    eventfd_write(m_reveil, 1);
}

LigneScenario::LigneScenario(std::shared_ptr<Scenario> scenario)
    : m_scenario(std::move(scenario))
{
    m_scenario->ouverte = true;
}

LigneScenario::~LigneScenario()
{
    m_scenario->ouverte = false;
}

MSComm::Fabrique LigneScenario::Fabrique(const std::shared_ptr<Scenario> &scenario)
{
    return [scenario](int) { return std::make_unique<LigneScenario>(scenario); };
}

void LigneScenario::Regle(const ReglagePort &reglage)
{
    if (m_scenario->refusReglage != 0)
        throw Erreur(m_scenario->refusReglage, QStringLiteral("refused"));
    m_scenario->reglages.append(reglage);
}

LectureLigne LigneScenario::Lit(int tailleMax)
{
    ExigePresente();
    LectureLigne lecture;
    lecture.octets = m_scenario->m_enRoute.left(tailleMax);
    m_scenario->m_enRoute.remove(0, lecture.octets.size());
    for (qsizetype &fausse : m_scenario->m_fausses) {
        if (fausse >= 0 && fausse < lecture.octets.size())
            lecture.fausses.append(fausse);
        fausse -= lecture.octets.size();
    }
    lecture.erreur = !lecture.fausses.isEmpty();
    eventfd_t compte = 0;
    if (m_scenario->m_enRoute.isEmpty())
        eventfd_read(m_scenario->m_reveil, &compte);
    return lecture;
}

int LigneScenario::Ecrit(const char *octets, int nombre)
{
    ExigePresente();
    ++m_scenario->essais;
    const int pris = std::min({nombre, m_scenario->parAppel, m_scenario->accepte});
    m_scenario->accepte -= pris;
    m_scenario->ecrits.append(octets, pris);
    m_scenario->nonEmis += m_scenario->immobile ? pris : 0;
    return pris;
}

void LigneScenario::JetteReception()
{
    m_scenario->m_enRoute.clear();
    m_scenario->m_fausses.clear();
}

void LigneScenario::ExigePresente() const
{
    if (m_scenario->disparue)
        throw Erreur(ErreurPort::Lecture, QStringLiteral("unplugged"));
}
