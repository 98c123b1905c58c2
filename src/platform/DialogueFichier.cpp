#include "platform/DialogueFichier.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QListView>
#include <QTreeView>

void DansLaLangue(QFileDialog &dialogue)
{
    constexpr int colonneTaille = 1;
    constexpr int colonneType = 2;
    dialogue.setOption(QFileDialog::DontUseNativeDialog);
    if (auto *const lieux = dialogue.findChild<QListView *>(QStringLiteral("sidebar")))
        lieux->setMinimumWidth(lieux->sizeHintForColumn(0) + 2 * lieux->frameWidth());
    auto *const liste = dialogue.findChild<QTreeView *>(QStringLiteral("treeView"));
    if (liste == nullptr)
        return;
    liste->hideColumn(colonneType);
    // The toolkit leaves sizes and dates cut, with room beside them.
    liste->header()->setSectionResizeMode(colonneTaille, QHeaderView::ResizeToContents);
    liste->header()->setStretchLastSection(true);
}
