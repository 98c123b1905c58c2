#pragma once

#include "platform/base/Erreur.h"
#include "platform/serie/CadenceEmission.h"
#include "platform/serie/LigneSerie.h"
#include "platform/serie/MinuteurPrecis.h"
#include "platform/serie/RetenueLigne.h"

#include <QByteArray>
#include <QObject>

#include <memory>

/// The sending half of the serial control: the queue, and the pump that hands it to the system at the line's pace.
class EmissionPort : public QObject
{
    Q_OBJECT
public:
    /// retenue: what holds the line, opened by the caller; it must stay.
    explicit EmissionPort(RetenueLigne &retenue)
        : m_retenue(retenue)
    {
    }

    /// Sends on ligne from now on, which must stay until Ferme(). The queue is empty.
    /// Raises ErreurPort::Indisponible when the system lacks the means.
    void Ouvre(LigneSerie &ligne, const ReglagePort &reglage);
    /// Stops at once and forgets what waits; the line is touched no more.
    void Arrete();
    void Ferme();
    void Regle(const ReglagePort &reglage);
    /// Count of the queue below which SousSeuil comes; 0: never.
    void setSeuil(int seuil) { m_seuil = seuil; }

    /// Queues octets and hands over what may go at once.
    void Ajoute(const QByteArray &octets);
    /// Characters that have not been handed over.
    int Nombre() const { return static_cast<int>(m_file.size()); }
    /// Throws away the queue and what the system still holds.
    void Jette();

    /// Stops or starts the line's clock with the machine's hold. To be called when that may have changed. While the
    /// machine holds the line nothing is handed over: behind a low CTS the characters would only gather in the adapter,
    /// out of reach.
    void SuitRetenue();
    const CadenceEmission &Cadence() const { return m_cadence; }

Q_SIGNALS:
    /// The queue has fallen below the threshold since characters were last added.
    void SousSeuil();
    /// The device has gone.
    void Panne(const Erreur &erreur);

private:
    void Pompe();
    int Remet(CadenceEmission::Instant maintenant);
    void ArmeRemise(int remis, CadenceEmission::Instant maintenant);

    RetenueLigne &m_retenue;
    LigneSerie *m_ligne = nullptr;
    std::unique_ptr<MinuteurPrecis> m_minuteur;
    QByteArray m_file;
    CadenceEmission m_cadence;
    int m_seuil = 0;
    bool m_seuilArme = false;
    bool m_reveilVain = false; // the line said that it would take characters, and did not
};
