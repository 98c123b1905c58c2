#include "shell/SauvegardeAuto.h"

#include "donnees/Sauvegardes.h"
#include "donnees/TexteEnCours.h"
#include "locale/Langue.h"
#include "locale/TextesErreur.h"
#include "platform/base/Erreur.h"
#include "platform/dialogues/Boites.h"
#include "platform/fichiers/FichierTenu.h"
#include "platform/fichiers/FichierTexte.h"
#include "platform/texte/LignesVolet.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QApplication>
#include <QDateTime>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QPointer>
#include <QTimer>

namespace {

using namespace std::chrono_literals;

constexpr auto ReposClavier = 1s;     ///< without a change, before the text is written
constexpr auto EntreDeuxEcrits = 30s; ///< between two writings, at least
constexpr auto Tranche = 2ms;         ///< of reading the pane; keys are handled between two of them
constexpr auto EntreDeuxTranches = 5ms;
constexpr auto AttenteVoieLibre = 1s; ///< before it looks again whether a dialog is open

constexpr Texte3 EchecTitre{u"Dossier Sauvegardes", u"Folder Sauvegardes", u"Carpeta Sauvegardes"};
constexpr Texte3 EchecTexte{
    u"Rien ne peut être gardé dans le dossier :\r%1\r%2\rUn texte modifié qui quitte le volet sans être enregistré est "
    u"perdu.",
    u"Nothing can be kept in the folder:\r%1\r%2\rA changed text that leaves the pane without being saved is lost.",
    u"No se puede guardar nada en la carpeta:\r%1\r%2\rUn texto modificado que deja el panel sin ser guardado se "
    u"pierde."};

constexpr Texte3 RetenuTitre{u"Texte non enregistré", u"Text not saved", u"Texto no guardado"};
constexpr Texte3 RetenuTexte{u"Le texte n'est pas enregistré. Il est gardé dans le fichier :\r%1",
                             u"The text is not saved. It is kept in the file:\r%1",
                             u"El texto no está guardado. Se conserva en el fichero:\r%1"};

constexpr Texte3 RetrouveTitre{u"Texte retrouvé", u"Text found again", u"Texto recuperado"};
constexpr Texte3 RetrouveTexte{
    u"Le programme s'est arrêté avant que ce texte soit enregistré :\r%1, %2\rL'ouvrir ? Sinon, il reste dans le "
    u"dossier :\r%3",
    u"The program stopped before this text was saved:\r%1, %2\rOpen it? If not, it stays in the folder:\r%3",
    u"El programa se detuvo antes de que este texto se guardara:\r%1, %2\r¿Abrirlo? Si no, queda en la carpeta:\r%3"};

constexpr Texte3 AutresTextes{u"Autres textes non enregistrés, gardés dans ce dossier : %1\r%2",
                              u"Other unsaved texts, kept in this folder: %1\r%2",
                              u"Otros textos no guardados, conservados en esta carpeta: %1\r%2"};

class SauvegardeAuto : public QObject
{
public:
    explicit SauvegardeAuto(FrmPrinc *fenetre);
    ~SauvegardeAuto() override;
    Q_DISABLE_COPY_MOVE(SauvegardeAuto)

    QString Retient();
    void RetientFinal(bool nonEnregistre);
    /// Tells that the file chemin holds the text of the pane as it is.
    void setGarde(const QString &chemin) { m_garde = chemin; }

private:
    void Change();
    void Part();
    void Repose();
    void Releve();
    void Echoue(const Erreur &cause);
    void Annonce();

