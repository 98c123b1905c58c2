#include "donnees/ParamCom.h"

#include "platform/base/Erreur.h"
#include "platform/base/Nombres.h"
#include "platform/base/PageCode1252.h"
#include "platform/fichiers/FichierTexte.h"
#include "platform/fichiers/LecteurChamps.h"
#include "platform/serie/CaracteresFlux.h"
#include "platform/serie/ReglagePort.h"

#include <QScopeGuard>

#include <algorithm>
#include <utility>

ConfigurationCom ParamCom;
EtatConfiguration EtatConf;

namespace {

constexpr int CodeMax = 255; // of a character of code page 1252

/// A field of the lines 1 to 29 of a .par file: the member of the record that holds it, a number or a text. The other
/// pointer is null.
struct Champ
{
    int ConfigurationCom::*nombre;
    QString ConfigurationCom::*texte;
};

constexpr Champ Nombre(int ConfigurationCom::*membre)
{
    return {membre, nullptr};
}

constexpr Champ Chaine(QString ConfigurationCom::*membre)
{
    return {nullptr, membre};
}

using C = ConfigurationCom;

constexpr Champ Champs[] = {
    Nombre(&C::NumPort),      Chaine(&C::NomPort),           Chaine(&C::Commentaire),      Chaine(&C::Vitesse),
    Chaine(&C::Parite),       Chaine(&C::BitsDonnees),       Chaine(&C::BitsArret),        Nombre(&C::Echo),
    Nombre(&C::ControleFlux), Nombre(&C::TypeFinTrans),      Nombre(&C::TypeFinLig),       Nombre(&C::NbCarLecture),
    Chaine(&C::CarRemplace),  Nombre(&C::TailleTamponRecep), Nombre(&C::TailleTamponEmis), Nombre(&C::SeuilRecep),
    Nombre(&C::SeuilEmis),    Nombre(&C::FiltreNul),         Nombre(&C::LigneRTS),         Nombre(&C::LigneDTR),
    Chaine(&C::DosRecep),     Nombre(&C::TypeRecep),         Nombre(&C::TailleRecep),      Chaine(&C::LibDebProg),
    Chaine(&C::LibFinLig),    Chaine(&C::LibFinTrans),       Nombre(&C::NbCarDebProg),     Nombre(&C::NbCarFinLig),
    Nombre(&C::NbCarFinTrans)};

/// Holds the counts of the three chains to 0 to 100, whatever the file says.
void TientNombres()
{
    for (const ChampsChaine &chaine : Chaines)
        ParamCom.*chaine.nombre = std::clamp(ParamCom.*chaine.nombre, 0, C::CapaciteChaine);
}

void LitCodesChaine(LecteurChamps &champs, const ChampsChaine &chaine)
{
    for (int i = 1; i <= ParamCom.*chaine.nombre; ++i) {
        if (i > C::CapaciteChaine)
            throw Erreur(Erreur::IndiceHorsPlage, QString::number(i));
        const int code = champs.LigneEntier();
        if (code < 0 || code > CodeMax)
            throw Erreur(Erreur::Depassement, QString::number(code));
        CodeDe(chaine, i) = code;
    }
}

QString LigneNombre(int nombre)
{
    return QString::number(nombre) + QStringLiteral("\r\n");
}

QString LigneChaine(const QString &texte)
{
    return ValeurEntreGuillemets(texte) + QStringLiteral("\r\n");
}

} // namespace

int &CodeDe(const ChampsChaine &chaine, int place)
{
    return (ParamCom.*chaine.codes).at(static_cast<std::size_t>(place));
}

