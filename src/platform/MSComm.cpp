#include "platform/MSComm.h"

#include "platform/CedeLaMain.h"
#include "platform/LignePosix.h"
#include "platform/PageCode1252.h"

#include <QAbstractEventDispatcher>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QSocketNotifier>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace {

using namespace std::chrono_literals;
using Duree = CadenceEmission::Duree;
using Horloge = std::chrono::steady_clock;

constexpr int PortMax = 16;
constexpr int TailleTamponUsuelle = 1024;
constexpr int ChaineMax = 100; // longest end-of-transfer chain
constexpr auto PeriodeSurveillance = 50ms;
constexpr auto PeriodeRetenue = 5ms; // how often a held line is tried where nothing wakes us
constexpr Duree Jeu = 20ms;          // what drivers and adapters add to a line time
constexpr int SautSysteme = 24;      // a driver counts down in steps of a FIFO, not character by character

constexpr int EvtEmission = 1;
constexpr int EvtReception = 2;

constexpr int EvtAnneau = 6;

constexpr std::array<std::pair<unsigned CompteursLigne::*, int>, 8> EvtCompteurs = {{
    {&CompteursLigne::cts, 3},
    {&CompteursLigne::dsr, 4},
    {&CompteursLigne::cd, 5},
    {&CompteursLigne::pauses, 1001},
    {&CompteursLigne::trame, 1004},
    {&CompteursLigne::cadence, 1006},
    {&CompteursLigne::debordements, 1008},
    {&CompteursLigne::parite, 1009},
}};

constexpr std::array<std::pair<bool EtatsLigne::*, int>, 3> EvtEtats = {{
    {&EtatsLigne::cts, 3},
    {&EtatsLigne::dsr, 4},
    {&EtatsLigne::cd, 5},
}};

std::chrono::milliseconds Arrondi(Duree duree)
{
    return std::chrono::ceil<std::chrono::milliseconds>(duree);
}

} // namespace

MSComm::MSComm(QObject *parent)
    : QObject(parent)
{
    m_minuteurPompe.setTimerType(Qt::PreciseTimer);
    m_minuteurPompe.setSingleShot(true);
    connect(&m_minuteurPompe, &QTimer::timeout, this, &MSComm::Pompe);
    m_surveillance.setInterval(PeriodeSurveillance);
    connect(&m_surveillance, &QTimer::timeout, this, &MSComm::Surveille);
    connect(&m_evenements, &EvenementsPort::Evenement, this, &MSComm::Delivre);
}

MSComm::~MSComm()
{
    // Nothing may run any more, so a line still open is not waited for.
    if (m_ligne && !m_panne) {
        Saute([&] { m_ligne->JetteEmission(); });
    }
}

// ---- Opening and closing

QString MSComm::CheminPort(int numPort) const
{
    QStringList chemins;
    if (!m_dossierPorts.isEmpty())
        chemins << QDir(m_dossierPorts).filePath(QStringLiteral("Com%1").arg(numPort));
    chemins << QStringLiteral("/dev/com%1").arg(numPort) << QStringLiteral("/dev/ttyS%1").arg(numPort - 1);
    const auto trouve =
        std::find_if(chemins.cbegin(), chemins.cend(), [](const QString &c) { return QFileInfo::exists(c); });
    return trouve == chemins.cend() ? QString() : *trouve;
}

void MSComm::setCommPort(int numPort)
{
    if (numPort < 1 || numPort > PortMax)
        throw Erreur(ErreurPort::Inconnu, QStringLiteral("Com%1").arg(numPort));
    if (m_ligne && numPort != m_commPort)
        throw Erreur(ErreurPort::DejaOuvert, QStringLiteral("CommPort"));
    m_commPort = numPort;
}

void MSComm::setPortOpen(bool ouvert)
{
    if (!ouvert) {
        if (m_ligne)
            Ferme();
        return;
    }
    if (m_ligne)
        throw Erreur(ErreurPort::Occupe, QStringLiteral("PortOpen"));
    Ouvre();
}

std::unique_ptr<LigneSerie> MSComm::OuvreLigne() const
{
    if (m_fabrique)
        return m_fabrique(m_commPort);
    const QString chemin = CheminPort(m_commPort);
    if (chemin.isEmpty())
        throw Erreur(ErreurPort::Inconnu, QStringLiteral("Com%1").arg(m_commPort));
    return std::make_unique<LignePosix>(chemin);
}

