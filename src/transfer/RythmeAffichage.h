#pragma once

#include <QElapsedTimer>

/// How often a transfer shows what its next step would replace at once. A label that changes lays the dialog out anew,
/// which takes as long as a fast line takes for a line of text, and the eye could not read more.
class RythmeAffichage
{
public:
    /// Whether it is time to show something.
    bool Permet() const { return !m_depuis.isValid() || m_depuis.elapsed() >= Pas; }
    /// Something was shown.
    void Note() { m_depuis.start(); }

private:
    static constexpr qint64 Pas = 40; // milliseconds
    QElapsedTimer m_depuis;
};
