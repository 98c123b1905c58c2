#include "platform/serie/windows/LigneWindows.h"

#include "platform/base/Erreur.h"
#include "platform/base/windows/CauseWindows.h"
#include "platform/serie/ErreurPort.h"

#include <QWinEventNotifier>

#include <algorithm>
#include <utility>

#include <windows.h>

namespace {

struct Faute
{
    DWORD drapeau;
    unsigned CompteursLigne::*compte;
    bool deCaractere; // concerns a character that is still to be read
};

constexpr Faute Fautes[] = {
    {CE_BREAK, &CompteursLigne::pauses, true},         {CE_FRAME, &CompteursLigne::trame, true},
    {CE_RXPARITY, &CompteursLigne::parite, true},      {CE_OVERRUN, &CompteursLigne::cadence, false},
    {CE_RXOVER, &CompteursLigne::debordements, false},
};

/// A driver that stops at XOFF. With any other driver the control stops the sending itself.
struct PiloteObeissant
{
    QLatin1String service;
    bool aussiRtsCts; // also when RTS/CTS is used as well
};

constexpr PiloteObeissant PilotesObeissants[] = {
    {QLatin1String("Serial"), true},
    {QLatin1String("FTSER2K"), false},
    {QLatin1String("silabser"), false},
};

int NumeroOuverture(DWORD erreur)
{
    switch (erreur) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_UNIT:
    case ERROR_DEV_NOT_EXIST:
    case ErreurAppareil:
        return ErreurPort::Inconnu;
    case ERROR_ACCESS_DENIED: // on a serial port this only means that another program has it
    case ERROR_SHARING_VIOLATION:
    case ERROR_BUSY:
        return ErreurPort::Occupe;
    case ERROR_INVALID_FUNCTION:
    case ERROR_INVALID_HANDLE:
    case ERROR_INVALID_PARAMETER:
    case ERROR_NOT_SUPPORTED:
        return ErreurPort::PasUneLigne;
    default:
        return ErreurPort::Indisponible;
    }
}

[[noreturn]] void EchecOuverture(const QString &port, DWORD erreur)
{
    throw Erreur(NumeroOuverture(erreur), port, static_cast<int>(erreur));
}

/// Numbers above 9 can be opened only with this prefix.
PoigneeWindows Ouvre(const QString &port)
{
    const std::wstring chemin = (QStringLiteral("\\\\.\\") + port).toStdWString();
    const HANDLE poignee = CreateFileW(chemin.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                       FILE_FLAG_OVERLAPPED, nullptr);
    if (poignee == INVALID_HANDLE_VALUE)
        EchecOuverture(port, GetLastError());
    return PoigneeWindows(poignee);
}

} // namespace

LigneWindows::LigneWindows(const QString &port, const QString &pilote)
    : m_pilote(pilote)
    , m_port(Ouvre(port))
    , m_premier(m_port.get())
    , m_suite(m_port.get())
{
    if (const int erreur = PreparePort(m_port.get()))
        EchecOuverture(port, static_cast<DWORD>(erreur));
    m_premier.Lit(1);
    m_reveil = std::make_unique<QWinEventNotifier>(m_premier.Signal());
    m_reveil->setEnabled(false);
    connect(m_reveil.get(), &QWinEventNotifier::activated, this, &LigneWindows::Lisible);
}

LigneWindows::~LigneWindows() = default;

void LigneWindows::Regle(const ReglagePort &reglage)
{
    DemandeLigne demande = m_demande;
    demande.reglage = reglage;
    if (m_reglee && demande == m_demande)
        return;
    ReglePort(m_port.get(), demande);
    m_demande = demande;
    m_reglee = true;
}

void LigneWindows::PoseRemplacant(std::optional<char> remplacant)
{
    if (std::exchange(m_demande.remplacant, remplacant) != remplacant && m_reglee)
        Saute([this] { ReglePort(m_port.get(), m_demande); });
}

void LigneWindows::PoseRTS(bool actif)
{
    m_demande.rts = actif;
    EscapeCommFunction(m_port.get(), actif ? SETRTS : CLRRTS);
}

void LigneWindows::PoseDTR(bool actif)
{
    m_demande.dtr = actif;
    EscapeCommFunction(m_port.get(), actif ? SETDTR : CLRDTR);
}

