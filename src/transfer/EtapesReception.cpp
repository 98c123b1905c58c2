#include "transfer/EtapesReception.h"

#include "donnees/ParamCom.h"
#include "donnees/Transfert.h"
#include "platform/serie/MSComm.h"
#include "shell/FrmPrinc.h"
#include "transfer/Bilan.h"
#include "transfer/FichierRecu.h"
#include "transfer/PortCom.h"
#include "transfer/VueTransfert.h"

#include <utility>

namespace {

constexpr Texte3 EnAttente{u"En attente de réception", u"On standby of receiving", u"En espera de recepción"};
constexpr Texte3 FinDetectee{u"Fin de transfert détectée !", u"End of transfer detected !",
                             u"Final de transferencia detectado !"};
constexpr Texte3 Reussi{u"Transfert réalisé avec succès !", u"Transfer carried out successfully !",
                        u"Transferencia realizada con éxito !"};

} // namespace

void DebuteReception(VueTransfert &vue, const Texte3 &genre)
{
    Transfert.ForceRECEPT = false;
    Transfert.FinTransfert = false;
    Transfert.AnnuleRECEPT = false;
    OublieFichierRecu();
    vue.MontreEcho();
    vue.EchoCaractere(genre);
    OuvrePortCOM();
    NotePort(vue);
    vue.Statut(EnAttente);
}

QString ResteRecu()
{
    QString reste = Controle().Recus();
    if (reste.endsWith(ParamCom.ChaineFinTrans))
        reste.chop(ParamCom.ChaineFinTrans.size());
    return reste;
}

void RendFinTransfert(VueTransfert &vue)
{
    if (!Controle().PortOpen())
        return;
    frmPrinc->shpSend->setFillColor(Lampe::Verte);
    Controle().Output(ParamCom.ChaineFinTrans);
    vue.Statut(FinDetectee);
}

void AcheveReception(VueTransfert &vue)
{
    Controle().VideEmission(ConfigurationCom::CapaciteChaine);
    FermePortCOM(vue);
    frmPrinc->EteintTransfert();
    vue.Statut(Reussi);
}

void EchoueReception(const Erreur &erreur, VueTransfert &vue, const QString &recu)
{
    // The end may have come, but there is no file: Rc_Fic asks for a name once more.
    const bool terminee = std::exchange(Transfert.FinTransfert, false);
    MontreBilan(vue, Issue::ReceptionRompue);
    ErreurPortCOM(erreur, vue);
    if (recu.isEmpty())
        return;
    if (const QString chemin = SauveAilleurs(CommeFichierRecu(recu), OffreTexteRecu(terminee)); !chemin.isEmpty())
        MontreSauve(vue, chemin);
}
