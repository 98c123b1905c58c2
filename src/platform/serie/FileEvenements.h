#pragma once

#include <QList>
#include <QObject>

/// The queue of events between the line and the program's handler.
///
/// An event is announced when it happens and delivered by the event loop, never inside the announcement. One code waits
/// at most once: what counts is that something new happened. While the handler of a code runs, and may yield, other
/// codes are delivered inside its yield but the same code waits until it has returned. So the stack holds each handler
/// at most once, whatever comes in on the line.
class FileEvenements : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    void Annonce(int code);
    /// Forgets what waits.
    void Oublie() { m_attente.clear(); }
    /// Between the two nothing is delivered; what is announced waits. Pairs may be nested.
    void Retient() { ++m_retenues; }
    void Relache();
    /// Code under delivery, 0 outside.
    int Code() const { return m_enCours.isEmpty() ? 0 : m_enCours.last(); }

Q_SIGNALS:
    /// The event Code() is there.
    void Evenement();

private:
    void ArmeDistribution();
    void Distribue();
    qsizetype Prochain() const;

    QList<int> m_attente;
    QList<int> m_enCours; // innermost last
    int m_retenues = 0;
    bool m_distributionArmee = false;
};
