#pragma once

#include <QString>

// The transfer under way, as the menu commands, the dialogs and the routines share it.

/// Values of TypeTransfert.
enum ModeTransfert {
    AucunTransfert = 0,
    EmissionProgramme = 1,
    EmissionJauges = 2,
    ReceptionProgramme = 3,
    ReceptionJauges = 4,
    ReceptionBanc = 5,
};

constexpr bool EstEmission(ModeTransfert mode)
{
    return mode == EmissionProgramme || mode == EmissionJauges;
}

/// True while a transfer routine is running. Its dialog may be closed already, but the routine still returns from its
/// last yields: no other transfer may begin until then.
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

struct EtatTransfert
{
    ModeTransfert TypeTransfert = AucunTransfert; ///< set by the menu command
    bool FinTransfert = false; ///< a reception has reached its end, and its file is written or being written
    bool AnnuleRECEPT = false; ///< the operator has cancelled; stays until the next reception
    bool ForceRECEPT = false;  ///< the operator ends the reception with what has come
    QString NomFicRecep;       ///< name of the file being received, with extension, in upper case
    QString DossierRecep;      ///< its folder
    int OptionFinLig = 0;      ///< line end chosen for received lines, a TypeFinLigneRecue
    QString ChaineFinLigRecep; ///< that line ending, as the running reception puts it behind each line
};

extern EtatTransfert Transfert; ///< the transfer under way, or the last one

/// Sets OptionFinLig to the line ending of the configuration. A value that is none of the four counts as 0.
void ChoisitFinLigneRecep();

/// Sets ChaineFinLigRecep to the characters of OptionFinLig.
void ChoisitChaineFinLigRecep();

/// Full path of the file being received.
QString CheminRecep();
