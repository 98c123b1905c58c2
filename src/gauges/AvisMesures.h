#pragma once

#include <QStringList>

struct JaugeOutil;

/// What the operator has to know of the measures of a session before a gauge file is made of them: those that could not
/// be read, and those of which a value may be another one than the bench has sent.
class AvisMesures
{
public:
    /// The burst at this place of the session, from 1, holds no measure, or one with a number that no gauge can hold.
    void NonLue(int place, const QString &salve);

    /// For this tool so many characters had come when the operator ended the session, who had not asked for it.
    void NonDemandee(int place, qsizetype caracteres);

    /// The burst holds the measure jauge, which goes into the gauge file. It is told if a field was not a plain number,
    /// if the letter is neither R nor D, or if more than one measure's characters stand in the burst. recue: the burst
    /// as it came, where a control character in the midst of a number still shows.
    void Lue(int place, const QString &recue, const JaugeOutil &jauge);

    /// Tells all of it in one box; where there is nothing to tell there is no box. lues: measures that were read; none
    /// means that no gauge file is made.
    void Montre(int lues) const;

private:
    QStringList m_nonLues;
    QStringList m_douteuses;
};
