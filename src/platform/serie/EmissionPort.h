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
    /// retenue: tells what holds the line. The caller opens it and keeps it alive as long as this object.
    explicit EmissionPort(RetenueLigne &retenue)
        : m_retenue(retenue)
    {
    }

    /// Starts sending on ligne, which must stay alive until Ferme(), with an empty queue. Raises
    /// ErreurPort::Indisponible when the system has no timer left.
    void Ouvre(LigneSerie &ligne, const ReglagePort &reglage);
    /// Stops at once, empties the queue and does not touch the line any more.
    void Arrete();
    void Ferme();
    void Regle(const ReglagePort &reglage);
    /// SousSeuil is emitted when the queue falls below seuil characters; 0: never.
    void setSeuil(int seuil) { m_seuil = seuil; }

    /// Queues octets and hands over what may go at once.
    void Ajoute(const QByteArray &octets);
    /// Number of characters not yet handed over.
    int Nombre() const { return static_cast<int>(m_file.size()); }
    /// Throws away the queue and the characters that the system still holds.
    void Jette();

    /// Stops the pace while the machine holds the line, and resumes it afterwards. To be called when the hold may have
    /// changed. Nothing is handed over during a hold: the characters would gather in the adapter, where they cannot be
    /// called back.
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
    bool m_reveilVain = false; // the line announced that it takes characters, and then took none
};
