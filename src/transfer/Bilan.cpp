#include "transfer/Bilan.h"

#include "donnees/ParamCom.h"
#include "donnees/Transfert.h"
#include "locale/Comptes.h"
#include "platform/serie/MSComm.h"
#include "transfer/PortCom.h"
#include "transfer/VueTransfert.h"

#include <QElapsedTimer>

#include <algorithm>
#include <array>

namespace {

using Lignes = CompteursLigne;

/// What the running transfer has lost so far, apart from what the port counts.
struct Pertes
{
    QElapsedTimer depuis;
    std::array<qint64, 5> caracteres{}; ///< by Perte
    bool finCollee = false;             ///< see ChercheFinCollee()
    bool finJetee = false;              ///< the end of transfer was dropped, and no line has come since
    bool sansPort = false;              ///< see NotePort()
    bool nouvelles = false;             ///< something was lost since the last showing

    qint64 &operator[](Perte perte) { return caracteres[static_cast<std::size_t>(perte)]; }
};
Pertes pertes;

/// A kind of fault: where its count is found, and how it is named.
struct Faute
{
    unsigned Lignes::*ligne; ///< a count of the port; null: one of Pertes
    Perte perte;
    Nom3 nom;
};

/// Faults that have the same remedy.
struct Remede
{
    std::array<Faute, 3> fautes;
    Texte3 conseil;
};

constexpr Remede Remedes[] = {
    {{{{nullptr,
        Perte::Jetes,
        {{u"caractère jeté", u"character thrown away", u"carácter descartado"},
         {u"caractères jetés", u"characters thrown away", u"caracteres descartados"}}}}},
     {u"recevoir par fichier, ou faire une pause en fin de ligne à la machine",
      u"receive by file, or have the machine pause at the end of each line",
      u"recibir por fichero, o hacer una pausa al final de cada línea en la máquina"}},
    {{{{nullptr,
        Perte::ApresFin,
        {{u"caractère jeté derrière la fin de transfert", u"character thrown away behind the end of transfer",
          u"carácter descartado detrás del final de transferencia"},
         {u"caractères jetés derrière la fin de transfert", u"characters thrown away behind the end of transfer",
          u"caracteres descartados detrás del final de transferencia"}}}}},
     {u"vérifier la fin de transfert", u"check the end of transfer", u"comprobar el final de transferencia"}},
    {{{{nullptr,
        Perte::SansFin,
        {{u"caractère d'une ligne sans fin", u"character of a line without end", u"carácter de una línea sin fin"},
         {u"caractères d'une ligne sans fin", u"characters of a line without end",
          u"caracteres de una línea sin fin"}}}}},
     {u"recevoir par fichier, ou finir à la machine la dernière ligne par une fin de ligne",
      u"receive by file, or have the machine put a line end behind the last line",
      u"recibir por fichero, o acabar en la máquina la última línea con un final de línea"}},
    {{{{nullptr,
        Perte::FinForcee,
        {{u"caractère jeté par la fin forcée", u"character thrown away by the forced end",
          u"carácter descartado por el final forzado"},
         {u"caractères jetés par la fin forcée", u"characters thrown away by the forced end",
          u"caracteres descartados por el final forzado"}}}}},
     {u"recommencer la réception", u"receive again", u"repetir la recepción"}},
    {{{{&Lignes::parite,
        {},
        {{u"erreur de parité", u"parity error", u"error de paridad"},
         {u"erreurs de parité", u"parity errors", u"errores de paridad"}}},
       {&Lignes::trame,
        {},
        {{u"erreur de cadrage", u"framing error", u"error de encuadre"},
         {u"erreurs de cadrage", u"framing errors", u"errores de encuadre"}}},
       {&Lignes::pauses,
        {},
        {{u"interruption de la ligne", u"break", u"interrupción de la línea"},
         {u"interruptions de la ligne", u"breaks", u"interrupciones de la línea"}}}}},
     {u"vérifier la vitesse, la parité et le câble", u"check the speed, the parity and the cable",
      u"comprobar la velocidad, la paridad y el cable"}},
    {{{{&Lignes::cadence,
        {},
        {{u"caractère perdu par le port", u"character lost by the port", u"carácter perdido por el puerto"},
         {u"caractères perdus par le port", u"characters lost by the port", u"caracteres perdidos por el puerto"}}},
       {&Lignes::debordements,
        {},
        {{u"caractère perdu par le PC", u"character lost by the PC", u"carácter perdido por el PC"},
         {u"caractères perdus par le PC", u"characters lost by the PC", u"caracteres perdidos por el PC"}}},
       {nullptr,
        Perte::Debordement,
        {{u"caractère jeté avec eux", u"character thrown away with them", u"carácter descartado con ellos"},
         {u"caractères jetés avec eux", u"characters thrown away with them", u"caracteres descartados con ellos"}}}}},
     {u"régler le contrôle de flux, ou baisser la vitesse", u"set the flow control, or lower the speed",
      u"ajustar el control de flujo, o bajar la velocidad"}}};

constexpr Nom3 CaracteresEmis{{u"caractère envoyé", u"character sent", u"carácter enviado"},
                              {u"caractères envoyés", u"characters sent", u"caracteres enviados"}};
constexpr Nom3 CaracteresRecus{{u"caractère reçu", u"character received", u"carácter recibido"},
                               {u"caractères reçus", u"characters received", u"caracteres recibidos"}};
constexpr Texte3 EnTemps{u"%1 en %2.", u"%1 in %2.", u"%1 en %2."};
constexpr Texte3 EnTempsForce{u"%1 en %2, fin forcée.", u"%1 in %2, end forced.", u"%1 en %2, final forzado."};
constexpr Texte3 EmissionInterrompue{u"Emission interrompue ! ", u"Sending broken off ! ", u"¡Emisión interrumpida! "};
constexpr Texte3 FichierNonEcrit{u"%1 n'est pas enregistré ! ", u"%1 is not saved ! ", u"¡%1 no está guardado! "};
constexpr Texte3 FichierVide{u"Le fichier reçu est vide.", u"The file received is empty.",
                             u"El fichero recibido está vacío."};
constexpr Texte3 Sauve{u"Texte reçu enregistré : ", u"Received text saved: ", u"Texto recibido guardado: "};
constexpr Texte3 FinCollee{u"La fin de transfert est arrivée collée à une ligne : forcer la fin de réception.",
                           u"The end of transfer has come stuck to a line: force the end of receiving.",
                           u"El final de transferencia ha llegado pegado a una línea: forzar el final de recepción."};
constexpr Texte3 FinColleeRecue{u"La fin de transfert est arrivée collée à une ligne : relire le fichier.",
                                u"The end of transfer came stuck to a line: read the file through.",
                                u"El final de transferencia llegó pegado a una línea: releer el fichero."};
constexpr Texte3 FinJetee{u"Caractères jetés, la fin de transfert parmi eux : forcer la fin de réception.",
                          u"Characters thrown away, the end of transfer among them: force the end of receiving.",
                          u"Caracteres descartados, el final de transferencia entre ellos: forzar el final de "
                          u"recepción."};
constexpr Texte3 SansPort{u"Le port Com%1 n'est pas ouvert !", u"Port Com%1 is not open !",
                          u"¡El puerto Com%1 no está abierto!"};
constexpr Texte3 DeuxPoints{u" : ", u": ", u": "};

/// Each line end reports what was dropped after it, even if that is nothing. Only the last report counts.
void NoteFinJetee(const QString &caracteres)
{
    const bool jetee = !ParamCom.ChaineFinTrans.isEmpty() && caracteres.contains(ParamCom.ChaineFinTrans);
    pertes.nouvelles = pertes.nouvelles || jetee != pertes.finJetee;
    pertes.finJetee = jetee;
}

/// The faults of a remedy that have occurred, with their counts, and then the remedy. Empty if there are none.
QString EnClair(const Remede &remede, const Lignes &comptes)
{
    QStringList fautes;
    for (const Faute &faute : remede.fautes) {
        const bool nommee = faute.nom.un.francais != nullptr;
        const qint64 nombre = !nommee ? 0 : faute.ligne != nullptr ? comptes.*faute.ligne : pertes[faute.perte];
        if (nombre > 0)
            fautes << Compte(nombre, faute.nom);
    }
    if (fautes.isEmpty())
        return {};
    return fautes.join(QStringLiteral(", ")) + Texte(DeuxPoints) + Texte(remede.conseil) + u'.';
}

QStringList FautesEnClair()
{
    const Lignes comptes = Controle().Comptes().fautes;
    QStringList textes;
    for (const Remede &remede : Remedes) {
        if (const QString texte = EnClair(remede, comptes); !texte.isEmpty())
            textes << texte;
    }
    return textes;
}

/// What stays to be told when the transfer is over.
QStringList AlertesFinales()
{
    QStringList alertes = FautesEnClair();
    if (pertes.finCollee)
        alertes << Texte(FinColleeRecue);
    return alertes;
}

QString PortFerme()
{
    return Texte(SansPort).arg(ParamCom.NumPort);
}

/// How much has passed in what time, or that the port is not open.
QString Passe(bool emission)
{
    if (pertes.sansPort)
        return PortFerme();
    const ComptesPort comptes = Controle().Comptes();
    const qint64 nombre = emission ? comptes.emis : comptes.recus;
    const std::chrono::milliseconds duree =
        emission ? std::chrono::milliseconds(pertes.depuis.elapsed()) : comptes.dureeReception;
    return Texte(!emission && Transfert.ForceRECEPT ? EnTempsForce : EnTemps)
        .arg(Compte(nombre, emission ? CaracteresEmis : CaracteresRecus), DureeEnClair(duree));
}

} // namespace