bool LigneWindows::ObeitXoff(ControleFlux flux) const
{
    if (m_pilote.isEmpty())
        return true;
    return std::ranges::any_of(PilotesObeissants, [&](const PiloteObeissant &pilote) {
        return m_pilote.compare(pilote.service, Qt::CaseInsensitive) == 0 &&
               (pilote.aussiRtsCts || flux == ControleFlux::XonXoff);
    });
}

void LigneWindows::AnnonceLisible(bool annonce)
{
    m_reveil->setEnabled(annonce);
}

LectureLigne LigneWindows::Lit(int tailleMax)
{
    const std::optional<EtatPilote> etat = Interroge();
    LectureLigne lecture;
    lecture.erreur = etat && etat->faute;
    if (m_premier.EnCours()) {
        if (m_cause != 0)
            throw Erreur(ErreurPort::Lecture, QString(), m_cause);
        return lecture;
    }
    m_premier.Exige();
    lecture.octets = m_premier.Octets();
    if (const int suite = std::min(etat ? etat->recus : 0, tailleMax - 1); suite > 0) {
        m_suite.Lit(suite);
        m_suite.Termine();
        lecture.octets += m_suite.Octets();
    }
    m_premier.Lit(1);
    return lecture;
}

int LigneWindows::Ecrit(const char *octets, int nombre)
{
    EchangeWindows &echange = EcritureLibre();
    echange.Ecrit(QByteArray(octets, nombre));
    if (!echange.EnCours())
        echange.Exige();
    return nombre;
}

/// A write that has ended well, or else a new one. Raises what a write that ended badly raises.
EchangeWindows &LigneWindows::EcritureLibre()
{
    const auto libre = std::ranges::find_if(m_ecritures, [](const auto &echange) { return !echange->EnCours(); });
    if (libre == m_ecritures.end())
        return *m_ecritures.emplace_back(std::make_unique<EchangeWindows>(m_port.get()));
    (*libre)->Exige();
    return **libre;
}

/// Some drivers count the characters that wait. Others only keep the writes pending.
int LigneWindows::NonEmis()
{
    const std::optional<EtatPilote> etat = Interroge();
    if (!etat || etat->nonEmis > 0)
        return etat ? etat->nonEmis : 0;
    int nombre = 0;
    for (const auto &echange : m_ecritures)
        nombre += echange->EnCours() ? echange->Taille() : 0;
    return nombre;
}

void LigneWindows::JetteReception()
{
    PurgeComm(m_port.get(), PURGE_RXCLEAR);
    if (!m_premier.EnCours())
        m_premier.Lit(1);
}

void LigneWindows::JetteEmission()
{
    PurgeComm(m_port.get(), PURGE_TXABORT | PURGE_TXCLEAR);
    for (const auto &echange : m_ecritures)
        echange->Abandonne();
    // The writes that have ended were cut short on purpose: their failure must not be raised later.
    std::erase_if(m_ecritures, [](const auto &echange) { return !echange->EnCours(); });
}

std::optional<EtatsLigne> LigneWindows::Etats()
{
    DWORD lignes = 0;
    if (GetCommModemStatus(m_port.get(), &lignes) == FALSE)
        return {};
    EtatsLigne etats;
    etats.cts = lignes & MS_CTS_ON;
    etats.dsr = lignes & MS_DSR_ON;
    etats.cd = lignes & MS_RLSD_ON;
    etats.anneau = lignes & MS_RING_ON;
    return etats;
}

CompteursLigne LigneWindows::Compteurs()
{
    Interroge();
    return m_compteurs;
}

/// Asks the driver for its state, and counts the errors that it reports. Gives nothing when the device has gone. It
/// then wakes the event loop as well, since some drivers never end the pending read.
std::optional<LigneWindows::EtatPilote> LigneWindows::Interroge()
{
    DWORD drapeaux = 0;
    COMSTAT files{};
    if (ClearCommError(m_port.get(), &drapeaux, &files) == FALSE) {
        m_cause = static_cast<int>(GetLastError());
        m_premier.Reveille();
        return {};
    }
    EtatPilote etat{static_cast<int>(files.cbInQue), static_cast<int>(files.cbOutQue), false};
    for (const Faute &faute : Fautes) {
        if ((drapeaux & faute.drapeau) == 0)
            continue;
        ++(m_compteurs.*faute.compte);
        etat.faute = etat.faute || faute.deCaractere;
    }
    return etat;
}
