#pragma once

#include <QObject>

#include <chrono>
#include <memory>

/// Wakes the event loop once, after a time given to the nanosecond. Qt's timers round up to whole milliseconds, in two
/// places: 1 to 2 ms late, which is several characters of a fast line. Each system has a timer of its own for this.
class MinuteurPrecis : public QObject
{
    Q_OBJECT
public:
    /// Raises ErreurPort::Indisponible when the system has no timer left.
    MinuteurPrecis();
    ~MinuteurPrecis() override;

    /// Echu comes after delai, at once where that is 0 or below; what was armed before is forgotten.
    void Arme(std::chrono::nanoseconds delai);
    void Arrete();

Q_SIGNALS:
    void Echu();

private:
    struct Interne;
    const std::unique_ptr<Interne> m_interne;
};
