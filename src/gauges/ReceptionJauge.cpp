#include "gauges/ReceptionJauge.h"

#include "donnees/Jauge.h"
#include "donnees/Lignes.h"
#include "donnees/ParamCom.h"
#include "donnees/ParamMac.h"
#include "donnees/Transfert.h"
#include "gauges/AvisMesures.h"
#include "gauges/CreFicJauge.h"
#include "gauges/FiltreJauge.h"
#include "locale/Langue.h"
#include "locale/TextesErreur.h"
#include "platform/base/CedeLaMain.h"
#include "platform/base/Erreur.h"
#include "platform/base/Nombres.h"
#include "platform/dialogues/Boites.h"
#include "platform/fichiers/FichierTexte.h"
#include "platform/serie/MSComm.h"
#include "shell/FrmPrinc.h"
#include "transfer/FichierRecu.h"
#include "transfer/PortCom.h"
#include "transfer/TextesReception.h"
#include "transfer/VueTransfert.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr Texte3 Attente{u"En attente de réception Jauges Outil N° ", u"On standby of receiving Gauges Tool N° ",
                         u"En espera de recepción Cabidas instrumentos N° "};
constexpr Texte3 OutilSuivant{u"Prérégler l'outil N° ", u"Preset the tool N° ", u"Preestablecer la instrumentos N° "};
constexpr Texte3 RecueDebut{u"Jauges Outil N° ", u"Gauges Tool N° ", u"Cabidas instrumentos N° "};
constexpr Texte3 RecueFin{u" reçues", u" received", u" recibidas"};
constexpr Texte3 RecueSuite{u"\rCliquez sur le bouton\r < Jauge suivante... >\rPour recevoir de nouvelles jauges",
                            u"\rClick on the button\r < Following gauge... >\rTo receive new gauges",
                            u"\rPresione el botón\r < Capacidad siguiente... >\rPara recibir nuevas Cabidas"};
constexpr Texte3 Limite{u"Nombre de correcteurs reçus > à ", u"A number of received correctors > with ",
                        u"Muchos correctores recibidos > a "};
constexpr Texte3 LimiteTitre{u"Avertissement", u"Warning", u"Advertencia"};
constexpr Texte3 SansPort{u"\rLe port n'est pas ouvert, aucune mesure ne peut arriver.\rAnnulez, puis recommencez.",
                          u"\rThe port is not open, no measure can arrive.\rCancel, then start again.",
                          u"\rEl puerto no está abierto, no puede llegar ninguna medida.\rCancele y vuelva a empezar."};
constexpr Texte3 JaugesTitre{u"Enregistrer les jauges", u"Save the gauges", u"Guardar los correctores"};
constexpr Texte3 FiltreJauges{u"Fichiers jauges (*.%1)|*.%1|Tous les fichiers (*.*)|*.*",
                              u"Gauge files (*.%1)|*.%1|All files (*.*)|*.*",
                              u"Ficheros de correctores (*.%1)|*.%1|Todos los ficheros (*.*)|*.*"};
constexpr Texte3 NonEcrites{u"Les jauges ne sont pas enregistrées.\r", u"The gauges are not saved.\r",
                            u"Los correctores no están guardados.\r"};
constexpr Texte3 BancIntact{u"Ce fichier contient encore le texte du banc, sans rayons ni localisateurs :\r",
                            u"This file still holds the text of the bench, without radii and locators:\r",
                            u"Este fichero contiene todavía el texto del banco, sin radios ni localizadores:\r"};
constexpr Texte3 Ailleurs{u"\rEnregistrer les jauges dans un autre fichier ?", u"\rSave the gauges to another file ?",
                          u"\r¿Guardar los correctores en otro fichero?"};
constexpr Texte3 BrutTitre{u"Enregistrer le texte du banc", u"Save the text of the bench",
                           u"Guardar el texto del banco"};
constexpr Texte3 FiltreBrut{u"Fichiers texte (*.txt)|*.txt|Tous les fichiers (*.*)|*.*",
                            u"Text files (*.txt)|*.txt|All files (*.*)|*.*",
                            u"Ficheros de texto (*.txt)|*.txt|Todos los ficheros (*.*)|*.*"};
