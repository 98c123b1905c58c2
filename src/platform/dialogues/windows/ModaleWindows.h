#pragma once

#include <QDialog>

#include <windows.h>

/// Stands, unseen, for a dialog of Windows while that is open, so that the toolkit takes the program's other windows
/// for blocked and gives the keyboard back to fenetre afterwards.
class ModaleWindows
{
public:
    explicit ModaleWindows(QWidget *fenetre);

    /// The owner that the dialog of Windows is given.
    HWND Proprietaire() const { return m_proprietaire; }

private:
    QDialog m_ombre;
    HWND m_proprietaire;
};
