#pragma once

#include <QElapsedTimer>

/// Limits how often a transfer shows a text that its next step replaces. Each change of a label lays out the dialog
/// anew, which takes as long as a line of text takes on a fast line, and the eye could not read more.
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