constexpr Texte3 BrutNonEcrit{u"Les mesures reçues du banc ne sont pas toutes enregistrées.\r",
                              u"The measures received from the bench are not all saved.\r",
                              u"Las medidas recibidas del banco no están todas guardadas.\r"};
constexpr Texte3 BrutAilleurs{u"\rEnregistrer le texte du banc dans un autre fichier ?",
                              u"\rSave the text of the bench to another file ?",
                              u"\r¿Guardar el texto del banco en otro fichero?"};
constexpr Texte3 Introuvable{u"Ce fichier est introuvable :\r", u"This file cannot be found:\r",
                             u"Este fichero no se encuentra:\r"};
constexpr Texte3 Vide{u"Ce fichier est vide :\r", u"This file is empty:\r", u"Este fichero está vacío:\r"};
constexpr Texte3 Incomplet{u"Ce fichier est incomplet :\r", u"This file is incomplete:\r",
                           u"Este fichero está incompleto:\r"};

/// What a failure has left of the file.
const Texte3 &EtatFichier()
{
    const QString chemin = CheminRecep();
    if (!FichierExiste(chemin))
        return Introuvable;
    return QFileInfo(chemin).size() == 0 ? Vide : Incomplet;
}

/// What the operator is asked when no file holds the text of the bench. That text is no gauge file, so the name offered
/// has another ending.
OffreSauvegarde OffreBrut()
{
    return {Texte(BrutTitre), Texte(BrutNonEcrit) + Texte(EtatFichier()) + CheminRecep() + Texte(BrutAilleurs),
            Texte(FiltreBrut), QFileInfo(Transfert.NomFicRecep).completeBaseName() + QStringLiteral(".TXT")};
}

/// One session at the bench, from the first tool to the gauge file.
class Seance
{
public:
    explicit Seance(VueTransfert &vue)
        : m_vue(vue)
    {
    }

    void Prepare();
    void PrendOutils();
    void Termine();
    /// After a failure: shows it in place of what the operator had to do at the bench.
    void MontreEchec(const Erreur &erreur) const;
    /// After a failure: offers to save elsewhere what the disk does not hold.
    void SauveReste() const;
    /// Offers to save texte elsewhere. The pane then shows what was saved, and never bears the name of a file that does
    /// not exist.
    void SauveAutrePart(const QString &texte, const OffreSauvegarde &offre) const;

private:
    bool Reception1Jauge();
    void RecoitSalve();
    void MontreRecus(int outil, qsizetype recus);
    void AnnonceMesure();
    void AttendOperateur();
    static qsizetype EnAttente();
    void DemandeSuivante();
    void AnnonceLimite();
    QString Brut() const { return m_brut + m_salve; }
    bool EstSurDisque() const;
    QString SortDuTexte() const;

    VueTransfert &m_vue;
    bool m_dansPane = false;   ///< the program pane shows the text of the bench
    QString m_brut;            ///< the measures that have come, as the file holds them
    QString m_salve;           ///< what has come of the measure under way
    QString m_compteMontre;    ///< what MontreRecus() shows
    int m_ligne = 1;           ///< next free entry of Lignes
    qsizetype m_enAttente = 0; ///< characters that have come for a tool that was not asked for yet
};

void Seance::Prepare()
{
    Transfert.ForceRECEPT = false;
    Transfert.FinTransfert = false;
    Transfert.AnnuleRECEPT = false;
    Jauges = {};
    Jauges.NbJauges = 1;
    m_ligne = 1;
    VideLignes();
    m_vue.PermetSuite(false);
    m_vue.MontreEcho();
    const int genre = ParamCom.TypeRecep;
    if (genre >= 0 && genre < static_cast<int>(std::size(GenresReception)))
        m_vue.EchoCaractere(GenresReception[genre]);
    OuvrePortCOM();
    if (!Controle().PortOpen())
        m_vue.Consigne(Texte(SansPort));
    CreeFichierRecu();
    m_vue.Statut(Attente, TexteNombre(Jauges.NbJauges));
}

