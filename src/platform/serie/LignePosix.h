#pragma once

#include "platform/serie/DecodeurMarques.h"
#include "platform/serie/LigneSerie.h"

/// What stands between the system and the line: no USB, an adapter whose chip obeys XOFF, or one that leaves it to us.
enum class PiloteUsb { Aucun, Obeissant, Sourd };

/// The serial line of a POSIX system with Linux's terminal driver.
///
/// The driver drops what a pseudo-terminal does not have (framing, speed) without a word; there that is no failure.
/// Its surprises are told where they are dealt with, in LignePosix.cpp.
class LignePosix : public LigneSerie
{
public:
    /// Opens the device at chemin and holds it against every other program until the destruction. The line is then raw,
    /// without flow control, and no XOFF of an earlier use stands.
    /// Raises ErreurPort::Inconnu, Occupe, PasUneLigne, Indisponible, or Erreur::AccesRefuse.
    explicit LignePosix(const QString &chemin);
    ~LignePosix() override;

    void Regle(const ReglagePort &reglage) override;
    void PoseRTS(bool actif) override;
    void PoseDTR(bool actif) override;
    bool ObeitXoff(ControleFlux flux) const override;
    int Descripteur() const override { return m_fd; }
    LectureLigne Lit(int tailleMax) override;
    int Ecrit(const char *octets, int nombre) override;
    int NonEmis() override;
    void JetteReception() override;
    void JetteEmission() override;
    std::optional<EtatsLigne> Etats() override;
    CompteursLigne Compteurs() override;

private:
    void Reserve(const QString &chemin);
    void Libere();
    void PoseSortie(int ligne, bool actif);
    SensMarques Sens();
    bool CompteursPilote(CompteursLigne &compteurs) const;

    int m_fd = -1;
    bool m_pseudoTerminal = false;
    PiloteUsb m_usb = PiloteUsb::Aucun;
    bool m_avecParite = false;
    DecodeurMarques m_decodeur;
    CompteursLigne m_compteurs;      // the driver's when last asked, or by marks
    CompteursLigne m_comptesMarques; // what the driver had counted at the last mark
};
