#pragma once

#include "locale/Langue.h"

class VueTransfert;
namespace Ui {
class Em_Rc;
}

/// A routine that receives. It may return long after the dialog has been closed.
using RoutineReception = void (*)(VueTransfert &vue);

/// What a transfer shows of itself, in the words of the transfer. A routine that sends or receives sees the dialog
/// through it alone. It lives as long as the dialog, which outlives every routine that it has started.
class VueTransfert
{
public:
    /// dialogue: its controls, which may be made later, but before anything is shown.
    explicit VueTransfert(Ui::Em_Rc &dialogue);

    /// What the operator has to do at the machine or at the bench; empty for nothing.
    void Consigne(const QString &texte);

    /// Where the transfer stands.
    void Statut(const Texte3 &texte, const QString &suite = {});
    void EffaceStatut();

    /// Whether the configuration asks for the echo, which shows the data as they pass.
    static bool AvecEcho();
    /// Shows the lines of the echo if the configuration asks for them. Otherwise they are hidden.
    void MontreEcho();
    /// Show data that pass, with the names of their control characters, or a text in their place. Without the echo they
    /// do nothing.
    void EchoLigne(const QString &donnees);
    void EchoLigne(const Texte3 &texte, const QString &suite = {});
    void EchoCaractere(const QString &donnees);
    void EchoCaractere(const Texte3 &texte);

    /// Shows the progress bar at fait of total, with texte in it. total: above 0.
    void Progression(int fait, int total, const QString &texte);
    void CacheProgression();

    /// Says before a transfer what will go out, and afterwards what has passed and what was lost. alerte: in the colour
    /// and with the sign of a warning.
    void Bilan(const QString &texte, bool alerte);
    /// texte, elided at the place ou where a line of Bilan() has no room for it beside the text voisin.
    QString CoupePourBilan(const QString &texte, const QString &voisin, Qt::TextElideMode ou) const;

    /// A sending begins: what an earlier one has shown goes, and no other configuration can be chosen any more.
    void DebuteEmission();
    /// permis: a measure of the bench was received, so the operator may ask for the next tool or end the reception.
    /// While a measure is awaited he may not.
    void PermetSuite(bool permis);
    /// The button that cancels a transfer reads "Close" from now on.
    void OffreFermer();
    /// The same for the button that cancels a reception from the bench.
    void OffreFermerBanc();

    /// The title of the dialog, for a box on top of it.
    QString Titre() const;

private:
    Ui::Em_Rc &m_dialogue;
};