bool EstMuet(QStringView texte)
{
    constexpr char16_t blanc = 32;
    constexpr char16_t efface = 127;
    return std::all_of(texte.begin(), texte.end(),
                       [](QChar c) { return c.unicode() <= blanc || c.unicode() == efface; });
}

QStringList AlerteVide(QStringView recu)
{
    return EstMuet(recu) ? QStringList{Texte(FichierVide)} : QStringList();
}

void DebuteBilan()
{
    pertes = {};
    pertes.depuis.start();
    Controle().RemetComptes();
}

void NotePort(VueTransfert &vue)
{
    pertes.sansPort = !Controle().PortOpen();
    if (pertes.sansPort)
        vue.Bilan(PortFerme(), true);
}

void NotePerte(Perte perte, const QString &caracteres)
{
    if (perte == Perte::Jetes || perte == Perte::Debordement)
        NoteFinJetee(caracteres);
    QStringView programme = caracteres;
    if (programme.endsWith(ParamCom.ChaineFinTrans))
        programme.chop(ParamCom.ChaineFinTrans.size());
    if (EstMuet(programme) || ParamCom.ChaineFinTrans.endsWith(programme))
        return;
    pertes[perte] += programme.size();
    pertes.nouvelles = true;
}

void ChercheFinCollee(const QString &lu, bool premier)
{
    const QString &fin = ParamCom.ChaineFinTrans;
    QString texte = lu;
    if (ParamCom.ChaineFinLig.contains(fin)) // each line end would pass for one
        texte.remove(ParamCom.ChaineFinLig);
    if (!fin.isEmpty() && texte.indexOf(fin, premier ? 1 : 0) >= 0)
        pertes.finCollee = pertes.nouvelles = true;
}

