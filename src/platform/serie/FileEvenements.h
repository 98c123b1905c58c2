#pragma once

#include <QList>
#include <QObject>

/// The queue of events between the line and the program's handler.
///
/// An event is announced when it happens and delivered later by the event loop. Each code waits at most once in the
/// queue. A handler may yield: other codes are then delivered inside its yield, while its own code waits until it has
/// returned. So no handler is ever nested in itself, whatever comes in on the line.
class FileEvenements : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    /// Puts an event into the queue. code: one of EvenementPort or ErreurPort.
    void Annonce(int code);
    /// Empties the queue.
    void Oublie() { m_attente.clear(); }
    /// Between Retient and Relache nothing is delivered; announced events wait. Pairs may be nested.
    void Retient() { ++m_retenues; }
    void Relache();
    /// Code of the event being delivered, 0 when none is.
    int Code() const { return m_enCours.isEmpty() ? 0 : m_enCours.last(); }

Q_SIGNALS:
    /// Delivers the event Code().
    void Evenement();

private:
    void ArmeDistribution();
    void Distribue();
    qsizetype Prochain() const;

    QList<int> m_attente;
    QList<int> m_enCours; // codes being delivered, the innermost last
    int m_retenues = 0;
    bool m_distributionArmee = false;
};
