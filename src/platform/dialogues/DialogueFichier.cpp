#include "platform/dialogues/DialogueFichier.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QListView>
#include <QTreeView>

void DansLaLangue(QFileDialog &dialogue)
{
    constexpr int colonneNom = 0;
    constexpr int colonneType = 2;
    constexpr int largeur = 70; // characters of name, size and date together
    dialogue.setOption(QFileDialog::DontUseNativeDialog);
    if (auto *const lieux = dialogue.findChild<QListView *>(QStringLiteral("sidebar")))
        lieux->setMinimumWidth(lieux->sizeHintForColumn(0) + 2 * lieux->frameWidth());
    auto *const liste = dialogue.findChild<QTreeView *>(QStringLiteral("treeView"));
    if (liste == nullptr)
        return;
    liste->hideColumn(colonneType);
    // The toolkit leaves sizes and dates cut, with room beside them. Here a name gives way, whose end stays seen.
    liste->header()->setStretchLastSection(false);
    liste->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    liste->header()->setSectionResizeMode(colonneNom, QHeaderView::Stretch);
    liste->setMinimumWidth(largeur * liste->fontMetrics().averageCharWidth());
}
