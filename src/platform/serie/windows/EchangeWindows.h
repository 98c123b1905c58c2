#pragma once

#include <QByteArray>

#include <memory>

/// One read or one write that the driver carries out while the program goes on (an overlapped operation). The object
/// can be used again for the next one, but only for one at a time. A new object counts as ended.
class EchangeWindows
{
public:
    /// port: the device, opened for overlapped use. It must outlive this object.
    /// Raises ErreurPort::Indisponible when the system has no event left.
    explicit EchangeWindows(void *port);
    /// Abandons the operation if it is still running.
    ~EchangeWindows();
    Q_DISABLE_COPY_MOVE(EchangeWindows)

    /// Starts reading nombre characters, above 0. It ends when all of them have come.
    void Lit(int nombre);
    /// Starts writing octets. It ends when the driver has taken all of them.
    void Ecrit(const QByteArray &octets);

    bool EnCours() const;
    /// A Windows event. It is set when the operation ends, and reset when the next one starts.
    void *Signal() const;
    /// Sets the event although the operation has not ended.
    void Reveille();
    /// Waits at most 100 ms for the end of an operation that the driver can end at once, then abandons it.
    void Termine();
    /// Cancels the operation. Characters that have passed already stay read or written.
    void Abandonne();

    /// Number of characters that the operation was started with.
    int Taille() const;

    // Only after the end of the operation.

    /// Raises ErreurPort::Lecture when not all characters have passed.
    void Exige() const;
    /// The characters that have passed.
    QByteArray Octets() const;

private:
    struct Etat;
    void Prepare(const QByteArray &octets);
    void Commence(bool accepte);

    void *m_port;
    std::unique_ptr<Etat> m_etat; // on the heap: the driver writes to this address
    int m_refus = 0;              // error with which the driver refused the operation at its start
};