void MontreFautes(VueTransfert &vue)
{
    pertes.nouvelles = false;
    QStringList fautes = FautesEnClair();
    if (pertes.finCollee)
        fautes.prepend(Texte(FinCollee));
    if (pertes.finJetee)
        fautes.prepend(Texte(FinJetee));
    vue.Bilan(fautes.join(u'\n'), !fautes.isEmpty());
}

void MontreNouvellesPertes(VueTransfert &vue)
{
    if (pertes.nouvelles)
        MontreFautes(vue);
}

void MontreBilan(VueTransfert &vue, Issue issue, const QStringList &manques)
{
    const bool emission = issue == Issue::Emis || issue == Issue::EmissionRompue;
    const bool rompu = issue == Issue::EmissionRompue || issue == Issue::ReceptionRompue;
    QString passe = Passe(emission);
    if (rompu && !(emission && pertes.sansPort))
        passe.prepend(emission ? Texte(EmissionInterrompue) : Texte(FichierNonEcrit).arg(Transfert.NomFicRecep));
    const QStringList alertes = manques + AlertesFinales();
    vue.Bilan((QStringList(passe) + alertes).join(u'\n'), rompu || pertes.sansPort || !alertes.isEmpty());
}

void MontreSauve(VueTransfert &vue, const QString &chemin)
{
    const QString lieu = Texte(Sauve) + vue.CoupePourBilan(chemin, Texte(Sauve), Qt::ElideMiddle);
    vue.Bilan((QStringList{lieu, Passe(false)} + AlertesFinales()).join(u'\n'), true);
}
