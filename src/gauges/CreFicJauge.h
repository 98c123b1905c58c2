#pragma once

#include "platform/base/Erreur.h"

#include <QString>

/// The gauge file could not be written. It holds what the operator has typed, which stands nowhere else.
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

/// Makes the gauge file of ParamMac's machine from Jauge(1) to Jauge(NbJauges): brings X and Z to whole micrometres, X
/// to the radius or diameter that the machine wants and to its pocket, warns of what is above the limits, writes the
/// file over CheminRecep() and makes it the document. Jauge holds the new X and Z afterwards, so that it works once on
/// a set of measures; Lignes holds the file.
/// Raises JaugesNonEcrites when the file cannot be written, and Depassement for a measure that is no finite number; the
/// file then stays as it was.
void CreFicJauge();
