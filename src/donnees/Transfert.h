#pragma once

#include <QString>

// The transfer under way, as the menu commands, the dialogs and the routines share it.

/// Values of TypeTransfert.
enum ModeTransfert {
    EmissionProgramme = 1,
    EmissionJauges = 2,
    ReceptionProgramme = 3,
    ReceptionJauges = 4,
    ReceptionBanc = 5,
};

/// True while a transfer routine stands on the stack. The dialog that it belongs to may be closed already; no other
/// transfer may begin inside its last yields.
bool TransfertEnCours();

/// Makes TransfertEnCours() true as long as it lives.
class EnTransfert
{
public:
    EnTransfert();
    ~EnTransfert();
    EnTransfert(const EnTransfert &) = delete;
    EnTransfert &operator=(const EnTransfert &) = delete;
};

extern int TypeTransfert; ///< mode of the transfer, set by the menu command
extern int FinTransfert;  ///< 1: a reception has reached its end, and its file is written or being written
extern int AnnuleRECEPT;  ///< 1: the operator has cancelled; stays until the next reception
extern int ForceRECEPT;   ///< 1: the operator ends the reception with what has come

extern QString NomFicRecep;       ///< name of the file being received, with extension, in upper case
extern QString DossierRecep;      ///< its folder
extern int OptionFinLig;          ///< line ending chosen for received lines: 0 none, 1 LF, 2 CR, 3 CR + LF
extern QString ChaineFinLigRecep; ///< that line ending, as the running reception puts it behind each line

/// The line ending of the configuration becomes the choice; what is none of the four counts as 0.
void ChoisitFinLigneRecep();

/// ChaineFinLigRecep becomes the line ending of OptionFinLig.
void ChoisitChaineFinLigRecep();

/// Full path of the file being received.
QString CheminRecep();
