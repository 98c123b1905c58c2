#include "transfer/EtapesReception.h"

#include "donnees/ParamCom.h"
#include "donnees/Transfert.h"
#include "locale/Legendes.h"
#include "platform/serie/MSComm.h"
#include "shell/FrmPrinc.h"
#include "transfer/Bilan.h"
#include "transfer/FichierRecu.h"
#include "transfer/PortCom.h"
#include "ui_Em_Rc.h"

namespace {

constexpr Texte3 EnAttente{u"En attente de réception", u"On standby of receiving", u"En espera de recepción"};
constexpr Texte3 FinDetectee{u"Fin de transfert détectée !", u"End of transfer detected !",
                             u"Final de transferencia detectado !"};
constexpr Texte3 Reussi{u"Transfert réalisé avec succès !", u"Transfer carried out successfully !",
                        u"Transferencia realizada con éxito !"};

} // namespace

void DebuteReception(Ui::Em_Rc &dialogue, const Texte3 &genre)
{
    Transfert.ForceRECEPT = false;
    Transfert.FinTransfert = false;
    Transfert.AnnuleRECEPT = false;
    OublieFichierRecu();
    MontreLabelsEcho(dialogue);
    if (ParamCom.Echo == 1)
        PoseTexte(dialogue.Label4, genre);
    OuvrePortCOM();
    NotePort(dialogue);
    PoseTexte(dialogue.Label2, EnAttente);
}

void RendFinTransfert(Ui::Em_Rc &dialogue)
{
    if (!Controle().PortOpen())
        return;
    frmPrinc->shpSend->setFillColor(Lampe::Verte);
    Controle().Output(ParamCom.ChaineFinTrans);
    PoseTexte(dialogue.Label2, FinDetectee);
}

void AcheveReception(Ui::Em_Rc &dialogue)
{
    Controle().VideEmission(ConfigurationCom::CapaciteChaine);
    FermePortCOM(dialogue);
    frmPrinc->EteintTransfert();
    PoseTexte(dialogue.Label2, Reussi);
}

void EchoueReception(const Erreur &erreur, Ui::Em_Rc &dialogue, const QString &recu)
{
    Transfert.FinTransfert = false; // the end may have come, but the file has not: the name is asked for once more
    MontreBilan(dialogue, Issue::ReceptionRompue);
    ErreurPortCOM(erreur, dialogue);
    if (const QString chemin = SauveAilleurs(recu); !chemin.isEmpty())
        MontreSauve(dialogue, chemin);
}
