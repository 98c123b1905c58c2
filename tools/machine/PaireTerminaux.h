#pragma once

#include <QByteArray>
#include <QString>

/// The cable: a pair of pseudo-terminals. The machine holds the master; the PC opens the slave by its path.
///
/// The pair keeps the slave open itself. So the line outlives each opening by the PC, as a real cable does, and poll()
/// does not spin while no PC is connected. Closing the master ends every connection at once even so: the PC's poll()
/// returns POLLHUP, its writes fail with EIO and its reads give nothing. Until the PC sets its own mode the slave is
/// raw, so that what the machine sends does not come back as an echo.
class PaireTerminaux
{
public:
    /// Raises std::system_error when the system gives no pair.
    PaireTerminaux();
    ~PaireTerminaux();
    Q_DISABLE_COPY_MOVE(PaireTerminaux)

    /// The device that the PC opens.
    const QString &Chemin() const { return m_chemin; }
    /// The master, for poll(); -1 once closed.
    int Maitre() const { return m_maitre; }
    /// True when a character waits.
    bool ALire() const;
    /// Reads at most maximum characters of those that wait. Never blocks.
    QByteArray Lit(qint64 maximum);
    /// Writes as many of the characters as the system accepts now, and returns how many.
    qint64 Ecrit(QByteArrayView octets);
    /// Closes the master, as when the machine is switched off.
    void Ferme();

private:
    void Ouvre();

    int m_maitre = -1;
    int m_esclave = -1;
    QString m_chemin;
};