void Seance::PrendOutils()
{
    while (Jauges.NbJauges <= ParamMac.NbCorrecteurs) {
        if (!Reception1Jauge())
            return;
        AnnonceMesure();
        AttendOperateur();
        if (Jauges.FinJauges || Transfert.AnnuleRECEPT)
            return;
        DemandeSuivante();
    }
    AnnonceLimite();
}

/// Waits for one measure and stores it. Returns false if the operator has cancelled meanwhile.
bool Seance::Reception1Jauge()
{
    m_vue.EchoLigne(QString());
    MontreRecus(Jauges.NbJauges, 0);
    frmPrinc->shpReceive->setFillColor(Lampe::Verte);
    RecoitSalve();
    if (Transfert.AnnuleRECEPT)
        return false;
    const QString recu = std::exchange(m_salve, {});
    Lignes(m_ligne++) = recu;
    m_brut += recu + QStringLiteral("\r\n");
    AjouteFichierRecu(recu);
    Controle().VideReception();
    return true;
}

/// How many milliseconds of silence end a burst: the time of a few characters, and at least as long as an adapter holds
/// characters back. A shorter silence would cut a burst without a fixed size between two of its characters. In a burst
/// of a fixed size, the characters beyond that size would begin the measure of the next tool.
qint64 Silence()
{
    constexpr double caracteres = 4;
    constexpr auto minimum = static_cast<double>(JeuAdaptateur.count());
    return std::lround(std::max(minimum, 1000 * caracteres / Controle().CaracteresParSeconde()));
}

/// Waits for one burst: at least TailleRecep characters, and then silence. A bell that is read alone is no part of it.
/// While the port is closed nothing comes, and the operator has to cancel.
void Seance::RecoitSalve()
{
    const QString cloche(QChar(7));
    QDeadlineTimer silence;
    while (true) {
        CedeLaMain();
        if (Transfert.AnnuleRECEPT)
            return;
        if (!Controle().PortOpen())
            continue;
        const QString lu = Controle().Input();
        if (lu.isEmpty()) {
            if (!m_salve.isEmpty() && m_salve.size() >= ParamCom.TailleRecep && silence.hasExpired())
                return;
            continue;
        }
        silence.setRemainingTime(Silence());
        if (lu != cloche)
            m_salve += lu;
        MontreRecus(Jauges.NbJauges, m_salve.size());
        m_vue.EchoLigne(m_salve);
    }
}

void Seance::AnnonceMesure()
{
    Jauges.JaugeSuivante = false;
    m_vue.PermetSuite(true);
    frmPrinc->shpReceive->setFillColor(Lampe::Rouge);
    const QString recue = TexteNombre(Jauges.NbJauges) + Texte(RecueFin);
    m_vue.Statut(RecueDebut, recue);
    m_vue.Consigne(u'\r' + Texte(RecueDebut) + recue + Texte(RecueSuite));
}

/// Waits until the operator asks for the next tool, ends or cancels. What the bench sends meanwhile belongs to the next
/// tool.
void Seance::AttendOperateur()
{
    m_enAttente = 0;
    while (!Jauges.JaugeSuivante && !Jauges.FinJauges && !Transfert.AnnuleRECEPT) {
        CedeLaMain();
        if (Controle().PortOpen())
            m_enAttente = EnAttente();
        if (m_enAttente > 0)
            MontreRecus(Jauges.NbJauges + 1, m_enAttente);
    }
}

/// The number of characters that wait to be read. A bench that was unplugged after its measure is no failure.
qsizetype Seance::EnAttente()
{
    qsizetype recus = 0;
    Saute([&recus] { recus = Controle().InBufferCount(); });
    return recus;
}

/// Shows how many characters of the measure have come, out of how many, so that a burst that breaks off can be seen.
void Seance::MontreRecus(int outil, qsizetype recus)
{
    const auto nombre = static_cast<int>(recus);
    QString compte = QStringLiteral("N° %1 : %2").arg(outil).arg(nombre);
    if (ParamCom.TailleRecep > 0)
        compte += QStringLiteral(" / ") + QString::number(ParamCom.TailleRecep);
    if (compte == m_compteMontre)
        return;
    m_compteMontre = compte;
    if (nombre > 0)
        m_vue.Progression(nombre, std::max(ParamCom.TailleRecep, nombre), compte);
    else
        m_vue.CacheProgression();
}

