#include "transfer/PortCom.h"

#include "comconfig/ReglagesCom.h"
#include "donnees/ParamCom.h"
#include "locale/Langue.h"
#include "locale/TextesErreur.h"
#include "platform/base/Nombres.h"
#include "platform/dialogues/Boites.h"
#include "platform/serie/MSComm.h"
#include "shell/FrmPrinc.h"
#include "transfer/VueTransfert.h"

namespace {

constexpr Texte3 ErreurNumero{u"Erreur N°: ", u"Error N°: ", u"Error N°: "};
constexpr Texte3 Fermeture{u"Fermeture du port de communication", u"Closing of the port of communication",
                           u"Cierre del puerto de comunicación"};
constexpr Texte3 PortFermeTexte{u"Port Fermé", u"Closed Port", u"Port Cerrado"};
constexpr Texte3 SansDroit{
    u"\rLes ports série sont réservés au groupe dialout. S'y inscrire une fois, dans un terminal :\r"
    u"    sudo adduser $USER dialout\rpuis fermer la session et la rouvrir.",
    u"\rThe serial ports are reserved to the group dialout. Join it once, in a terminal:\r"
    u"    sudo adduser $USER dialout\rthen log out and in again.",
    u"\rLos puertos serie están reservados al grupo dialout. Inscribirse una vez, en un terminal:\r"
    u"    sudo adduser $USER dialout\rluego cerrar la sesión y volver a abrirla."};

/// Closes the port after the operator has cancelled. A failure is not told.
void FermeSansMessage()
{
    Saute([] { Controle().setPortOpen(false); });
    frmPrinc->PortOuvert = false;
}

void MontreErreur(const Erreur &erreur, const QString &texte)
{
    MsgBox(texte, Boite::Critique, Texte(ErreurNumero) + TexteNombre(erreur.Numero()) + Texte(Fermeture));
}

} // namespace

MSComm &Controle()
{
    return *frmPrinc->MSComm1;
}

void OuvrePortCOM()
{
    MSComm &controle = Controle();
    try {
        for (const EtapeReglage etape : EtapesReglage())
            etape(controle);
        if (controle.PortOpen())
            return;
        controle.setCommPort(ParamCom.NumPort);
        controle.setPortOpen(true);
        frmPrinc->MontrePort(true);
        frmPrinc->PortOuvert = true;
    } catch (const Erreur &erreur) {
        // The text of the failure names the device. The advice says how to get access to it.
        const QString conseil = erreur.Numero() == Erreur::AccesRefuse ? Texte(SansDroit) : QString();
        MontreErreur(erreur, TexteErreur(erreur) + conseil);
    }
}

void FermePortCOM(VueTransfert &vue)
{
    MSComm &controle = Controle();
    try {
        if (!controle.PortOpen())
            return;
        controle.setPortOpen(false);
        frmPrinc->MontrePort(false, TexteChoisi(PortFermeTexte));
        frmPrinc->PortOuvert = false;
    } catch (const Erreur &erreur) {
        MontreErreur(erreur, TexteErreur(erreur));
        vue.OffreFermer();
    }
}

void ErreurPortCOM(const Erreur &erreur, VueTransfert &vue)
{
    MontreErreur(erreur, TexteErreur(erreur));
    FermePortCOM(vue);
}

void CoupePortCOM(VueTransfert &vue)
{
    if (!Controle().PortOpen())
        return;
    vue.Statut(Fermeture);
    FermeSansMessage();
}

void Mnu_Com()
{
    frmPrinc->PortOuvert = Controle().PortOpen();
    frmPrinc->Mnu_FermePortCom->setEnabled(frmPrinc->PortOuvert);
}

void Mnu_FermePortCom()
{
    if (Controle().PortOpen())
        FermeSansMessage();
}
