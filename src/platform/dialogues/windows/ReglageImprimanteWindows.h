#pragma once

#include <QString>

#include <windows.h>

class QPrinter;

/// The printer set-up of Windows: printer, paper with its tray, and how the sheet lies. The printer's own properties,
/// behind a button there, hold for the colour and the two sides of a sheet.
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
