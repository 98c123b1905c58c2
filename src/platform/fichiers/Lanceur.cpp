#include "platform/fichiers/Lanceur.h"

#include "platform/base/Erreur.h"
#include "platform/fichiers/Remplacant.h"

#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

namespace {

bool Lance(const QString &programme, const QString &arguments, const QString &fichier)
{
    if (const auto lance = LanceRemplacant(programme, fichier))
        return *lance;
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