void Seance::DemandeSuivante()
{
    Jauges.JaugeSuivante = false;
    ++Jauges.NbJauges;
    m_vue.PermetSuite(false);
    const QString numero = TexteNombre(Jauges.NbJauges);
    m_vue.Consigne(u'\r' + Texte(OutilSuivant) + numero + QStringLiteral("\r\r") + Texte(TouchesBanc));
    m_vue.Statut(Attente, numero);
}

void Seance::AnnonceLimite()
{
    QApplication::beep();
    const QString fin = QString::number(ParamMac.NbCorrecteurs) + QStringLiteral(" !");
    m_vue.Statut(Limite, fin);
    m_vue.Consigne(SortDuTexte()); // there is no further tool to preset
    MsgBox(Texte(Limite) + fin, Boite::Critique, Texte(LimiteTitre));
}

void Seance::Termine()
{
    FermePortCOM(m_vue);
    frmPrinc->shpReceive->setFillColor(Lampe::Verte);
    if (Transfert.AnnuleRECEPT) {
        Jauges.NbJauges = 0;
        return;
    }
    OuvreFichierRecu();
    m_dansPane = true;
    m_vue.CacheProgression();
    if (Jauges.FinJauges && Jauges.NbJauges >= 1) {
        FiltreJauge(m_enAttente);
        Transfert.FinTransfert = true;
        m_vue.OffreFermerBanc();
    }
    frmPrinc->ActualiseFichiers();
}

void Seance::MontreEchec(const Erreur &erreur) const
{
    m_vue.Consigne(u'\r' + TexteErreur(erreur) + SortDuTexte());
    m_vue.EffaceStatut();
    m_vue.CacheProgression();
}

void Seance::SauveReste() const
{
    if (m_dansPane && EstSurDisque()) // the dialog that tells it is closed by then
        MsgBox(SansFichierJauges(), Boite::Exclamation, Texte(LimiteTitre));
    else if (!EstSurDisque())
        SauveAutrePart(Brut(), OffreBrut());
}

/// True when the disk holds all that has come.
bool Seance::EstSurDisque() const
{
    QString surDisque;
    Saute([&surDisque] { surDisque = LitFichierTexte(CheminRecep()); });
    return surDisque == Brut();
}

/// Says which file holds the text of the bench, since that file bears the name of a gauge file. The result is empty
/// when nothing has come, or when the disk does not hold all of it.
QString Seance::SortDuTexte() const
{
    return Brut().isEmpty() || !EstSurDisque() ? QString() : u'\r' + SansFichierJauges();
}

void Seance::SauveAutrePart(const QString &texte, const OffreSauvegarde &offre) const
{
    const QString chemin = SauveAilleurs(texte, offre);
    if (!m_dansPane)
        return;
    if (!chemin.isEmpty())
        MontreRecu(chemin);
    else if (!FichierExiste(CheminRecep()))
        PerdNomRecu();
}

/// What the operator is asked when the gauges, with all that he has typed at the dial, could not be written.
OffreSauvegarde OffreJauges(const JaugesNonEcrites &erreur)
{
    return {Texte(JaugesTitre),
            Texte(NonEcrites) + Texte(erreur.Intact() ? BancIntact : EtatFichier()) + CheminRecep() + Texte(Ailleurs),
            Texte(FiltreJauges).replace(QLatin1String("%1"), ParamMac.ExtJauge), Transfert.NomFicRecep};
}

} // namespace

void ReceptionJauge(VueTransfert &vue)
{
    Seance seance(vue);
    try {
        seance.Prepare();
        seance.PrendOutils();
        seance.Termine();
    } catch (const JaugesNonEcrites &erreur) {
        ErreurPortCOM(erreur, vue);
        seance.SauveAutrePart(erreur.TexteJauges(), OffreJauges(erreur)); // the dialog is closed by then
    } catch (const Erreur &erreur) {
        ErreurPortCOM(erreur, vue);
        seance.MontreEchec(erreur);
        seance.SauveReste();
    }
}
