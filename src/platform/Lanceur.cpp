#include "platform/Lanceur.h"

#include "platform/Erreur.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringList>

#include <array>

namespace {

struct Remplacant
{
    const char *programme;
    const char *option; ///< "" for none
};

constexpr std::array Traitements{Remplacant{"libreoffice", "--writer"}, Remplacant{"soffice", "--writer"},
                                 Remplacant{"abiword", ""}, Remplacant{"calligrawords", ""},
                                 Remplacant{"xdg-open", ""}};
constexpr std::array Editeurs{Remplacant{"gnome-text-editor", ""}, Remplacant{"gedit", ""}, Remplacant{"kate", ""},
                              Remplacant{"mousepad", ""}, Remplacant{"xdg-open", ""}};

template <std::size_t N>
bool LancePremier(const std::array<Remplacant, N> &remplacants, const QString &fichier)
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

/// The program's bare name in lower case, whichever separator its path has.
QString NomDuProgramme(const QString &programme)
{
    return programme.mid(programme.lastIndexOf(QRegularExpression(QStringLiteral("[\\\\/]"))) + 1).toLower();
}

} // namespace

void LanceProgramme(const QString &programme, const QString &fichier)
{
    const QString chemin = QStandardPaths::findExecutable(programme);
    bool lance = false;
    if (!chemin.isEmpty())
        lance = QProcess::startDetached(chemin, {fichier});
    else if (const QString nom = NomDuProgramme(programme);
             nom == QLatin1String("write") || nom == QLatin1String("write.exe") || nom == QLatin1String("wordpad.exe"))
        lance = LancePremier(Traitements, fichier);
    else if (nom == QLatin1String("notepad.exe"))
        lance = LancePremier(Editeurs, fichier);
    if (!lance)
        throw Erreur(Erreur::FichierIntrouvable, programme);
}
