#include "platform/fichiers/Remplacant.h"

#include "platform/fichiers/Lanceur.h"

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
    const QString nom = NomDuProgramme(programme);
    if (nom == QLatin1String("write") || nom == QLatin1String("write.exe") || nom == QLatin1String("wordpad.exe"))
        return Traitements;
    if (nom == QLatin1String("notepad.exe"))
        return Editeurs;
    return {};
}

} // namespace

std::optional<bool> LanceRemplacant(const QString &programme, const QString &fichier)
{
    const auto remplacants = Remplacants(programme);
    return remplacants.empty() ? std::nullopt : std::optional(LancePremier(remplacants, fichier));
}

bool ProgrammesSansExtension()
{
    return true;
}
