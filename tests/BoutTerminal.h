#pragma once

#include <QByteArray>
#include <QString>

/// The machine's end of a pseudo-terminal, for tests that play the machine by hand.
class BoutTerminal
{
public:
    BoutTerminal();
    ~BoutTerminal();
    Q_DISABLE_COPY_MOVE(BoutTerminal)

    /// The device that the PC opens.
    QString Chemin() const { return m_chemin; }
    int Descripteur() const { return m_fd; }
    void Envoie(const QByteArray &octets) const;
    /// What has come; none when nothing has.
    QByteArray Prend() const;
    /// Switches the machine off.
    void Coupe();

private:
    int m_fd = -1;
    QString m_chemin;
};
