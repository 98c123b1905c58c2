#pragma once

#include <QStringList>

struct JaugeOutil;

/// Tells the operator that no gauge file is made, and that CheminRecep() holds the text of the bench.
QString SansFichierJauges();

/// What the operator has to know about the measures of a session before a gauge file is made of them: which could not
/// be read, and which may hold another value than the bench has sent.
class AvisMesures
{
public:
    /// The burst salve holds no measure, or a number that is too large for a gauge. place: number of the burst in the
    /// session, from 1.
    void NonLue(int place, const QString &salve);

    /// When the operator ended the session, characters had come for a tool that he had not asked for. place: the tool's
    /// number, from 1. caracteres: their number.
    void NonDemandee(int place, qsizetype caracteres);

    /// A burst holds the measure jauge, which goes into the gauge file. The operator is told of it if a field was not a
    /// plain number, if its letter is neither R nor D, or if the burst holds more than one measure. recue: the burst as
    /// it came, in which a control character within a number can still be seen.
    void Lue(int place, const QString &recue, const JaugeOutil &jauge);

    /// Tells all of it in one box, if there is anything to tell. lues: number of measures read; with 0 the box says
    /// that no gauge file is made.
    void Montre(int lues) const;

private:
    QStringList m_nonLues;
    QStringList m_douteuses;
};
