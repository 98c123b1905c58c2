#pragma once

#include <QString>

#include <windows.h>

class QPrinter;

/// The printer set-up of Windows: printer, paper, tray and orientation. A button there opens the printer's own
/// properties; of these, colour and duplex are kept.
class ReglageImprimanteWindows
{
public:
    explicit ReglageImprimanteWindows(QPrinter &imprimante);
    ~ReglageImprimanteWindows();
    Q_DISABLE_COPY_MOVE(ReglageImprimanteWindows)

    /// Shows it over proprietaire and gives the printer what was chosen. False when the operator cancels.
    bool Demande(HWND proprietaire, const QString &titre);

private:
    void Propose();
    void Applique() const;

    QPrinter &m_imprimante;
    HGLOBAL m_noms = nullptr;     ///< the printer's name, a DEVNAMES
    HGLOBAL m_reglages = nullptr; ///< its settings, a DEVMODE
};