void LireFichierPar(const QString &chemin)
{
    EtatConf.fiche = EtatConfiguration::Incomplete;
    LecteurChamps champs(LitFichierTexte(chemin));
    const auto tenus = qScopeGuard(TientNombres); // also when an exception ends the reading
    for (const Champ &champ : Champs) {
        if (champ.texte != nullptr)
            ParamCom.*champ.texte = champs.LigneChaine();
        else
            ParamCom.*champ.nombre = champ.nombre == &C::Echo ? champs.LigneOuiNon() : champs.LigneEntier();
    }
    for (const ChampsChaine &chaine : Chaines)
        LitCodesChaine(champs, chaine);
    ParamCom.FinLigRecep = champs.LigneEntier();
    ParamCom.TypeEnvoi = champs.LigneEntier();
    EtatConf.fiche = EtatConfiguration::Entiere;
    EtatConf.neuve = EtatConf.malEcrite = false;
    EtatConf.lue = true;
}

void EcrireFichierPar(const QString &chemin)
{
    QString texte;
    for (const Champ &champ : Champs)
        texte += champ.texte != nullptr ? LigneChaine(ParamCom.*champ.texte) : LigneNombre(ParamCom.*champ.nombre);
    for (const ChampsChaine &chaine : Chaines) {
        for (int i = 1; i <= ParamCom.*chaine.nombre; ++i)
            texte += LigneNombre(CodeDe(chaine, i));
    }
    for (const int champ : {ParamCom.FinLigRecep, ParamCom.TypeEnvoi})
        texte += TexteNombre(champ) + QStringLiteral(" \r\n");
    EtatConf.malEcrite = true;
    EcritFichierTexte(chemin, texte, FichierCoupe::Part);
    EtatConf.fiche = EtatConfiguration::Entiere;
    EtatConf.neuve = EtatConf.malEcrite = false;
}

QString CaracteresFinLigne(TypeFinLigne type)
{
    static const QString fins[] = {QStringLiteral("\n"), QStringLiteral("\r"), QStringLiteral("\n\r"),
                                   QStringLiteral("\r\n")};
    return type == FinLigAutre ? CaracteresDe(ChaineLigne) : fins[type];
}

void BatirChaines()
{
    constexpr char eot = 4;
    switch (ParamCom.TypeFinTrans) {
    case FinTransXoff:
        ParamCom.ChaineFinTrans = QLatin1Char(Xoff);
        break;
    case FinTransEot:
        ParamCom.ChaineFinTrans = QLatin1Char(eot);
        break;
    case FinTransAutre:
        ParamCom.ChaineFinTrans = CaracteresDe(ChaineTransfert);
        break;
    default:
        break;
    }
    if (ParamCom.TypeFinLig >= FinLigLf && ParamCom.TypeFinLig <= FinLigAutre)
        ParamCom.ChaineFinLig = CaracteresFinLigne(static_cast<TypeFinLigne>(ParamCom.TypeFinLig));
}

bool FinTransfertPerdue()
{
    const auto flux = static_cast<ControleFlux>(ParamCom.ControleFlux);
    if (flux != ControleFlux::XonXoff && flux != ControleFlux::RtsXonXoff)
        return false;
    const QString chaine = CaracteresDe(ChaineTransfert);
    return ParamCom.TypeFinTrans == FinTransXoff ||
           (ParamCom.TypeFinTrans == FinTransAutre &&
            (chaine.contains(QLatin1Char(Xon)) || chaine.contains(QLatin1Char(Xoff))));
}

bool ChainesAJour()
{
    const QString transfert = ParamCom.ChaineFinTrans;
    const QString ligne = ParamCom.ChaineFinLig;
    BatirChaines();
    const bool memeTransfert = std::exchange(ParamCom.ChaineFinTrans, transfert) == transfert;
    const bool memeLigne = std::exchange(ParamCom.ChaineFinLig, ligne) == ligne;
    return memeTransfert && memeLigne;
}

QString CaracteresDe(TypeChaine type)
{
    const ChampsChaine &chaine = Chaines[type];
    QByteArray octets;
    for (int i = 1; i <= ParamCom.*chaine.nombre; ++i)
        octets += static_cast<char>(CodeDe(chaine, i));
    return TexteDe1252(octets);
}