void MSComm::Ouvre()
{
    std::unique_ptr<LigneSerie> ligne = OuvreLigne();
    // Linux raises both lines as it opens the device; a machine that must not see them gets them lowered at once.
    ligne->PoseDTR(m_dtr);
    ligne->PoseRTS(m_rts || m_reglage.ARtsCts());
    ligne->Regle(m_reglage);
    ligne->JetteReception(); // a closed port receives nothing

    m_ligne = std::move(ligne);
    m_cadence = CadenceEmission();
    m_cadence.Regle(m_reglage.vitesse, m_reglage.BitsParCaractere());
    m_etats = m_ligne->Etats();
    m_compteurs = m_ligne->Compteurs();
    SuitCts();
    m_lecture = std::make_unique<QSocketNotifier>(m_ligne->Descripteur(), QSocketNotifier::Read);
    m_ecriture = std::make_unique<QSocketNotifier>(m_ligne->Descripteur(), QSocketNotifier::Write);
    m_ecriture->setEnabled(false);
    connect(m_lecture.get(), &QSocketNotifier::activated, this, &MSComm::Recolte);
    connect(m_ecriture.get(), &QSocketNotifier::activated, this, &MSComm::Pompe);
    m_surveillance.start();
}

void MSComm::Ferme()
{
    const bool vivante = !m_panne;
    const bool abandon = !m_aEmettre.isEmpty() || Retenue();
    const CadenceEmission cadence = m_cadence;
    // From here on the port is closed for everyone who runs while the line empties.
    const std::unique_ptr<LigneSerie> ligne = std::move(m_ligne);
    m_lecture.reset();
    m_ecriture.reset();
    m_surveillance.stop();
    m_minuteurPompe.stop();
    m_evenements.Oublie();
    m_panne.reset();
    m_recus.clear();
    m_aEmettre.clear();
    m_etats.reset();
    m_refus = m_reveilVain = m_seuilEmissionArme = false;
    m_systeme = 0;
    if (!vivante)
        return;

    Saute([&] {
        const auto partie = [&] { return cadence.Reste(Horloge::now()) == Duree(0) && ligne->NonEmis() == 0; };
        if (!abandon)
            Attend(cadence.Reste(Horloge::now()) + Jeu, partie);
        // A system that still holds characters would make the closing wait for a machine that may never take them.
        if (abandon || ligne->NonEmis() > 0)
            ligne->JetteEmission();
    });
}

/// Keeps the event loop turning until fini holds, no longer than limite. The operator's input and OnComm wait.
void MSComm::Attend(Duree limite, const std::function<bool()> &fini)
{
    QAbstractEventDispatcher *repartiteur = QAbstractEventDispatcher::instance();
    if (repartiteur == nullptr || fini())
        return;
    const QDeadlineTimer echeance(limite, Qt::PreciseTimer);
    QTimer battement;
    battement.setTimerType(Qt::PreciseTimer);
    battement.start(1ms);
    m_evenements.Retient();
    while (!fini() && !echeance.hasExpired())
        repartiteur->processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    m_evenements.Relache();
}

void MSComm::ExigeOuvert() const
{
    if (!m_ligne)
        throw Erreur(ErreurPort::Ferme, QStringLiteral("PortOpen"));
}

void MSComm::ExigeVivant() const
{
    ExigeOuvert();
    if (m_panne)
        throw Erreur(*m_panne);
}

/// The device has gone. Its descriptor would wake the notifiers without end.
void MSComm::Panne(const Erreur &erreur)
{
    m_panne = erreur;
    m_lecture->setEnabled(false);
    m_ecriture->setEnabled(false);
    m_surveillance.stop();
    m_minuteurPompe.stop();
    m_etats.reset();
    SignaleMouvement();
}

// ---- Settings

void MSComm::PoseReglage(const ReglagePort &reglage)
{
    if (m_ligne) {
        m_ligne->Regle(reglage);
        if (!reglage.ARtsCts() || !m_reglage.ARtsCts())
            m_ligne->PoseRTS(m_rts || reglage.ARtsCts());
        m_cadence.Regle(reglage.vitesse, reglage.BitsParCaractere());
    }
    m_reglage = reglage;
    SuitCts();
}

void MSComm::setSettings(const QString &settings)
{
    ReglagePort reglage = LitReglagePort(settings);
    reglage.flux = m_reglage.flux;
    PoseReglage(reglage);
    m_settings = settings;
}

void MSComm::setHandshaking(int flux)
{
    if (flux < 0 || flux > 3)
        throw Erreur(ErreurPort::Reglage, QStringLiteral("Handshaking %1").arg(flux));
    ReglagePort reglage = m_reglage;
    reglage.flux = static_cast<ControleFlux>(flux);
    PoseReglage(reglage);
}

