#pragma once

#include <QDialog>

#include <windows.h>

/// An unseen modal dialog of the toolkit that is open as long as a dialog of Windows. So the toolkit blocks the
/// program's other windows meanwhile, and gives the keyboard back to fenetre afterwards.
class ModaleWindows
{
public:
    explicit ModaleWindows(QWidget *fenetre);

    /// The owner window for the dialog of Windows.
    HWND Proprietaire() const { return m_proprietaire; }

private:
    QDialog m_ombre;
    HWND m_proprietaire;
};
