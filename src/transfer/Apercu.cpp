#include "transfer/Apercu.h"

#include "donnees/ParamCom.h"
#include "donnees/Transfert.h"
#include "locale/Comptes.h"
#include "platform/base/FinsDeLigne.h"
#include "platform/base/PageCode1252.h"
#include "platform/dialogues/Boites.h"
#include "platform/serie/MSComm.h"
#include "shell/FrmPrinc.h"
#include "transfer/Bilan.h"
#include "transfer/Emission.h"
#include "transfer/PortCom.h"
#include "transfer/VueTransfert.h"

#include <QStringList>

#include <algorithm>

namespace {

constexpr Nom3 NomCaracteres{{u"caractère", u"character", u"carácter"}, {u"caractères", u"characters", u"caracteres"}};
constexpr Texte3 Contenu{u"%1 : %2, %3", u"%1: %2, %3", u"%1: %2, %3"};
constexpr Texte3 Vide{u"Le texte à envoyer est vide : %1, %2.", u"The text to be sent is empty: %1, %2.",
                      u"El texto que debe enviarse está vacío: %1, %2."};
constexpr Texte3 TropDeLignes{u"L'envoi ligne par ligne prend 25 000 lignes au plus, la ligne vide de la fin comprise "
                              u": choisir l'envoi jusqu'à fin de fichier.",
                              u"The sending line by line takes 25,000 lines at most, the empty one at the end "
                              u"included: choose the sending to the end of the file.",
                              u"El envío línea por línea admite 25.000 líneas como máximo, incluida la línea vacía del "
                              u"final: elegir el envío hasta el final del fichero."};
constexpr Texte3 RienNePart{u" Rien du programme ne partirait.", u" Nothing of the program would go out.",
                            u" No saldría nada del programa."};
constexpr Texte3 PartieSeule{u" Partiraient seulement : %1 sur %2.", u" Only this would go out: %1 of %2.",
                             u" Saldrían solamente: %1 de %2."};

// PortUtilise follows each of these.
constexpr Texte3 Incomplete{u"Configuration incomplète : la charger ou l'enregistrer de nouveau. ",
                            u"Incomplete configuration: load or save it again. ",
                            u"Configuración incompleta: cargarla o registrarla de nuevo. "};
constexpr Texte3 NonAppliquee{u"Configuration modifiée sans être appliquée : la charger de nouveau. ",
                              u"Configuration changed and not applied: load it again. ",
                              u"Configuración modificada sin ser aplicada: cargarla de nuevo. "};
constexpr Texte3 Neuve{u"Nouvelle configuration, jamais enregistrée : en charger une, ou la refaire. ",
                       u"New configuration, never saved: load one, or make it again. ",
                       u"Configuración nueva, nunca registrada: cargar una, o hacerla de nuevo. "};
constexpr Texte3 SansFichier{u"Nouvelle configuration, qui n'est dans aucun fichier. ",
                             u"New configuration, which is in no file. ",
                             u"Configuración nueva, que no está en ningún fichero. "};
constexpr Texte3 MalEcrite{u"Le fichier de cette configuration n'a pas pu être écrit en entier : l'enregistrer de "
                           u"nouveau. ",
                           u"The file of this configuration could not be written whole: save it again. ",
                           u"El fichero de esta configuración no pudo escribirse entero: registrarla de nuevo. "};
constexpr Texte3 PortUtilise{u"Port utilisé : Com%1, vitesse : %2.", u"Port used: Com%1, speed: %2.",
                             u"Puerto utilizado: Com%1, velocidad: %2."};
constexpr Texte3 QuandMeme{u"Continuer quand même ?", u"Go on all the same ?", u"¿Continuar de todos modos?"};

struct Apercu
{
    QString contenu;
    QStringList alertes; ///< what the operator is asked about
    QString avis;        ///< a warning that needs no answer
};

bool EstFin(QChar c)
{
    return c == u'\r' || c == u'\n';
}

/// The first line of texte with something to read, from its first visible character on. Empty if there is none.
QString PremiereLigne(const QString &texte)
{
    constexpr qsizetype place = 200; // characters, more than any window shows
    const auto *const debut =
        std::find_if(texte.begin(), texte.end(), [](QChar c) { return !EstMuet(QStringView(&c, 1)); });
    const auto *const fin = std::find_if(debut, texte.end(), EstFin);
    return QString(debut, std::min<qsizetype>(fin - debut, place));
}

/// The warning that the sending line by line would leave out some of the text: why, and what would go out.
QString SansToutesLesLignes(const LignesEnvoyees &lignes)
{
    if (lignes.nombre == 0)
        return Texte(TropDeLignes) + Texte(RienNePart);
    return Texte(TropDeLignes) + Texte(PartieSeule).arg(Compte(lignes.nombre, NomLignes), NombreEnClair(lignes.total));
}

void RegardeTexte(Apercu &apercu, const VueTransfert &vue)
{
    const QString texte = frmPrinc->Text1->Text();
    const QString lignes = Compte(NombreLignes(texte), NomLignes);
    const QString caracteres = Compte(texte.size(), NomCaracteres);
    const QString premiere = PremiereLigne(texte);
    if (premiere.isEmpty()) {
        apercu.alertes << Texte(Vide).arg(lignes, caracteres);
    } else {
        const QString comptes = Texte(Contenu).arg(QString(), lignes, caracteres);
        apercu.contenu = Texte(Contenu).arg(vue.CoupePourBilan(ControlesVisibles(premiere), comptes, Qt::ElideRight),
                                            lignes, caracteres);
    }
    if (const LignesEnvoyees envoi = CompteLignesEnvoyees(texte); ParamCom.TypeEnvoi == EnvoiLignes && !envoi.Toutes())
        apercu.alertes << SansToutesLesLignes(envoi);
}

const Texte3 &Defaut(const EtatConfiguration &etat)
{
    return etat.fiche == EtatConfiguration::Incomplete ? Incomplete : etat.neuve ? Neuve : NonAppliquee;
}

/// The warning that a whole and applied configuration does not stand in the file that the labels name. Empty if it
/// does.
QString SansFichierEntier(const EtatConfiguration &etat)
{
    return etat.malEcrite ? Texte(MalEcrite) : etat.neuve ? Texte(SansFichier) : QString();
}

void RegardeConfiguration(Apercu &apercu)
{
    const bool entiere = EtatConf.fiche == EtatConfiguration::Entiere;
    const QString defaut = entiere ? SansFichierEntier(EtatConf) : Texte(Defaut(EtatConf));
    if (defaut.isEmpty())
        return;
    const int port = Controle().PortOpen() ? Controle().CommPort() : ParamCom.NumPort;
    const QString phrase = defaut + Texte(PortUtilise).arg(QString::number(port), ParamCom.Vitesse);
    if (entiere)
        apercu.avis = phrase;
    else
        apercu.alertes << phrase;
}

Apercu Regarde(const VueTransfert &vue)
{
    Apercu apercu;
    if (EstEmission(Transfert.TypeTransfert))
        RegardeTexte(apercu, vue);
    RegardeConfiguration(apercu);
    return apercu;
}

void Montre(VueTransfert &vue, const Apercu &apercu)
{
    QStringList lignes = QStringList(apercu.contenu) + apercu.alertes + QStringList(apercu.avis);
    lignes.removeAll(QString());
    vue.Bilan(lignes.join(u'\n'), !apercu.alertes.isEmpty() || !apercu.avis.isEmpty());
}

} // namespace

void MontreApercu(VueTransfert &vue)
{
    Montre(vue, Regarde(vue));
}

bool ConfirmeApercu(VueTransfert &vue)
{
    const Apercu apercu = Regarde(vue);
    Montre(vue, apercu);
    if (apercu.alertes.isEmpty())
        return true;
    return Confirme(apercu.alertes.join(u'\r') + u'\r' + Texte(QuandMeme), Boite::Exclamation | Boite::SecondBouton,
                    vue.Titre());
}
