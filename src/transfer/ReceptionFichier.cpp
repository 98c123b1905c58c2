#include "transfer/ReceptionFichier.h"

#include "donnees/ParamCom.h"
#include "donnees/Transfert.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/base/CedeLaMain.h"
#include "platform/base/Erreur.h"
#include "platform/dialogues/Boites.h"
#include "platform/serie/ErreurPort.h"
#include "platform/serie/MSComm.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/SauvegardeAuto.h"
#include "transfer/Bilan.h"
#include "transfer/EtapesReception.h"
#include "transfer/FichierRecu.h"
#include "transfer/PortCom.h"
#include "transfer/RythmeAffichage.h"
#include "transfer/VueTransfert.h"

#include <QScopedValueRollback>

namespace {

constexpr Texte3 EchoAttente{u"En attente de réception...", u"On standby of receiving...",
                             u"En espera de recepción..."};
constexpr Texte3 EchoGenre{u"Réception jusqu'à caractère de fin de transfert...",
                           u"Receiving until character of end of transfer...",
                           u"Recepción hasta carácter de final de transferencia..."};
constexpr Texte3 EchoTermine{u"Réception terminée...", u"Finished receiving...", u"Recepción terminada..."};
constexpr Texte3 EchoFinTrouvee{u"Caractère de fin de transfert détecté...",
                                u"Character of end of detected transfer...",
                                u"Carácter de final de transferencia detectada..."};
constexpr Texte3 BoiteAnnulation{u"Bouton Annuler cliqué", u"Button Cancel Clicked", u"Botón cancelar pulsado"};
constexpr Texte3 Annule{u"Transfert annulé !", u"Cancelled transfer !", u"Transferencia cancelada !"};
constexpr Texte3 EchoAnnule{u"Réception annulée...", u"Cancelled receiving...", u"Recepción cancelada..."};

constexpr Texte3 EnCours{u"Transfert en cours...", u"Transfer in progress...", u"Transferencia en curso..."};
// Only the French text has a blank before the number.
constexpr Texte3 EnCoursPasse{u"Transfert en cours... ", u"Transfer in progress...", u"Transferencia en curso..."};
constexpr Texte3 Analyse{u"Réception en cours... Analyse : ", u"Receiving in progress... Analyze : ",
                         u"Recepción en curso... Análisis : "};
constexpr Texte3 AttenteFin{u"En attente du caractère de fin de transfert...",
                            u"On standby of the character of end of transfer...",
                            u"En espera del carácter de final de transferencia..."};

VueTransfert *enAttente = nullptr; // shows the reception that waits for its events
bool enRecolte = false;            // RecolteFichier() runs further down the stack

/// Appends what one reading gives to Text2; a closed port gives nothing. Returns false when the device has gone: the
/// gathering then ends, and AttendFichier() meets the same failure and tells the operator.
bool Prend()
{
    try {
        const QString lu = Controle().Input();
        const bool premiere = frmPrinc->Text2->document()->isEmpty();
        frmPrinc->Text2->Ajoute(lu);
        if (!frmPrinc->Text2->FinitPar(ParamCom.ChaineFinTrans))
            ChercheFinCollee(lu, premiere);
    } catch (const Erreur &erreur) {
        return erreur.Numero() != ErreurPort::Lecture;
    }
    return true;
}

bool CaracteresEnAttente()
{
    int nombre = 0;
    Saute([&nombre] { nombre = Controle().InBufferCount(); });
    return nombre > 0;
}

void PrendReste()
{
    while (CaracteresEnAttente())
        Prend();
}

void MontrePasse(VueTransfert &vue, qint64 passe)
{
    vue.Statut(EnCoursPasse, QString::number(passe));
    vue.EchoLigne(Analyse, QString::number(passe));
    vue.EchoCaractere(AttenteFin);
    MontreNouvellesPertes(vue);
}

/// True when the text gathered so far ends with the end-of-transfer string, which is then cut off.
bool FinTrouvee()
{
    if (!frmPrinc->Text2->FinitPar(ParamCom.ChaineFinTrans))
        return false;
    frmPrinc->Text2->RetireFin(static_cast<int>(ParamCom.ChaineFinTrans.size()));
    Transfert.FinTransfert = true;
    return true;
}

void Recolte(VueTransfert &vue)
{
    frmPrinc->shpReceive->setFillColor(Lampe::Verte);
    Prend();
    vue.Statut(EnCours);
    RythmeAffichage rythme;
    bool vivante = true;
    qint64 passe = 0;
    do {
        ++passe;
        CedeLaMain();
        if (rythme.Permet()) {
            MontrePasse(vue, passe);
            rythme.Note();
        }
        // The end is looked for after each reading: behind further characters it would not be found any more.
        do {
            vivante = Prend();
        } while (!FinTrouvee() && CaracteresEnAttente());
    } while (!Transfert.FinTransfert && vivante && !Transfert.AnnuleRECEPT && !Transfert.ForceRECEPT);
    MontrePasse(vue, passe);
    if (Transfert.AnnuleRECEPT)
        CoupePortCOM(vue);
}

void PrepareFichier(VueTransfert &vue)
{
    ChoisitChaineFinLigRecep();
    frmPrinc->Text2->setText(QString());
    frmPrinc->Text2->setVisible(VueTransfert::AvecEcho());
    vue.EchoLigne(EchoAttente);
    DebuteReception(vue, EchoGenre);
}

/// Waits for the end. The receive events gather the text inside CedeLaMain(), one of them perhaps the whole reception.
void AttendFichier(VueTransfert &vue)
{
    const QScopedValueRollback<VueTransfert *> ecoute(enAttente, &vue);
    while (true) {
        CedeLaMain();
        if (Transfert.FinTransfert || Transfert.AnnuleRECEPT)
            return;
        if (Transfert.ForceRECEPT) {
            // Characters too few to raise an event may wait.
            PrendReste();
            NotePerte(Perte::FinForcee, Controle().VideReception());
            FinTrouvee();
            Transfert.FinTransfert = true;
            return;
        }
        if (!Controle().PortOpen())
            continue;
        Controle().ExigeVivant();
        // The event of characters that came before this wait was ignored.
        if (Controle().SeuilReceptionAtteint())
            RecolteFichier();
    }
}

void TermineFichier(VueTransfert &vue)
{
    if (!Transfert.ForceRECEPT)
        NotePerte(Perte::ApresFin, Controle().VideReception());
    RendFinTransfert(vue);
    vue.EchoLigne(EchoTermine);
    vue.EchoCaractere(EchoFinTrouvee);
    AcheveReception(vue);
    frmPrinc->Text2->hide();
    frmPrinc->Text1->PrendTexte(*frmPrinc->Text2);
    Document.NomRecu = CheminRecep();
    // A file that was too large to be shown may have hidden the pane and its commands.
    frmPrinc->Text1->show();
    if (!Document.NomFichier.isEmpty())
        frmPrinc->ActiveFichier(true);
    try {
        EcritFichierRecu(frmPrinc->Text1->Text());
    } catch (const Erreur &erreur) {
        EchoueReception(erreur, vue, frmPrinc->Text1->Text());
        return;
    }
    MontreBilan(vue, Issue::Recu, AlerteVide(frmPrinc->Text1->Text()));
    TitreFenetre(Transfert.NomFicRecep);
    MontreDonnee(frmPrinc->Label2, Transfert.NomFicRecep);
    Document.FichierModifie = false;
}

void AnnuleFichier(VueTransfert &vue)
{
    Transfert.FinTransfert = false; // the end may have been found just before
    MsgBox(QStringLiteral("AnnuleRECEPT% = 1"), 0, Texte(BoiteAnnulation));
    FermePortCOM(vue);
    vue.Statut(Annule);
    frmPrinc->Text2->setText(QString());
    frmPrinc->Text2->hide();
    vue.EchoLigne(EchoAnnule);
    vue.EchoCaractere(QStringLiteral("..."));
}

} // namespace

void ReceptionFichier(VueTransfert &vue)
{
    const RetientAussi recu(Transfert.NomFicRecep, [] { return frmPrinc->Text2->Text() + ResteRecu(); });
    try {
        PrepareFichier(vue);
        AttendFichier(vue);
        if (Transfert.AnnuleRECEPT)
            AnnuleFichier(vue);
        else
            TermineFichier(vue);
    } catch (const Erreur &erreur) {
        if (!Transfert.FinTransfert)
            PrendReste();
        EchoueReception(erreur, vue, frmPrinc->Text2->Text());
    }
}

void RecolteFichier()
{
    if (ParamCom.TypeRecep != RecepFichier || enAttente == nullptr || enRecolte || Transfert.FinTransfert)
        return;
    const QScopedValueRollback<bool> recolte(enRecolte, true);
    Recolte(*enAttente);
}
