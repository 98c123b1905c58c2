#include "platform/serie/MSComm.h"

#include "platform/base/CedeLaMain.h"
#include "platform/base/Journal.h"
#include "platform/serie/OuvreLigne.h"

#include <QAbstractEventDispatcher>
#include <QDeadlineTimer>

#include <algorithm>
#include <utility>

namespace {

using namespace std::chrono_literals;
using Duree = CadenceEmission::Duree;

constexpr int TailleTamponUsuelle = 1024;
constexpr auto PeriodeSurveillance = 50ms;
constexpr Duree Transit = 2ms; // what an adapter adds to a line time

constexpr int FileSysteme = 4096; // characters that the system keeps at most

} // namespace

MSComm::MSComm(QObject *parent)
    : QObject(parent)
{
    connect(&m_emission, &EmissionPort::SousSeuil, this, [this] { m_evenements.Annonce(EvenementPort::Emission); });
    connect(&m_emission, &EmissionPort::Panne, this, &MSComm::Panne);
    m_surveillance.setInterval(PeriodeSurveillance);
    connect(&m_surveillance, &QTimer::timeout, this, &MSComm::Surveille);
    connect(&m_evenements, &FileEvenements::Evenement, this, &MSComm::Delivre);
}

MSComm::~MSComm()
{
    // The event loop may no longer run, so closing must not wait for the line.
    if (m_ligne)
        m_ligne->JetteEmission();
}

// ---- Opening and closing

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
    try {
        Ouvre();
    } catch (const Erreur &erreur) {
        qCInfo(JournalLigne) << "port" << m_commPort << "does not open:" << erreur.Numero() << erreur.Description();
        throw;
    }
}

void MSComm::Ouvre()
{
    std::unique_ptr<LigneSerie> ligne = m_fabrique ? m_fabrique(m_commPort) : OuvreLigne(m_commPort, m_dossierPorts);
    // Linux raises both lines when it opens the device, so they are set at once for a machine that must not see them
    // raised.
    ligne->PoseDTR(m_dtr);
    ligne->PoseRTS(m_rts || m_reglage.ARtsCts());
    ligne->PoseRemplacant(m_remplacant);
    m_xonXoff = FluxXonXoff(); // the last session's XOFF state does not apply
    RegleLigne(*ligne, m_reglage);
    ligne->JetteReception(); // characters that came while the port was closed

    m_emission.Ouvre(*ligne, m_reglage);
    m_ligne = std::move(ligne);
    m_veille.Ouvre(*m_ligne);
    m_retenue.Ouvre(*m_ligne, m_reglage);
    m_emission.SuitRetenue();
    connect(m_ligne.get(), &LigneSerie::Lisible, this, &MSComm::Recolte);
    m_ligne->AnnonceLisible(true);
    m_surveillance.start();
    qCInfo(JournalLigne) << "port" << m_commPort << "is open, RTS" << m_rts << "DTR" << m_dtr;
}

/// Closes the port. The characters that have left the queue first get their line time. It does not wait when the line
/// is held, or when characters are still in the queue: the sending was then cancelled.
void MSComm::Ferme()
{
    const bool retenue = Retenue(); // before the machine's XOFF is forgotten
    m_xonXoff.Pose(false);
    FreineMachine(); // sends the XON, or the machine would wait for it until the next transfer
    const bool vivante = !m_panne;
    const bool abandon = vivante && (m_emission.Nombre() > 0 || retenue);
    const CadenceEmission cadence = m_emission.Cadence();
    m_veille.Regarde(*m_ligne); // counts the last errors
    NoteFermeture(retenue);
    m_ajoutes -= m_emission.Nombre(); // these were never sent
    // Handlers that run while the line empties see a closed port.
    const std::unique_ptr<LigneSerie> ligne = std::move(m_ligne);
    m_emission.Ferme();
    ligne->AnnonceLisible(false);
    m_surveillance.stop();
    m_evenements.Oublie();
    m_panne.reset();
    m_recus.clear();
    m_veille.Oublie();
    if (!vivante)
        return;

    // Emptying the receive queue makes the system send XON to a machine that it holds back. Closing alone would not.
    ligne->JetteReception();
    const Duree tempsLigne = cadence.Reste(Horloge::Maintenant()) + cadence.Temps(2) + Transit;
    const auto fin = Horloge::Maintenant() + tempsLigne;
    if (!abandon)
        Attend(tempsLigne + JeuAdaptateur, [&] { return Horloge::Maintenant() >= fin && ligne->NonEmis() == 0; });
    // If the system still holds characters, closing would wait for a machine that may never take them.
    if (abandon || ligne->NonEmis() > 0)
        ligne->JetteEmission();
}

