#pragma once

#include <QObject>

#include <chrono>
#include <memory>

/// A timer that fires once, with a resolution of nanoseconds. Qt's timers fire 1 to 2 ms late, because they round up to
/// whole milliseconds twice; on a fast line that is several characters. Each system implements it with its own timer.
class MinuteurPrecis : public QObject
{
    Q_OBJECT
public:
    /// Raises ErreurPort::Indisponible when the system has no timer left.
    MinuteurPrecis();
    ~MinuteurPrecis() override;

    /// Echu is emitted after delai, at once when that is 0 or below. An earlier delay is forgotten.
    void Arme(std::chrono::nanoseconds delai);
    void Arrete();

Q_SIGNALS:
    void Echu();

private:
    struct Interne;
    const std::unique_ptr<Interne> m_interne;
};
