#pragma once

#include <QByteArray>

#include <memory>

/// One reading or one writing that the driver carries out beside the program. It is used again and again, for one at a
/// time, and is over to begin with.
class EchangeWindows
{
public:
    /// port: the device, opened for overlapped use; it must stay.
    /// Raises ErreurPort::Indisponible when the system lacks the means.
    explicit EchangeWindows(void *port);
    /// Abandons what is under way.
    ~EchangeWindows();
    Q_DISABLE_COPY_MOVE(EchangeWindows)

    /// Asks for nombre characters, above 0. It is over when all of them have come.
    void Lit(int nombre);
    /// Hands octets over. It is over when the driver has taken all of them.
    void Ecrit(const QByteArray &octets);

    bool EnCours() const;
    /// A Windows event, set from the end of one exchange to the beginning of the next.
    void *Signal() const;
    /// Sets the event although nothing has ended.
    void Reveille();
    /// Waits for the end of an exchange that the driver can end at once, and abandons it if the driver does not.
    void Termine();
    /// Takes the exchange back. What has passed until then has passed.
    void Abandonne();

    /// Number of characters that it was begun with.
    int Taille() const;

    // Of an exchange that is over.

    /// Raises ErreurPort::Lecture when not all of it has passed.
    void Exige() const;
    /// The characters that have passed.
    QByteArray Octets() const;

private:
    struct Etat;
    void Prepare(const QByteArray &octets);
    void Commence(bool accepte);

    void *m_port;
    std::unique_ptr<Etat> m_etat; // the driver knows it by its place in memory
    int m_refus = 0;              // the error with which it did not even begin
};
