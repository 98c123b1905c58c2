#include "platform/serie/windows/ReglageWindows.h"

#include "platform/base/Erreur.h"
#include "platform/serie/CaracteresFlux.h"
#include "platform/serie/ErreurPort.h"

#include <windows.h>

namespace {

constexpr DWORD TailleFiles = 4096; // characters that the driver keeps each way, unless it has a size of its own
constexpr WORD Marge =
    512; // characters: the machine is stopped when only this much room is left, and released when only this many wait

BYTE CodeParite(Parite parite)
{
    switch (parite) {
    case Parite::Aucune:
        return NOPARITY;
    case Parite::Impaire:
        return ODDPARITY;
    case Parite::Paire:
        return EVENPARITY;
    case Parite::Marque:
        return MARKPARITY;
    case Parite::Espace:
        return SPACEPARITY;
    }
    return NOPARITY;
}

BYTE CodeArret(int demiBits)
{
    constexpr BYTE codes[] = {ONESTOPBIT, ONE5STOPBITS, TWOSTOPBITS};
    return codes[demiBits - 2];
}

BYTE CodeRts(const DemandeLigne &demande)
{
    if (demande.reglage.ARtsCts())
        return RTS_CONTROL_HANDSHAKE;
    return demande.rts ? RTS_CONTROL_ENABLE : RTS_CONTROL_DISABLE;
}

DCB BlocDe(const DemandeLigne &demande)
{
    const ReglagePort &reglage = demande.reglage;
    DCB bloc{};
    bloc.DCBlength = sizeof bloc;
    bloc.BaudRate = static_cast<DWORD>(reglage.vitesse);
    bloc.ByteSize = static_cast<BYTE>(reglage.bitsDonnees);
    bloc.Parity = CodeParite(reglage.parite);
    bloc.StopBits = CodeArret(reglage.demiBitsArret);
    bloc.fBinary = TRUE;
    bloc.fParity = reglage.parite != Parite::Aucune;
    bloc.fErrorChar = demande.remplacant.has_value();
    bloc.ErrorChar = demande.remplacant.value_or('\0');
    bloc.fOutX = bloc.fInX = reglage.AXonXoff();
    bloc.fTXContinueOnXoff = TRUE; // a machine that is held back still gets what we send
    bloc.XonChar = Xon;
    bloc.XoffChar = Xoff;
    bloc.XonLim = bloc.XoffLim = Marge;
    bloc.fOutxCtsFlow = reglage.ARtsCts();
    bloc.fRtsControl = CodeRts(demande) & 3U;
    bloc.fDtrControl = demande.dtr ? DTR_CONTROL_ENABLE : DTR_CONTROL_DISABLE;
    return bloc;
}

/// Finds which part of demande the driver refuses. The driver does not tell, so the parts are tried one by one.
int NumeroRefus(HANDLE port, const DCB &demande, const DCB &ancien)
{
    DCB essai = ancien;
    if (SetCommState(port, &essai) == FALSE)
        return ErreurPort::Reglage; // it refuses even its present settings
    essai.BaudRate = demande.BaudRate;
    if (SetCommState(port, &essai) == FALSE)
        return ErreurPort::Vitesse;
    essai.ByteSize = demande.ByteSize;
    essai.fParity = FALSE;
    essai.Parity = NOPARITY;
    essai.StopBits = ONESTOPBIT;
    return SetCommState(port, &essai) == FALSE ? ErreurPort::BitsDonnees : ErreurPort::Reglage;
}

} // namespace

int PreparePort(void *port)
{
    DCB bloc = BlocDe(DemandeLigne());
    COMMTIMEOUTS sansDelai{};
    DCB ancien{};
    ancien.DCBlength = sizeof ancien;
    if (GetCommState(port, &ancien) == FALSE || SetCommTimeouts(port, &sansDelai) == FALSE)
        return static_cast<int>(GetLastError());
    SetupComm(port, TailleFiles, TailleFiles);
    SetCommState(port, &bloc);
    PurgeComm(port, PURGE_RXABORT | PURGE_RXCLEAR | PURGE_TXABORT | PURGE_TXCLEAR);
    return 0;
}

void ReglePort(void *port, const DemandeLigne &demande)
{
    DCB ancien{};
    ancien.DCBlength = sizeof ancien;
    DCB bloc = BlocDe(demande);
    if (GetCommState(port, &ancien) != FALSE && SetCommState(port, &bloc) != FALSE)
        return;
    const int cause = static_cast<int>(GetLastError());
    const int numero = NumeroRefus(port, bloc, ancien);
    SetCommState(port, &ancien);
    throw Erreur(numero, QString(), cause);
}
