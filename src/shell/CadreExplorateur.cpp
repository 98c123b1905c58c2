#include "shell/CadreExplorateur.h"

#include "platform/controles/Icone.h"

#include <QLineEdit>

namespace {

/// The filters offered. The first one is active at the beginning.
const QStringList Motifs =
    QStringLiteral("*.* *.iso *.rub *.cn *.xcn *.txt *.asc *.xpi *.jau *.cor *.prg *.cnc *.rrr *.qqq *.h *.rtf")
        .split(u' ');

} // namespace

CadreExplorateur::CadreExplorateur(QWidget *parent)
    : QGroupBox(parent)
{
    setupUi(this);
    const std::pair<QPushButton *, const char *> icones[] = {{Command1, "Dossier_Creer"},
                                                             {Command2, "Dossier_Supprimer"},
                                                             {Command3, "Explorateur_Fermer"},
                                                             {Command4, "Dossier_Renommer"}};
    for (const auto &[bouton, icone] : icones)
        bouton->setIcon(Icone(QStringLiteral(":/icones/%1").arg(QLatin1String(icone))));
    Combo1->addItems(Motifs);
    // A completion would activate a filter that the operator has not typed.
    Combo1->setCompleter(nullptr);
    Combo1->lineEdit()->setAcceptDrops(false); // a file dropped here is for the window; its path is no filter
}
