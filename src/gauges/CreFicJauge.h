#pragma once

#include "platform/base/Erreur.h"

#include <QString>

/// The gauge file could not be written. This error carries its text, with what the operator has typed, which stands
/// nowhere else.
class JaugesNonEcrites : public Erreur
{
public:
    /// texte: the whole gauge file; intact: CheminRecep() still holds what it held before.
    JaugesNonEcrites(const Erreur &cause, const QString &texte, bool intact);

    const QString &TexteJauges() const { return m_texte; }
    bool Intact() const { return m_intact; }

private:
    QString m_texte;
    bool m_intact;
};

/// Makes the gauge file of ParamMac's machine from Jauge(1) to Jauge(NbJauges). It rounds X and Z to whole micrometres,
/// brings X to the radius or diameter that the machine wants, corrects it for the pocket, and warns of values above the
/// limits. It writes the file over CheminRecep() and makes it the document. Jauge holds the new X and Z afterwards, so
/// it must be called only once for a set of measures. Lignes holds the lines of the file. Raises JaugesNonEcrites when
/// the file cannot be written, and Depassement for a measure that is no finite number; in the latter case the file
/// stays as it was.
void CreFicJauge();