void MSComm::NoteFermeture(bool retenue) const
{
    const ComptesPort comptes = Comptes();
    const CompteursLigne &fautes = comptes.fautes;
    qCInfo(JournalLigne) << "port" << m_commPort << "closes," << (retenue ? "held," : "free,") << m_emission.Nombre()
                         << "characters thrown away," << comptes.emis << "sent," << comptes.recus << "received; breaks"
                         << fautes.pauses << "framing" << fautes.trame << "parity" << fautes.parite << "overrun"
                         << fautes.cadence << "lost" << fautes.debordements;
}

/// Runs the event loop until fini returns true or limite is over. The operator's input and OnComm are held back.
void MSComm::Attend(Duree limite, const std::function<bool()> &fini)
{
    QAbstractEventDispatcher *repartiteur = QAbstractEventDispatcher::instance();
    if (repartiteur == nullptr || fini())
        return;
    const QDeadlineTimer echeance(limite, Qt::PreciseTimer);
    QTimer battement;
    battement.setTimerType(Qt::PreciseTimer);
    battement.start(1ms);
    const SansEvenements sansEvenements(*this);
    while (!fini() && !echeance.hasExpired())
        repartiteur->processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
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

/// Notes that the device was unplugged and stops listening to its line, which would announce that without end.
void MSComm::Panne(const Erreur &erreur)
{
    qCInfo(JournalLigne) << "the device has gone:" << erreur.Numero() << erreur.Description();
    m_panne = erreur;
    m_ligne->AnnonceLisible(false);
    m_ajoutes -= m_emission.Nombre();
    m_emission.Arrete();
    m_surveillance.stop();
    m_veille.Oublie();
    SignaleMouvement();
}

// ---- Settings

/// Sets the line. Where the driver does not obey XOFF, the line is set without XON/XOFF and the control handles it.
void MSComm::RegleLigne(LigneSerie &ligne, const ReglagePort &reglage)
{
    ReglagePort pourLigne = reglage;
    const bool soiMeme = reglage.AXonXoff() && !ligne.ObeitXoff(reglage.flux);
    if (soiMeme)
        pourLigne.flux = reglage.ARtsCts() ? ControleFlux::RtsCts : ControleFlux::Aucun;
    ligne.Regle(pourLigne);
    m_xonXoff.Pose(soiMeme);
    qCInfo(JournalLigne) << "settings" << reglage.vitesse << "baud, parity" << static_cast<int>(reglage.parite)
                         << "data" << reglage.bitsDonnees << "stop" << reglage.demiBitsArret / 2.0 << "flow"
                         << static_cast<int>(reglage.flux) << (soiMeme ? "XOFF obeyed by the program" : "");
}

void MSComm::PoseReglage(const ReglagePort &reglage)
{
    if (m_ligne) {
        ExigeVivant();
        RegleLigne(*m_ligne, reglage);
        FreineMachine();
        if (!reglage.ARtsCts() || !m_reglage.ARtsCts())
            m_ligne->PoseRTS(m_rts || reglage.ARtsCts());
        m_emission.Regle(reglage);
        m_retenue.Regle(reglage);
        m_emission.SuitRetenue();
    }
    m_reglage = reglage;
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

void MSComm::setParityReplace(const QString &remplacant)
{
    m_parityReplace = remplacant;
    const QByteArray octets = OctetsEn1252(remplacant.left(1));
    m_remplacant = octets.isEmpty() ? std::nullopt : std::optional(octets.at(0));
    if (m_ligne)
        m_ligne->PoseRemplacant(m_remplacant);
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
    VerifieSeuilReception();
}

// ---- Receiving

int MSComm::TailleReception() const
{
    return m_inBufferSize > 0 ? m_inBufferSize : TailleTamponUsuelle;
}

/// How many characters may be read now. While the control handles XON/XOFF there is a reserve beyond the buffer's size,
/// because an XON is heard only after the characters before it have been read.
int MSComm::PlaceReception() const
{
    const int reserve = m_xonXoff.Actif() ? FluxXonXoff::Reserve : 0;
    return TailleReception() + reserve - static_cast<int>(m_recus.size());
}

void MSComm::Recolte()
{
    if (PlaceReception() <= 0) {
        m_ligne->AnnonceLisible(false);
        return;
    }
    const LectureLigne lecture = Releve(PlaceReception());
    Range(lecture);
    if (lecture.erreur)
        Surveille();
}

/// Reads at most place characters; none from an unplugged device.
LectureLigne MSComm::Releve(int place)
{
    try {
        LectureLigne lecture = m_xonXoff.Entend(m_ligne->Lit(place));
        if (m_xonXoff.Actif())
            m_emission.SuitRetenue();
        return lecture;
    } catch (const Erreur &erreur) {
        Panne(erreur);
        return {};
    }
}

/// Tells the machine XOFF when the receive buffer is nearly full and XON when it has emptied, where the driver does
/// not.
void MSComm::FreineMachine()
{
    const std::optional<char> signal = m_xonXoff.ADire(m_recus.size(), TailleReception());
    if (!signal || m_panne)
        return;
    try {
        if (m_ligne->Ecrit(&*signal, 1) == 1)
            m_xonXoff.Dit(*signal);
    } catch (const Erreur &erreur) {
        Panne(erreur);
    }
}

/// The characters of a reading after NullDiscard and ParityReplace.
QByteArray MSComm::Epure(const LectureLigne &lecture)
{
    QByteArray octets = lecture.octets;
    if (m_remplacant) {
        for (const qsizetype position : lecture.fausses)
            octets[position] = *m_remplacant;
    }
    if (m_nullDiscard)
        octets.removeIf([](char octet) { return octet == '\0'; });
    if (!octets.isEmpty())
        m_veille.NoteReception(octets.size());
    return octets;
}

void MSComm::Range(const LectureLigne &lecture)
{
    const QByteArray octets = Epure(lecture);
    if (octets.isEmpty())
        return;
    m_recus += octets;
    FreineMachine();
    SignaleMouvement();
    VerifieSeuilReception();
}

/// Resumes the reading after room was made in the receive buffer.
void MSComm::ReprendRecolte()
{
    if (m_panne)
        return;
    m_ligne->AnnonceLisible(true);
    FreineMachine();
}

bool MSComm::SeuilReceptionAtteint() const
{
    return m_rThreshold > 0 && m_recus.size() >= std::min(m_rThreshold, TailleReception());
}

void MSComm::VerifieSeuilReception()
{
    if (SeuilReceptionAtteint())
        m_evenements.Annonce(EvenementPort::Reception);
}

QString MSComm::Input()
{
    ExigeOuvert();
    if (m_recus.isEmpty()) {
        ExigeVivant();
        return {};
    }
    const qsizetype nombre = m_inputLen > 0 ? std::min<qsizetype>(m_inputLen, m_recus.size()) : m_recus.size();
    QString texte = TexteDe1252(m_recus.left(nombre));
    m_recus.remove(0, nombre);
    ReprendRecolte();
    // More characters wait: a loop that reads piece by piece must not sleep now.
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

/// Reads the system's characters before it throws them away, so that they can be returned and an XON among them is
/// heard.
QString MSComm::VideReception()
{
    ExigeVivant();
    const LectureLigne lecture = Releve(FileSysteme);
    const QByteArray jetes = std::exchange(m_recus, {}) + Epure(lecture);
    if (lecture.erreur)
        Surveille();
    ReprendRecolte();
    return TexteDe1252(jetes);
}

// ---- Sending

void MSComm::setSThreshold(int seuil)
{
    m_sThreshold = seuil;
    m_emission.setSeuil(seuil);
}

void MSComm::Output(const QString &texte)
{
    ExigeVivant();
    m_emission.Ajoute(OctetsEn1252(texte));
    m_ajoutes += texte.size();
}

int MSComm::OutBufferCount() const
{
    ExigeVivant();
    // A routine waits for the queue to be empty and must not sleep now, since the line has few characters left.
    if (m_emission.Nombre() == 0)
        SignaleMouvement();
    return m_emission.Nombre();
}

int MSComm::EnRoute() const
{
    ExigeVivant();
    return m_ligne->NonEmis();
}

/// Whether the machine or the device holds the line.
bool MSComm::Retenue()
{
    return m_retenue.ParMachine() || m_retenue.ParAppareil(Horloge::Maintenant());
}

void MSComm::VideEmission(int chaine)
{
    ExigeVivant();
    const auto termine = [this] { return !m_ligne || m_panne || m_emission.Nombre() == 0 || Retenue(); };
    const CadenceEmission &cadence = m_emission.Cadence();
    const int nombre = std::min(m_emission.Nombre(), chaine) + cadence.Avance();
    Attend(cadence.Temps(nombre) + JeuAdaptateur, termine);
    if (!m_ligne || m_panne || m_emission.Nombre() == 0)
        return;
    m_ajoutes -= m_emission.Nombre();
    m_emission.Jette();
}

// ---- Line states and errors

void MSComm::RemetComptes()
{
    m_veille.RemetComptes();
    m_ajoutes = m_emission.Nombre();
}

ComptesPort MSComm::Comptes() const
{
    ComptesPort comptes = m_veille.Comptes();
    comptes.emis = m_ajoutes - m_emission.Nombre();
    return comptes;
}

void MSComm::Surveille()
{
    const QList<int> codes = m_veille.Regarde(*m_ligne);
    for (const int code : codes) {
        qCInfo(JournalLigne) << "event" << code;
        m_evenements.Annonce(code);
    }
    m_emission.SuitRetenue();
    FreineMachine();
}

void MSComm::Delivre()
{
    // The announced characters may have been read or thrown away meanwhile.
    if (CommEvent() == EvenementPort::Reception && !SeuilReceptionAtteint())
        return;
    Q_EMIT OnComm();
}