void MSComm::setRTSEnable(bool actif)
{
    m_rts = actif;
    if (m_ligne && !m_reglage.ARtsCts())
        m_ligne->PoseRTS(actif);
}

void MSComm::setDTREnable(bool actif)
{
    m_dtr = actif;
    if (m_ligne)
        m_ligne->PoseDTR(actif);
}

void MSComm::setInBufferSize(int taille)
{
    if (m_ligne && taille != m_inBufferSize)
        throw Erreur(ErreurPort::DejaOuvert, QStringLiteral("InBufferSize"));
    m_inBufferSize = taille;
}

void MSComm::setOutBufferSize(int taille)
{
    if (m_ligne && taille != m_outBufferSize)
        throw Erreur(ErreurPort::DejaOuvert, QStringLiteral("OutBufferSize"));
    m_outBufferSize = taille;
}

void MSComm::setRThreshold(int seuil)
{
    if (seuil == m_rThreshold)
        return;
    m_rThreshold = seuil;
    ControleSeuilReception();
}

// ---- Receiving

int MSComm::PlaceReception() const
{
    const int taille = m_inBufferSize > 0 ? m_inBufferSize : TailleTamponUsuelle;
    return taille - static_cast<int>(m_recus.size());
}

void MSComm::Recolte()
{
    if (PlaceReception() <= 0) {
        m_lecture->setEnabled(false);
        return;
    }
    try {
        const LectureLigne lecture = m_ligne->Lit(PlaceReception());
        Range(lecture);
        m_lecture->setEnabled(PlaceReception() > 0);
        if (lecture.erreur)
            Surveille();
    } catch (const Erreur &erreur) {
        Panne(erreur);
    }
}

void MSComm::Range(const LectureLigne &lecture)
{
    QByteArray octets = lecture.octets;
    const QByteArray remplacant = OctetsEn1252(m_parityReplace.left(1));
    if (!remplacant.isEmpty()) {
        for (const qsizetype position : lecture.fausses)
            octets[position] = remplacant.at(0);
    }
    if (m_nullDiscard)
        octets.removeIf([](char octet) { return octet == '\0'; });
    if (octets.isEmpty())
        return;
    m_recus += octets;
    SignaleMouvement();
    ControleSeuilReception();
}

/// Room was made in the receive buffer.
void MSComm::ReprendRecolte()
{
    if (!m_panne)
        m_lecture->setEnabled(true);
}

/// A full buffer counts as the threshold reached: no more can come before something is read.
bool MSComm::SeuilReceptionAtteint() const
{
    return m_rThreshold > 0 && !m_recus.isEmpty() && (m_recus.size() >= m_rThreshold || PlaceReception() <= 0);
}

void MSComm::ControleSeuilReception()
{
    if (SeuilReceptionAtteint())
        m_evenements.Annonce(EvtReception);
}

QString MSComm::Input()
{
    ExigeOuvert();
    if (m_recus.isEmpty()) {
        ExigeVivant();
        return {};
    }
    const qsizetype nombre = m_inputLen > 0 ? std::min<qsizetype>(m_inputLen, m_recus.size()) : m_recus.size();
    const QString texte = TexteDe1252(m_recus.left(nombre));
    m_recus.remove(0, nombre);
    ReprendRecolte();
    // A loop that reads piece by piece comes back for the next one.
    if (!m_recus.isEmpty())
        SignaleMouvement();
    return texte;
}

int MSComm::InBufferCount() const
{
    ExigeOuvert();
    if (m_recus.isEmpty())
        ExigeVivant();
    return static_cast<int>(m_recus.size());
}

void MSComm::ViderReception()
{
    ExigeVivant();
    m_recus.clear();
    m_ligne->JetteReception();
    ReprendRecolte();
}

// ---- Sending

void MSComm::Output(const QString &texte)
{
    ExigeVivant();
    if (texte.isEmpty())
        return;
    m_aEmettre += OctetsEn1252(texte);
    m_seuilEmissionArme = true;
    if (!m_refus)
        Pompe();
}

int MSComm::OutBufferCount() const
{
    ExigeVivant();
    return static_cast<int>(m_aEmettre.size());
}

