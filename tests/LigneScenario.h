#pragma once

#include "platform/base/Erreur.h"
#include "platform/serie/LigneSerie.h"
#include "platform/serie/MSComm.h"

#include <QTimer>

#include <algorithm>
#include <functional>
#include <memory>

/// The machine, the cable and the driver behind a LigneScenario. A test sets what they do and reads what the control
/// did.
class Scenario
{
public:
    // What the test sets
    std::optional<EtatsLigne> etats = EtatsLigne{true, true, true, false};
    CompteursLigne compteurs;
    int accepte = 1'000'000;    ///< characters that the line still takes before it refuses
    bool casse = false;         ///< and then it does not refuse: it is gone
    int parAppel = 1'000'000;   ///< most characters that one call takes
    int nonEmis = 0;            ///< what the system says that it holds
    bool immobile = false;      ///< a line that stands still: nonEmis grows by what is handed over
    bool obeitXoff = true;      ///< the driver deals with XON/XOFF
    int refusReglage = 0;       ///< number with which settings are refused, 0 takes them
    int parLecture = 1'000'000; ///< most characters that one reading gives

    // What the control did
    QByteArray ecrits;
    int essais = 0;  ///< calls that handed characters over, or tried to
    int regards = 0; ///< times that it asked for nonEmis
    QList<ReglagePort> reglages;
    bool rts = false;
    bool dtr = false;
    int jetsEmission = 0;
    bool ouverte = false;

    /// The machine sends octets; the positions in fausses come with a parity error.
    void Envoie(const QByteArray &octets, const QList<qsizetype> &fausses = {})
    {
        for (const qsizetype fausse : fausses)
            m_fausses.append(m_enRoute.size() + fausse);
        m_enRoute += octets;
        m_reveille();
    }
    /// Characters sent that the control has not taken.
    qsizetype EnAttente() const { return m_enRoute.size(); }
    /// From now on every operation fails.
    void Debranche()
    {
        m_disparue = true;
        m_reveille();
    }

private:
    friend class LigneScenario;

    std::function<void()> m_reveille = [] {}; // something has come for the line that is open
    bool m_disparue = false;
    QByteArray m_enRoute;
    QList<qsizetype> m_fausses; // positions in m_enRoute; below 0: gone
};

/// A line that behaves as its Scenario says.
class LigneScenario : public LigneSerie
{
public:
    explicit LigneScenario(std::shared_ptr<Scenario> scenario)
        : m_scenario(std::move(scenario))
    {
        m_scenario->ouverte = true;
        m_scenario->m_reveille = [this] { AnnonceLisible(m_annonce); };
        connect(&m_lisible, &QTimer::timeout, this, &LigneSerie::Lisible);
        connect(&m_inscriptible, &QTimer::timeout, this, &LigneSerie::Inscriptible);
    }
    ~LigneScenario() override
    {
        m_scenario->ouverte = false;
        m_scenario->m_reveille = [] {};
    }

    /// Gives each port that a control opens this scenario.
    static MSComm::Fabrique Fabrique(const std::shared_ptr<Scenario> &scenario)
    {
        return [scenario](int) { return std::make_unique<LigneScenario>(scenario); };
    }

    void Regle(const ReglagePort &reglage) override
    {
        if (m_scenario->refusReglage != 0)
            throw Erreur(m_scenario->refusReglage, QStringLiteral("refused"));
        m_scenario->reglages.append(reglage);
    }
    void PoseRTS(bool actif) override { m_scenario->rts = actif; }
    void PoseDTR(bool actif) override { m_scenario->dtr = actif; }
    bool ObeitXoff(ControleFlux /*flux*/) const override { return m_scenario->obeitXoff; }
    void AnnonceLisible(bool annonce) override
    {
        m_annonce = annonce;
        Bat(m_lisible, annonce && (m_scenario->m_disparue || m_scenario->EnAttente() > 0));
    }
    /// A driver that always says that it takes characters, whether it does or not.
    void AnnonceInscriptible(bool annonce) override { Bat(m_inscriptible, annonce); }
    LectureLigne Lit(int tailleMax) override
    {
        ExigePresente();
        LectureLigne lecture;
        lecture.octets = m_scenario->m_enRoute.left(std::min(tailleMax, m_scenario->parLecture));
        m_scenario->m_enRoute.remove(0, lecture.octets.size());
        for (qsizetype &fausse : m_scenario->m_fausses) {
            if (fausse >= 0 && fausse < lecture.octets.size())
                lecture.fausses.append(fausse);
            fausse -= lecture.octets.size();
        }
        lecture.erreur = !lecture.fausses.isEmpty();
        AnnonceLisible(m_annonce);
        return lecture;
    }
    int Ecrit(const char *octets, int nombre) override
    {
        if (m_scenario->casse && m_scenario->accepte == 0)
            m_scenario->Debranche();
        ExigePresente();
        ++m_scenario->essais;
        const int pris = std::min({nombre, m_scenario->parAppel, m_scenario->accepte});
        m_scenario->accepte -= pris;
        m_scenario->ecrits.append(octets, pris);
        m_scenario->nonEmis += m_scenario->immobile ? pris : 0;
        return pris;
    }
    int NonEmis() override { return ++m_scenario->regards, m_scenario->nonEmis; }
    void JetteReception() override
    {
        m_scenario->m_enRoute.clear();
        m_scenario->m_fausses.clear();
        AnnonceLisible(m_annonce);
    }
    void JetteEmission() override { ++m_scenario->jetsEmission; }
    std::optional<EtatsLigne> Etats() override { return m_scenario->etats; }
    CompteursLigne Compteurs() override { return m_scenario->compteurs; }

private:
    void ExigePresente() const
    {
        if (m_scenario->m_disparue)
            throw Erreur(ErreurPort::Lecture, QStringLiteral("unplugged"));
    }
    /// A timer of 0 ms says so at each turn of the event loop.
    static void Bat(QTimer &annonce, bool vrai) { vrai ? annonce.start(0) : annonce.stop(); }

    std::shared_ptr<Scenario> m_scenario;
    bool m_annonce = false;
    QTimer m_lisible;
    QTimer m_inscriptible;
};
