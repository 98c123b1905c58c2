#include "transfer/Confirmation.h"

#include "donnees/ParamCom.h"
#include "locale/Langue.h"
#include "platform/dialogues/Boites.h"
#include "shell/Document.h"

namespace {

struct Question
{
    ModeTransfert type;
    Texte3 titre;
    Texte3 texte;
};

constexpr Question Questions[] = {
    {EmissionProgramme,
     {u"Emission d'un programme CN", u"Sending of a program numerical control",
      u"Emisión de un programa pedido numérico"},
     {u"Confirmez l'émission du programme ", u"Confirm the sending of the program ",
      u"Confirme la emisión del programa "}},
    {EmissionJauges,
     {u"Emission d'un fichier Jauges Outils", u"Sending of a file Gauges Tools",
      u"Emisión de un fichero Cabidas instrumentos"},
     {u"Confirmez l'émission du fichier jauge ", u"Confirm the sending of a file Gauges Tools ",
      u"Confirme la emisión del fichero mide "}},
    {ReceptionProgramme,
     {u"Réception d'un programme CN", u"Receiving of a program NC", u"Recepción de un programa"},
     {u"Confirmez la réception du programme ", u"Confirm the reception of the program ",
      u"Confirme la recepción del programa "}},
    {ReceptionJauges,
     {u"Réception d'un fichier jauge", u"Receiving of a file measures", u"Recepción de un fichero mide"},
     {u"Confirmez la réception du fichier jauge ", u"Confirm the receiving of the file measures ",
      u"Confirme la recepción del fichero mide "}},
    {ReceptionBanc,
     {u"Réception des jauges outils à partir du banc de préréglage",
      u"Receiving of the gauges tools starting from the bench of presetting",
      u"Recepción de las Cabidas instrumentos a partir del banco de reglaje previo"},
     {u"Confirmez la réception des jauges outils ", u"Confirm the receiving of the gauges tools ",
      u"Confirme la recepción de las Cabidas instrumentos "}},
};
constexpr Texte3 SurLePort{u" sur le port ", u" on the port ", u" sobre el puerto "};

} // namespace

bool ConfirmeTransfert(ModeTransfert mode)
{
    for (const Question &question : Questions) {
        if (question.type != mode)
            continue;
        const QString titre = Texte(question.titre);
        // The title of the bench is too long to be said twice.
        return Confirme((mode == ReceptionBanc ? QString() : titre) + u'\r' + Texte(question.texte) +
                            (EstEmission(mode) ? Document.TitreFichier : Transfert.NomFicRecep) + Texte(SurLePort) +
                            ParamCom.NomPort + QStringLiteral(" ?"),
                        Boite::Question | Boite::SecondBouton, titre);
    }
    return false;
}
