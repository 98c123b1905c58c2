#pragma once

#include <QByteArray>
#include <QString>

/// The cable: a pseudo-terminal pair. The machine holds the master, the PC opens the slave by its path.
///
/// The pair keeps a descriptor of the slave of its own. So the line outlives each session of the PC, as a real cable
/// does, and an unplugged PC does not make poll() spin. Closing the master still ends every session at once, though the
/// slave stays open here: the PC's poll() says POLLHUP, its writes fail with EIO and its reads give nothing. Until the
/// PC sets its own mode the slave is raw, so that what the machine sends does not come back as an echo.
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
    /// Does a character wait?
    bool ALire() const;
    /// At most maximum characters of those that wait; never blocks.
    QByteArray Lit(qint64 maximum);
    /// Gives the PC as many of the characters as the system takes now, and says how many.
    qint64 Ecrit(QByteArrayView octets);
    /// The machine is switched off.
    void Ferme();

private:
    void Ouvre();

    int m_maitre = -1;
    int m_esclave = -1;
    QString m_chemin;
};
