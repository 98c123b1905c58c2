#include "transfer/Emission.h"

#include "donnees/Lignes.h"
#include "donnees/ParamCom.h"
#include "locale/Comptes.h"
#include "locale/Langue.h"
#include "platform/base/CedeLaMain.h"
#include "platform/base/Erreur.h"
#include "platform/base/FinsDeLigne.h"
#include "platform/base/Nombres.h"
#include "platform/serie/MSComm.h"
#include "shell/FrmPrinc.h"
#include "transfer/Avancement.h"
#include "transfer/Bilan.h"
#include "transfer/PortCom.h"
#include "transfer/RythmeAffichage.h"
#include "transfer/VueTransfert.h"

#include <optional>

namespace {

constexpr Texte3 DebutProgramme{u"Emission Début de programme", u"Sending Beginning of program",
                                u"Emisión Principio de programa"};
constexpr Texte3 EmissionBloc{u"Emission du fichier. Bloc : ", u"Sending of the file. Block : ",
                              u"Emisión del fichero. Bloque : "};
constexpr Texte3 EmissionLigne{u"Emission ligne ", u"Sending line ", u"Emisión línea "};
constexpr Texte3 FinDeTransfert{u"Emission fin de transfert", u"Sending end of transfer",
                                u"Emisión fino de transferencia"};
constexpr Texte3 Succes{u"Transfert terminé avec succès !", u"Transfer finished successfully !",
                        u"Transferencia terminada con éxito !"};

constexpr Texte3 RienEnvoye{u"Le texte envoyé est vide !", u"The text sent is empty !",
                            u"¡El texto enviado está vacío!"};
constexpr Texte3 EnvoyeEnPartie{u"Le programme n'est pas parti en entier : %1 sur %2 !",
                                u"The program has not gone out whole: %1 of %2 !",
                                u"El programa no ha salido entero: ¡%1 de %2!"};

constexpr int BlocParDefaut = 512; // characters, for a configuration whose transmit buffer has the size 0

/// One sending: the steps that both ways share, and the progress that the operator sees. A text that the next one would
/// replace before he can read it is not shown. The last text is always shown.
class Emission
{
public:
    /// total: characters that the body will send, for the progress bar.
    Emission(VueTransfert &vue, qint64 total);
    ~Emission();
    Q_DISABLE_COPY_MOVE(Emission)

    /// Opens the port and sends the beginning of program.
    void Debut();
    void Ecrit(const QString &texte);
    void Attend();
    void Fin();
    /// texte: has to live as long as this object.
    void Statut(const Texte3 &texte, const QString &suite = {});
    void Echo(const QString &texte);

private:
    void Tourne();
    void AttendLigne();
    void Montre();

