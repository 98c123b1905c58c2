#pragma once

#include "platform/LigneSerie.h"
#include "platform/MSComm.h"

#include <memory>
#include <optional>

/// The machine, the cable and the driver behind a LigneScenario. A test sets what they do and reads what the control
/// did.
struct Scenario
{
    // What the test sets
    std::optional<EtatsLigne> etats = EtatsLigne{true, true, true, false};
    CompteursLigne compteurs;
    int accepte = 1'000'000;  ///< characters that the line still takes before it refuses
    int parAppel = 1'000'000; ///< most characters that one call takes
    int nonEmis = 0;          ///< what the system says that it holds
    bool immobile = false;    ///< a line that stands still: nonEmis grows by what is handed over
    bool disparue = false;    ///< unplugged: every operation fails. See also Scenario::Debranche().
    int refusReglage = 0;     ///< number with which settings are refused, 0 takes them

    // What the control did
    QByteArray ecrits;
    int essais = 0;  ///< calls that handed characters over, or tried to
    int regards = 0; ///< times that it asked for nonEmis
    QList<ReglagePort> reglages;
    bool rts = false;
    bool dtr = false;
    int jetsEmission = 0;
    bool ouverte = false;

    Scenario();
    ~Scenario();
    Q_DISABLE_COPY_MOVE(Scenario)

    /// The machine sends octets; the positions in fausses come with a parity error.
    void Envoie(const QByteArray &octets, const QList<qsizetype> &fausses = {});
    /// Characters sent that the control has not taken.
    qsizetype EnAttente() const { return m_enRoute.size(); }
    void Debranche();

private:
    friend class LigneScenario;

    int m_reveil = -1; // readable as long as something has come
    QByteArray m_enRoute;
    QList<qsizetype> m_fausses; // positions in m_enRoute; below 0: gone
};

/// A line that behaves as its Scenario says.
class LigneScenario : public LigneSerie
{
public:
    explicit LigneScenario(std::shared_ptr<Scenario> scenario);
    ~LigneScenario() override;

    /// Gives each port that a control opens this scenario.
    static MSComm::Fabrique Fabrique(const std::shared_ptr<Scenario> &scenario);

    void Regle(const ReglagePort &reglage) override;
    void PoseRTS(bool actif) override { m_scenario->rts = actif; }
    void PoseDTR(bool actif) override { m_scenario->dtr = actif; }
    int Descripteur() const override { return m_scenario->m_reveil; }
    LectureLigne Lit(int tailleMax) override;
    int Ecrit(const char *octets, int nombre) override;
    int NonEmis() override { return ++m_scenario->regards, m_scenario->nonEmis; }
    void JetteReception() override;
    void JetteEmission() override { ++m_scenario->jetsEmission; }
    std::optional<EtatsLigne> Etats() override { return m_scenario->etats; }
    CompteursLigne Compteurs() override { return m_scenario->compteurs; }

private:
    void ExigePresente() const;

    std::shared_ptr<Scenario> m_scenario;
};
