#include "platform/fichiers/Lanceur.h"

#include "platform/base/Erreur.h"

#include <QOperatingSystemVersion>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringList>

#include <array>
#include <span>

namespace {

struct Remplacant
{
    const char *programme;
    const char *option; ///< "" for none
};

/// Word processors, then text editors, in the order in which they are tried. The desktop's choice for the file's
/// extension comes last, since a desktop takes a CN program in ".iso" for a disc image.
constexpr std::array Programmes{Remplacant{"libreoffice", "--writer"},
                                Remplacant{"soffice", "--writer"},
                                Remplacant{"abiword", ""},
                                Remplacant{"calligrawords", ""},
                                Remplacant{"gnome-text-editor", ""},
                                Remplacant{"gedit", ""},
                                Remplacant{"kate", ""},
                                Remplacant{"kwrite", ""},
                                Remplacant{"mousepad", ""},
                                Remplacant{"xed", ""},
                                Remplacant{"pluma", ""},
                                Remplacant{"featherpad", ""},
                                Remplacant{"xdg-open", ""}};
constexpr std::size_t NombreTraitements = 4; // the first entries are the word processors
constexpr std::span<const Remplacant> Traitements(Programmes);
constexpr std::span<const Remplacant> Editeurs = Traitements.subspan(NombreTraitements);

bool LancePremier(std::span<const Remplacant> remplacants, const QString &fichier)
{
    for (const auto &[programme, option] : remplacants) {
        const QString chemin = QStandardPaths::findExecutable(QLatin1String(programme));
        if (chemin.isEmpty())
            continue;
        QStringList arguments(fichier);
        if (*option != '\0')
            arguments.prepend(QLatin1String(option));
        if (QProcess::startDetached(chemin, arguments))
            return true;
    }
    return false;
}

/// The program's name without its folder, in lower case. Both "/" and "\" separate.
QString NomDuProgramme(const QString &programme)
{
    return programme.mid(programme.lastIndexOf(QRegularExpression(QStringLiteral("[\\\\/]"))) + 1).toLower();
}

/// The replacements for a Windows program; none for any other program. Only the name counts: the "write" that many
/// systems have sends messages to terminals and is not meant.
std::span<const Remplacant> Remplacants(const QString &programme)
{
    if constexpr (QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows)
        return {};
    const QString nom = NomDuProgramme(programme);
    if (nom == QLatin1String("write") || nom == QLatin1String("write.exe") || nom == QLatin1String("wordpad.exe"))
        return Traitements;
    if (nom == QLatin1String("notepad.exe"))
        return Editeurs;
    return {};
}

bool Lance(const QString &programme, const QString &arguments, const QString &fichier)
{
    if (const auto remplacants = Remplacants(programme); !remplacants.empty())
        return LancePremier(remplacants, fichier);
    const QString chemin = QStandardPaths::findExecutable(programme);
    return !chemin.isEmpty() && QProcess::startDetached(chemin, QProcess::splitCommand(arguments) << fichier);
}

} // namespace

void LanceProgramme(const QString &commande, const QString &fichier)
{
    // The program's path may contain blanks, so the longest possible path is tried first: "/opt/CN editor" before
    // "/opt/CN".
    for (qsizetype fin = commande.size(); fin > 0; fin = commande.lastIndexOf(u' ', fin - 1)) {
        if (Lance(commande.left(fin), commande.mid(fin), fichier))
            return;
    }
    throw Erreur(Erreur::FichierIntrouvable, commande);
}
