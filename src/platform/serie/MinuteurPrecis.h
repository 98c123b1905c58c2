#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <chrono>

/// Wakes the event loop once, after a time given to the nanosecond. Qt's timers round up to whole milliseconds, in two
/// places: 1 to 2 ms late, which is several characters of a fast line.
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
    void Lit();

    const int m_fd;
    QSocketNotifier m_reveil;
};