    QTimer m_repos{this};   ///< runs while a change is to be written
    QTimer m_tranche{this}; ///< runs while the pane is read
    QTimer m_voie{this};    ///< runs while a failure waits to be told
    QElapsedTimer m_dernierEcrit;
    QString m_releve;   ///< text read from the pane so far
    int m_ligne = 0;    ///< next line to read
    QString m_garde;    ///< file that holds the text as it is now, "" for none
    QString m_echec;    ///< message for the last failure
    bool m_dit = false; ///< a failure has been told, or waits to be told
};

QPointer<SauvegardeAuto> sauvegarde;
RetientAussi *reception = nullptr; // there is one at a time

QString NomDuTexte()
{
    return Document.NomRecu.isEmpty() ? Document.NomFichier : Document.NomRecu;
}

SauvegardeAuto::SauvegardeAuto(FrmPrinc *fenetre)
    : QObject(fenetre)
{
    m_repos.setObjectName(QStringLiteral("ReposSauvegarde"));
    m_voie.setObjectName(QStringLiteral("AttenteSauvegarde"));
    for (QTimer *const minuterie : {&m_repos, &m_tranche, &m_voie})
        minuterie->setSingleShot(true);
    connect(&m_repos, &QTimer::timeout, this, &SauvegardeAuto::Repose);
    connect(&m_tranche, &QTimer::timeout, this, &SauvegardeAuto::Releve);
    connect(&m_voie, &QTimer::timeout, this, &SauvegardeAuto::Annonce);
    connect(fenetre->Text1, &RichTextBox::Change, this, &SauvegardeAuto::Change);
    connect(fenetre->Text1, &RichTextBox::Remplacement, this, &SauvegardeAuto::Part);
    connect(qApp, &QGuiApplication::commitDataRequest, this, RetientTexte, Qt::DirectConnection);
    EcouteSauvegardes([this](const Erreur &cause) { Echoue(cause); });
}

SauvegardeAuto::~SauvegardeAuto()
{
    EcouteSauvegardes({});
    FinitEnCours();
}

QString SauvegardeAuto::Retient()
{
    if (!TexteModifie()) {
        Document.FichierModifie ? ClasseEnCours() : RetireEnCours(); // a changed text is gone when the pane was emptied
        return {};
    }
    if (m_garde.isEmpty() || !FichierExiste(m_garde))
        m_garde = GardeTexte(NomDuTexte(), frmPrinc->Text1->Text());
    if (m_garde.isEmpty())
        LaisseEnCours();
    else
        RetireEnCours();
    return m_garde;
}

void SauvegardeAuto::RetientFinal(bool nonEnregistre)
{
    const QString chemin = Retient();
    const bool perdu = nonEnregistre && chemin.isEmpty();
    if (nonEnregistre && !perdu)
        MsgBox(Texte(RetenuTexte).arg(chemin), Boite::Exclamation, Texte(RetenuTitre));
    if (m_voie.isActive() || (perdu && TexteModifie()))
        Annonce();
}

/// Another text is about to replace this one.
void SauvegardeAuto::Part()
{
    Retient();
    m_tranche.stop();
}

void SauvegardeAuto::Change()
{
    m_garde.clear();
    m_tranche.stop();
    std::chrono::milliseconds attente = ReposClavier;
    if (m_dernierEcrit.isValid())
        attente = std::max(attente, EntreDeuxEcrits - std::chrono::milliseconds(m_dernierEcrit.elapsed()));
    m_repos.start(attente);
}

/// Nothing has changed for a while: begins to read the text.
void SauvegardeAuto::Repose()
{
    if (!TexteModifie() || !m_garde.isEmpty())
        return;
    if (EcritureEnRoute()) { // a slow disk
        m_repos.start(EntreDeuxEcrits);
        return;
    }
    m_ligne = 0;
    m_releve.clear();
    m_releve.reserve(frmPrinc->Text1->document()->characterCount() + frmPrinc->Text1->blockCount());
    Releve();
}

/// Reads the pane in slices. When the text changes meanwhile, Repose() begins again later.
void SauvegardeAuto::Releve()
{
    constexpr int LignesEnUneFois = 100;
    const RichTextBox &volet = *frmPrinc->Text1;
    const QDeadlineTimer fin(Tranche);
    while (m_ligne < volet.blockCount() && !fin.hasExpired()) {
        m_releve += LignesDe(volet, m_ligne, LignesEnUneFois);
        m_ligne += LignesEnUneFois;
    }
    if (m_ligne < volet.blockCount()) {
        m_tranche.start(EntreDeuxTranches);
        return;
    }
    if (TexteModifie()) {
        EcritEnCours(NomDuTexte(), std::exchange(m_releve, {}));
        m_dernierEcrit.start();
    }
}

void SauvegardeAuto::Echoue(const Erreur &cause)
{
    m_echec = Texte(EchecTexte).arg(DossierSauvegardes(), TexteErreur(cause));
    if (!std::exchange(m_dit, true))
        m_voie.start(0);
}

/// Tells the failure, after the command that met it and not on top of a dialog: a transfer may be running in it.
void SauvegardeAuto::Annonce()
{
    m_voie.stop();
    if (QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr)
        m_voie.start(AttenteVoieLibre);
    else
        MsgBox(m_echec, Boite::Exclamation, Texte(EchecTitre));
}

bool VeutOuvrir(const QString &chemin)
{
    const QDateTime ecrit = QFileInfo(chemin).lastModified();
    const QString date = ecrit.toString(QStringLiteral("yyyy-MM-dd")) + u' ' + ecrit.toString(QStringLiteral("HH:mm"));
    return Confirme(Texte(RetrouveTexte).arg(NomDuTexteEnCours(chemin), date, DossierSauvegardes()), Boite::Question,
                    Texte(RetrouveTitre));
}

/// False when the file cannot be read; the operator has been told.
bool OuvreRetrouve(const QString &chemin)
{
    OuvreDocument(chemin);
    if (Document.NomFichier != chemin)
        return false;
    Document.FichierModifie = true;
    sauvegarde->setGarde(chemin);
    return true;
}

} // namespace

void BrancheSauvegardeAuto()
{
    sauvegarde = new SauvegardeAuto(frmPrinc);
}

void RetientTexte()
{
    sauvegarde->Retient();
    if (reception != nullptr)
        reception->Retient();
}

RetientAussi::RetientAussi(const QString &nom, std::function<QString()> texte)
    : m_nom(nom)
    , m_texte(std::move(texte))
{
    reception = this;
}

RetientAussi::~RetientAussi()
{
    reception = nullptr;
}

void RetientAussi::Retient()
{
    const QString texte = m_texte();
    if (texte != m_retenu && !GardeTexte(m_nom, texte).isEmpty())
        m_retenu = texte;
}

void RetientTexteFinal(bool nonEnregistre)
{
    sauvegarde->RetientFinal(nonEnregistre);
}

void ProposeTextesRetrouves()
{
    bool ouvert = false;
    int autres = 0; // only one text can be opened
    for (const QString &chemin : TextesDAutrui()) {
        const FichierTenu tenu(chemin); // a running copy holds its own file; once held here, no other copy offers it
        if (!tenu.Tenu())
            continue;
        autres += ouvert ? 1 : 0;
        const bool ouvre = !ouvert && VeutOuvrir(chemin);
        const QString place = ClasseTexte(chemin);
        if (ouvre)
            ouvert = OuvreRetrouve(place);
    }
    if (autres > 0)
        MsgBox(Texte(AutresTextes).arg(QString::number(autres), DossierSauvegardes()), Boite::Information,
               Texte(RetrouveTitre));
}