void MSComm::ViderEmission()
{
    ExigeVivant();
    const auto termine = [this] { return !m_ligne || m_panne || m_aEmettre.isEmpty() || Retenue(); };
    const qint64 nombre = std::min<qint64>(m_aEmettre.size(), ChaineMax) + m_cadence.Avance();
    Attend(m_cadence.Temps(nombre) + Jeu, termine);
    if (!m_ligne || m_panne || m_aEmettre.isEmpty())
        return;
    m_aEmettre.clear();
    m_minuteurPompe.stop();
    m_ecriture->setEnabled(false);
    m_refus = m_reveilVain = false;
    Saute([&] { m_ligne->JetteEmission(); });
}

/// Hands over what the cadence allows and sees to it that it is called again in time for the rest.
void MSComm::Pompe()
{
    if (m_aEmettre.isEmpty())
        return;
    try {
        if (m_cadence.Suspendue())
            Surveille();
        const int remis = Remet();
        m_aEmettre.remove(0, remis);
        if (remis > 0)
            SignaleMouvement();
        ProgrammePompe(remis);
    } catch (const Erreur &erreur) {
        Panne(erreur);
        return;
    }
    if (m_seuilEmissionArme && m_aEmettre.size() < m_sThreshold) {
        m_seuilEmissionArme = false;
        m_evenements.Annonce(EvtEmission);
    }
}

/// Hands the system what it may have now and returns how many characters it took.
int MSComm::Remet()
{
    const auto maintenant = Horloge::now();
    ObserveSysteme(maintenant);
    const int place = std::min(m_cadence.Place(maintenant, m_systeme), static_cast<int>(m_aEmettre.size()));
    if (place == 0) {
        m_refus = false;
        return 0;
    }
    const int remis = m_ligne->Ecrit(m_aEmettre.constData(), place);
    m_cadence.Remet(remis, maintenant);
    m_systeme += remis;
    m_reveilVain = remis == 0 && m_refus;
    m_refus = remis == 0;
    return remis;
}

/// The write notifier wakes a line that was refused. Where it wakes in vain the timer takes its turn, lest it spins.
void MSComm::ProgrammePompe(int remis)
{
    m_minuteurPompe.stop();
    const bool reste = !m_aEmettre.isEmpty();
    m_ecriture->setEnabled(reste && m_refus && !m_reveilVain);
    if (!reste || (m_refus && !m_reveilVain))
        return;
    const auto delai = Arrondi(m_cadence.AvantRemise(Horloge::now()));
    const bool retenue = m_cadence.Suspendue() || (remis == 0 && delai == 0ms);
    m_minuteurPompe.start(retenue ? PeriodeRetenue : std::max(delai, 1ms));
}

bool MSComm::Retenue()
{
    const auto maintenant = Horloge::now();
    ObserveSysteme(maintenant);
    const bool immobile = m_systeme > 0 && maintenant - m_progres > m_cadence.Temps(SautSysteme) + Jeu;
    return immobile || m_refus || m_cadence.Suspendue();
}

void MSComm::ObserveSysteme(CadenceEmission::Instant maintenant)
{
    const int systeme = m_ligne->NonEmis();
    if (systeme < m_systeme || systeme == 0)
        m_progres = maintenant;
    m_systeme = systeme;
}

// ---- Line states and errors

void MSComm::Surveille()
{
    const std::optional<EtatsLigne> etats = m_ligne->Etats();
    const EtatsLigne avant = m_etats.value_or(EtatsLigne());
    const EtatsLigne apres = etats.value_or(EtatsLigne());
    const CompteursLigne compteurs = m_ligne->Compteurs();

    for (const auto &[champ, code] : EvtEtats) {
        if (apres.*champ != avant.*champ)
            m_evenements.Annonce(code);
    }
    for (const auto &[champ, code] : EvtCompteurs) {
        if (compteurs.*champ != m_compteurs.*champ)
            m_evenements.Annonce(code);
    }
    // A ring is one event, though the driver counts its end.
    if (!avant.anneau && (apres.anneau || compteurs.anneau != m_compteurs.anneau))
        m_evenements.Annonce(EvtAnneau);

    m_etats = etats;
    m_compteurs = compteurs;
    SuitCts();
}

/// Under the handshake a low CTS stops the sending here: the characters would only gather in the adapter, out of reach.
void MSComm::SuitCts()
{
    if (m_reglage.ARtsCts() && m_etats && !m_etats->cts)
        m_cadence.Suspend(Horloge::now());
    else
        m_cadence.Reprend(Horloge::now());
}

void MSComm::Delivre()
{
    // What was announced may have been read or thrown away meanwhile.
    if (CommEvent() == EvtReception && !SeuilReceptionAtteint())
        return;
    Q_EMIT OnComm();
}
