#pragma once

#include "ui_FrmPrinc.h"

#include <QMainWindow>
#include <QTimer>

#include <optional>

class CadreExplorateur;
class CommonDialog;
class MSComm;

/// The main window as a view: toolbar, program pane, explorer column, status panel with its lamps, and two timers.
/// Menus.cpp connects its commands. The whole program uses its controls by name.
///
/// Label1, Label3, Label5 are the captions of Label2 (file), Label4 (configuration) and Label6 (its comment); Text1 is
/// the program, Text2 what a reception by file has received so far; Picture11 is the status panel.
class FrmPrinc : public QMainWindow, public Ui::FrmPrinc
{
    Q_OBJECT

public:
    FrmPrinc();
    ~FrmPrinc() override;

    MSComm *const MSComm1;              ///< the one serial line
    CommonDialog *const CommonDialog1;  ///< the file dialog that all commands share
    CadreExplorateur *Frame1 = nullptr; ///< the explorer column; nullptr before CreeExplorateur()
    bool PortOuvert = false;            ///< what the lamps show; set when the port opens or closes, and by UpdateTimer
    QTimer UpdateTimer;                 ///< 1000 ms: the lamps follow the port
    QTimer Timer2;                      ///< 5000 ms, once: clears Etat

    /// Shows a state of the port in Etat; Timer2 clears it.
    void MontreEtat(const QString &message);

    /// Shows the port as open or closed by its lamp, with texte beside it; a null text shows the usual words.
    void MontrePort(bool ouvert, const QString &texte = {});

    /// Enables or disables the commands that work on the file in the pane: edit, save, print; entries and buttons 2,
    /// 4, 5.
    void ActiveFichier(bool active);

    /// Turns the lamps of sending and reception off.
    void EteintTransfert();

    /// Enables or disables the four commands that send: menu entries and buttons 9 and 11.
    void ActiveEmission(bool active);

    /// Enables the commands that receive, with their menu and the buttons 10, 12 and 13.
    void ActiveReception();

    /// The toolbar button at position 1 to 17; nullptr for the separators 7 and 14 and for any other number.
    QAction *Bouton(int position) const;

    /// Width of the explorer column in pixels, or the width that it will get when it is made.
    int LargeurExplorateur() const { return m_largeurExplorateur; }
    void setLargeurExplorateur(int largeur) { m_largeurExplorateur = largeur; }

    /// Makes the explorer column, with its captions. Its first opening does this: many operators never open it, and the
    /// program starts faster without it.
    CadreExplorateur *CreeExplorateur();

    bool ExplorateurMontre() const;

    /// The folder selected in the column, if the operator uses it for opening and receiving programs (CheckDOS). None
    /// otherwise, or when its volume has been taken out.
    std::optional<QString> DossierApplique() const;

    /// Reads the list of files in the column again, because a program has been received.
    void ActualiseFichiers();

    /// Shows or hides the explorer column, together with its menu entry and button 15. The column has been made.
    void MontreExplorateur(bool montre);

Q_SIGNALS:
    void Form_Unload();                        ///< the operator closes the window; it closes when the handler returns
    void FichierDepose(const QString &chemin); ///< the operator has dropped a file on the window, or on the pane in it

protected:
    void changeEvent(QEvent *evenement) override;
    void closeEvent(QCloseEvent *evenement) override;
    void dragEnterEvent(QDragEnterEvent *evenement) override;
    void dragMoveEvent(QDragMoveEvent *evenement) override;
    void dropEvent(QDropEvent *evenement) override;

private:
    void UpdateTimer_Timer();
    void Timer2_Timer();
    void NommeControles();
    void PoseIcones();
    void DitLampes();

    int m_largeurExplorateur = 225;
};

extern FrmPrinc *frmPrinc; ///< its one instance, alive as long as the program
