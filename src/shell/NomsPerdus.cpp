#include "shell/NomsPerdus.h"

#include "donnees/Chemins.h"
#include "donnees/Reglages.h"
#include "locale/Langue.h"
#include "platform/base/PageCode1252.h"
#include "platform/dialogues/Boites.h"

#include <QSet>
#include <QStringList>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace {

constexpr Texte3 Virgule{
    u"Le nom de ce dossier contient une virgule, que le fichier des réglages ne peut pas garder :\r"
    u"le prochain démarrage perdrait ce dossier et la langue.\r"
    u"Choisir un dossier dont le nom est sans virgule.",
    u"The name of this directory holds a comma, which the settings file cannot keep:\r"
    u"the next start would lose this directory and the language.\r"
    u"Choose a directory whose name has no comma.",
    u"El nombre de este directorio contiene una coma, que el fichero de ajustes no puede guardar:\r"
    u"el próximo arranque perdería este directorio y el idioma.\r"
    u"Elegir un directorio cuyo nombre no tenga coma."};

constexpr Texte3 Signes{u"Ce nom contient des signes que les fichiers de réglages ne peuvent pas garder :  %2\r%1\r"
                        u"Il vaut jusqu'à la fin du programme ; le prochain démarrage ne le retrouverait pas.\r"
                        u"Choisir un nom sans ces signes, renommer, ou passer par un lien d'un autre nom.",
                        u"This name holds signs that the settings files cannot keep:  %2\r%1\r"
                        u"It is in force until the program ends; the next start would not find it.\r"
                        u"Choose a name without these signs, rename it, or use a link of another name.",
                        u"Este nombre contiene signos que los ficheros de ajustes no pueden guardar:  %2\r%1\r"
                        u"Vale hasta el fin del programa; el próximo arranque no lo encontraría.\r"
                        u"Elegir un nombre sin esos signos, cambiarlo, o usar un enlace con otro nombre."};

constexpr Texte3 Remplaces{u"Cette saisie contient des signes que le fichier ne peut pas garder :  %1\r"
                           u"Chacun y devient un point d'interrogation.",
                           u"What was entered holds signs that the file cannot keep:  %1\r"
                           u"Each becomes a question mark there.",
                           u"Lo introducido contiene signos que el fichero no puede guardar:  %1\r"
                           u"Cada uno se convierte allí en un signo de interrogación."};

constexpr Texte3 DossierTitre{u"Dossier de Dorvanel", u"Folder of Dorvanel", u"Carpeta de Dorvanel"};
constexpr Texte3 DossierTexte{
    u"Le nom du dossier de Dorvanel contient des signes que les fichiers de réglages ne peuvent pas garder :  %2\r%1\r"
    u"Les prochains démarrages perdraient des dossiers ou la langue.\r"
    u"Quitter Dorvanel, puis donner au dossier un nom sans ces signes.",
    u"The name of Dorvanel's folder holds signs that the settings files cannot keep:  %2\r%1\r"
    u"The next starts would lose folders or the language.\r"
    u"Leave Dorvanel, then give the folder a name without these signs.",
    u"El nombre de la carpeta de Dorvanel contiene signos que los ficheros de ajustes no pueden guardar:  %2\r%1\r"
    u"Los próximos arranques perderían carpetas o el idioma.\r"
    u"Dejar Dorvanel, y después dar a la carpeta un nombre sin esos signos."};

/// The names that the operator has been warned of in this run.
QSet<QString> dits;

/// The characters of nom that its line cannot hold, each once, in their order. separateurs: characters that end a value
/// on that line.
QString SignesPerdus(const QString &nom, QStringView separateurs)
{
    QStringList perdus;
    QTextBoundaryFinder lettres(QTextBoundaryFinder::Grapheme, nom);
    for (qsizetype debut = 0, fin = lettres.toNextBoundary(); fin >= 0; fin = lettres.toNextBoundary()) {
        const QString lettre = nom.mid(debut, fin - debut);
        debut = fin;
        const bool tient = std::all_of(lettre.begin(), lettre.end(), EstEn1252) && !separateurs.contains(lettre);
        if (!tient && !perdus.contains(lettre))
            perdus << lettre;
    }
    return perdus.join(u' ');
}

} // namespace

void AnnonceNomPerdu(const QString &nom, LigneNom ligne, const QString &titre)
{
    const QString perdus = SignesPerdus(nom, ligne == LigneNom::Citee ? u"\"" : u"");
    if (ligne == LigneNom::Nue && nom.contains(u','))
        MsgBox(Texte(Virgule), Boite::Exclamation, titre);
    else if (!perdus.isEmpty())
        MsgBox(Texte(Signes).arg(nom, perdus), Boite::Exclamation, titre);
    dits << nom;
}

void AnnonceNomRepris(const QString &nom, const QString &titre)
{
    if (!dits.contains(nom))
        AnnonceNomPerdu(nom, LigneNom::Citee, titre);
}

void AnnonceCfgPerdu(const QString &dosRecep, const QString &titre)
{
    for (const QString &nom : {dosRecep, Reglages.DosJauge, Reglages.EditeurCN})
        AnnonceNomRepris(nom, titre);
}

void AnnonceSaisiePerdue(const QString &saisie, const QString &titre)
{
    if (const QString perdus = SignesPerdus(saisie, u""); !perdus.isEmpty())
        MsgBox(Texte(Remplaces).arg(perdus), Boite::Exclamation, titre);
}

void AnnonceDossierPerdu()
{
    const QString dossier = DossierApplication();
    if (const QString perdus = SignesPerdus(dossier, u",\""); !perdus.isEmpty())
        MsgBox(Texte(DossierTexte).arg(dossier, perdus), Boite::Exclamation, Texte(DossierTitre));
}
