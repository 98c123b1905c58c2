#pragma once

#include "platform/base/Erreur.h"
#include "platform/serie/CadenceEmission.h"
#include "platform/serie/LigneSerie.h"
#include "platform/serie/MinuteurPrecis.h"

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

#include <memory>

/// The sending half of the serial control: the queue, and the pump that hands it to the system at the line's pace.
class EmissionPort : public QObject
{
    Q_OBJECT
public:
    explicit EmissionPort(QObject *parent = nullptr);

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

    /// The machine holds the line, by CTS under the handshake or by an XOFF that the control obeys itself: nothing is
    /// handed over. Behind a low CTS the characters would only gather in the adapter, out of reach.
    void Retient(bool retient);
    /// Whether the machine holds the line: the system goes on refusing characters, Retient says so, or what the system
    /// holds has stood still for clearly longer than its line time.
    bool Retenue();
    const CadenceEmission &Cadence() const { return m_cadence; }

Q_SIGNALS:
    /// The queue has fallen below the threshold since characters were last added.
    void SousSeuil();
    /// Retient holds the line and characters wait: it is time to look at CTS again.
    void AttendMachine();
    /// The device has gone.
    void Panne(const Erreur &erreur);

private:
    void Pompe();
    int Remet(CadenceEmission::Instant maintenant);
    void Programme(int remis, CadenceEmission::Instant maintenant);
    void ObserveSysteme(CadenceEmission::Instant maintenant);

    LigneSerie *m_ligne = nullptr;
    std::unique_ptr<QSocketNotifier> m_reveil;
    std::unique_ptr<MinuteurPrecis> m_minuteur;
    QByteArray m_file;
    CadenceEmission m_cadence;
    int m_seuil = 0;
    bool m_seuilArme = false;
    bool m_refus = false;               // the system takes nothing
    CadenceEmission::Instant m_refuse;  // since then
    bool m_reveilVain = false;          // it said that it would, and did not
    int m_systeme = 0;                  // characters that it held when last looked at
    CadenceEmission::Instant m_progres; // when that number last fell
};
