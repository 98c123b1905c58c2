#include "transfer/CommandesTransfert.h"

#include "comconfig/ParamCom.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/Boites.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "transfer/Em_Rc.h"
#include "transfer/Transfert.h"

namespace {

struct Confirmation
{
    Texte3 titre;
    Texte3 texte;
};

constexpr Confirmation Programme{{u"Emission d'un programme CN", u"Sending of a program numerical control",
                                  u"Emisión de un programa pedido numérico"},
                                 {u"Confirmez l'émission du programme ", u"Confirm the sending of the program ",
                                  u"Confirme la emisión del programa "}};
constexpr Confirmation Jauges{{u"Emission d'un fichier Jauges Outils", u"Sending of a file Gauges Tools",
                               u"Emisión de un fichero Cabidas instrumentos"},
                              {u"Confirmez l'émission du fichier jauge ",
                               u"Confirm the sending of a file Gauges Tools ",
                               u"Confirme la emisión del fichero mide "}};
constexpr Texte3 SurLePort{u" sur le port ", u" on the port ", u" sobre el puerto "};

bool Confirme(const Confirmation &confirmation, const QString &fichier)
{
    const QString titre = Texte(confirmation.titre);
    return ::Confirme(titre + u'\r' + Texte(confirmation.texte) + fichier + Texte(SurLePort) + ParamCom.NomPort +
                          QStringLiteral(" ?"),
                      Boite::Question | Boite::SecondBouton, titre);
}

void Emet(ModeTransfert mode, const Confirmation &confirmation)
{
    AppliqueLangue();
    if (!Confirme(confirmation, TitreFichier))
        return;
    FinTransfert = 0;
    TypeTransfert = mode;
    Em_Rc(frmPrinc).exec();
}

} // namespace

void Mnu_EmisProgCN()
{
    Emet(EmissionProgramme, Programme);
}

void Mnu_EmisJauge()
{
    Emet(EmissionJauges, Jauges);
}
