#include "donnees/Reglages.h"

#include "donnees/Chemins.h"
#include "locale/Langue.h"
#include "platform/base/Erreur.h"
#include "platform/base/Nombres.h"
#include "platform/fichiers/FichierTexte.h"
#include "platform/fichiers/LecteurChamps.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

ReglagesProgramme Reglages;

namespace {

/// No settings file comes near this size, in bytes; a larger one is not read.
constexpr qint64 TailleMaxReglages = qint64{1024} * 1024;

QString LigneNombre(int nombre)
{
    return TexteNombre(nombre) + QStringLiteral(" \r\n");
}

QString LigneCitee(const QString &texte)
{
    return u'"' + texte + QStringLiteral("\"\r\n");
}

bool DejaEcrit(const QString &chemin, const QString &texte)
{
    bool pareil = false;
    Saute([&] { pareil = LitFichierTexte(chemin, TailleMaxReglages) == texte; });
    return pareil;
}

/// Writes a settings file whole. When a new one fails half way it is removed: the next start would take the rest for
/// settings that cannot be read, and would say nothing. A link made by the user stays, even when the drive behind it is
/// away.
void EcritReglages(const QString &chemin, const QString &texte)
{
    const bool neuf = !QFileInfo::exists(chemin) && !QFileInfo(chemin).isSymLink();
    try {
        EcritFichierTexte(chemin, texte);
    } catch (const Erreur &) {
        if (neuf)
            QFile::remove(chemin);
        throw;
    }
}

/// The language, read from its field. A field that is no number gives LangAucune: a comma in the line before pushes
/// half a path into this place. Raises Depassement.
int LangueLue(const QString &champ)
{
    static const QRegularExpression debutDeNombre(QStringLiteral(R"(^\s*([+-]?\.?\d|$))"));
    return debutDeNombre.match(champ).hasMatch() ? EnEntier(Val(champ)) : LangAucune;
}

} // namespace

QString CheminIni()
{
    return AjouteAntislash(DossierApplication()) + QStringLiteral("Dorvanel.ini");
}

QString CheminCfg()
{
    return AjouteAntislash(DossierApplication()) + QStringLiteral("Dorvanel.CFG");
}

void LitIni()
{
    LecteurChamps champs(LitFichierTexte(CheminIni(), TailleMaxReglages));
    Reglages.OptDosDefaut = champs.Entier();
    Reglages.DosDefaut = champs.Chaine();
    Reglages.OptConfDefaut = champs.Entier();
    Reglages.FicConfDefaut = champs.Chaine();
    Reglages.OptExplorateur = champs.Entier();
    Reglages.DosConf = champs.Chaine();
    LangIndex = LangueLue(champs.Chaine());
}

void SauveIni()
{
    const QString texte = LigneNombre(Reglages.OptDosDefaut) + LigneCitee(Reglages.DosDefaut) +
                          LigneNombre(Reglages.OptConfDefaut) + LigneCitee(Reglages.FicConfDefaut) +
                          LigneNombre(Reglages.OptExplorateur) + Reglages.DosConf + QStringLiteral("\r\n") +
                          LigneNombre(LangIndex);
    // Every start saves. On a slow disk the operator would wait for a file that would not change.
    if (!DejaEcrit(CheminIni(), texte))
        EcritReglages(CheminIni(), texte);
}

void IniParDefaut()
{
    Reglages.OptDosDefaut = 0;
    Reglages.DosDefaut = DossierApplication();
    Reglages.OptConfDefaut = 0;
    Reglages.FicConfDefaut.clear();
    Reglages.OptExplorateur = 0;
    Reglages.DosConf = DossierApplication();
}

void LitCfg(QString &dosRecep)
{
    LecteurChamps champs(LitFichierTexte(CheminCfg(), TailleMaxReglages));
    for (QString *variable : {&dosRecep, &Reglages.DosJauge, &Reglages.EditeurCN})
        *variable = champs.Chaine();
}

void SauveCfg(const QString &dosRecep)
{
    EcritReglages(CheminCfg(), LigneCitee(dosRecep) + LigneCitee(Reglages.DosJauge) + LigneCitee(Reglages.EditeurCN));
}

void CfgParDefaut(QString &dosRecep)
{
    dosRecep = EnMajuscules(Reglages.DosAppli);
    Reglages.DosJauge = dosRecep;
    Reglages.EditeurCN = QStringLiteral("C:\\WINDOWS\\NOTEPAD.EXE");
}