    VueTransfert &m_vue;
    Avancement m_avancement;
    qint64 m_ecrits = 0;
    const Texte3 *m_statut = nullptr; // what is still to be shown
    QString m_suite;
    std::optional<QString> m_echo;
    RythmeAffichage m_rythme;
};

Emission::Emission(VueTransfert &vue, qint64 total)
    : m_vue(vue)
    , m_avancement(vue, total)
{
    m_vue.DebuteEmission();
}

/// After a failure the last text is shown. After a cancel the port is closed, and the text that says so stays.
Emission::~Emission()
{
    if (Controle().PortOpen())
        Montre();
}

void Emission::Debut()
{
    OuvrePortCOM();
    NotePort(m_vue);
    if (ParamCom.NbCarDebProg < 1)
        return;
    const QString debut = CaracteresDe(ChaineDebut) + ParamCom.ChaineFinLig;
    Echo(debut);
    Statut(DebutProgramme);
    Montre();
    if (!Controle().PortOpen())
        return;
    frmPrinc->shpSend->setFillColor(Lampe::Verte);
    Controle().Output(debut);
}

void Emission::Ecrit(const QString &texte)
{
    Controle().Output(texte);
    m_ecrits += texte.size();
}

/// Throws away what the machine sends meanwhile, mostly an echo. In a full receive buffer it would keep an XON or XOFF
/// from being read, and the control would hold the machine back.
void EcarteReponses()
{
    MSComm &controle = Controle();
    if (2 * controle.InBufferCount() < controle.InBufferSize())
        return;
    while (!controle.Input().isEmpty()) {
    }
}

/// One turn of a wait. The wait lasts as long as the machine holds the line, or until the operator cancels.
void Emission::Tourne()
{
    CedeLaMain();
    EcarteReponses();
    if (m_rythme.Permet())
        Montre();
}

/// Waits until the transmit buffer is empty.
void Emission::Attend()
{
    int restent = 0;
    do {
        Tourne();
        restent = Controle().OutBufferCount();
        m_avancement.Montre(m_ecrits - restent);
    } while (restent != 0);
}

/// Waits until the system has sent everything. An unplugged device also reports nothing pending; the check after the
/// loop tells the two apart.
void Emission::AttendLigne()
{
    int enRoute = 0;
    do {
        enRoute = Controle().EnRoute();
        Tourne();
        m_avancement.Montre(m_ecrits);
    } while (enRoute != 0);
    Controle().ExigeVivant();
}

void Emission::Fin()
{
    Montre();
    if (!Controle().PortOpen())
        return;
    frmPrinc->shpSend->setFillColor(Lampe::Verte);
    Controle().Output(ParamCom.ChaineFinTrans);
    Statut(FinDeTransfert);
    Echo(ParamCom.ChaineFinTrans);
    Montre();
    Attend();
    AttendLigne();
    frmPrinc->shpSend->setFillColor(Lampe::Rouge);
}

void Emission::Statut(const Texte3 &texte, const QString &suite)
{
    m_statut = &texte;
    m_suite = suite;
}

void Emission::Echo(const QString &texte)
{
    if (VueTransfert::AvecEcho())
        m_echo = texte;
}

void Emission::Montre()
{
    if (m_statut == nullptr && !m_echo)
        return;
    if (m_statut != nullptr)
        m_vue.Statut(*m_statut, m_suite);
    if (m_echo)
        m_vue.EchoLigne(*m_echo);
    m_statut = nullptr;
    m_echo.reset();
    m_rythme.Note();
}

int TailleBloc(const MSComm &controle)
{
    return controle.OutBufferSize() > 0 ? controle.OutBufferSize() : BlocParDefaut;
}

void EnvoieBlocs(Emission &emission, const QString &texte)
{
    const int bloc = TailleBloc(Controle());
    for (qint64 position = 1; position <= texte.size();) {
        CedeLaMain();
        emission.Ecrit(texte.mid(position - 1, bloc));
        position += bloc;
        emission.Statut(EmissionBloc, TexteNombre(position));
        emission.Echo(QString::number(position));
        emission.Attend();
    }
}

/// An entry in the form in which it is sent. Every entry but the first begins with the LF of the line end before it,
/// see CalculeLigne().
QString LigneAEmettre(int numero)
{
    return SansBlancs(Lignes(numero)).mid(numero == 1 ? 0 : 1);
}

void EnvoieLignes(Emission &emission)
{
    for (int numero = 1; numero <= Lignes.NbLignes; ++numero) {
        Lignes(numero) = LigneAEmettre(numero);
        const QString ligne = Lignes(numero) + ParamCom.ChaineFinLig;
        if (Controle().PortOpen()) {
            frmPrinc->shpSend->setFillColor(Lampe::Verte);
            emission.Ecrit(ligne);
        }
        emission.Echo(ligne);
        emission.Attend();
        emission.Statut(EmissionLigne, TexteNombre(numero));
    }
}

/// The number of characters that the lines of the table will send.
qint64 TailleLignes()
{
    qint64 total = 0;
    for (int numero = 1; numero <= Lignes.NbLignes; ++numero)
        total += LigneAEmettre(numero).size() + ParamCom.ChaineFinLig.size();
    return total;
}

/// manques: see MontreBilan().
void Termine(VueTransfert &vue, const QStringList &manques)
{
    FermePortCOM(vue);
    vue.Statut(Succes);
    MontreBilan(vue, Issue::Emis, manques);
}

/// What of texte was not sent, although the status says success.
QStringList Manques(const QString &texte)
{
    QStringList manques;
    if (EstMuet(texte))
        manques << Texte(RienEnvoye);
    if (const LignesEnvoyees lignes = CompteLignesEnvoyees(texte);
        ParamCom.TypeEnvoi == EnvoiLignes && !lignes.Toutes())
        manques << Texte(EnvoyeEnPartie).arg(Compte(lignes.nombre, NomLignes), NombreEnClair(lignes.total));
    return manques;
}

void Echoue(const Erreur &erreur, VueTransfert &vue)
{
    MontreBilan(vue, Issue::EmissionRompue); // before the box, since its time is no part of the transfer
    ErreurPortCOM(erreur, vue);
}

} // namespace

void EnvoiFich_FinFich(VueTransfert &vue)
{
    try {
        const QString texte = frmPrinc->Text1->Text();
        Emission emission(vue, texte.size());
        emission.Debut();
        if (Controle().PortOpen())
            frmPrinc->shpSend->setFillColor(Lampe::Verte);
        EnvoieBlocs(emission, texte);
        emission.Fin();
        Termine(vue, Manques(texte));
    } catch (const Erreur &erreur) {
        Echoue(erreur, vue);
    }
}

void EnvoiFich_Lig_Lig(VueTransfert &vue)
{
    try {
        const QString texte = frmPrinc->Text1->Text();
        CalculeLigne(texte);
        Emission emission(vue, TailleLignes());
        emission.Debut();
        EnvoieLignes(emission);
        emission.Fin();
        Termine(vue, Manques(texte));
    } catch (const Erreur &erreur) {
        Echoue(erreur, vue);
    }
}

LignesEnvoyees CompteLignesEnvoyees(const QString &texte)
{
    const qint64 total = NombreLignes(texte);
    const bool tropLong = texte.count(QLatin1String("\r\n")) + 1 > CapaciteLignes;
    return {tropLong ? Lignes.NbLignes : total, total};
}
