#include "platform/DialogueFichier.h"

#include <QFileDialog>
#include <QTreeView>

void DansLaLangue(QFileDialog &dialogue)
{
    constexpr int colonneType = 2;
    dialogue.setOption(QFileDialog::DontUseNativeDialog);
    if (auto *const liste = dialogue.findChild<QTreeView *>(QStringLiteral("treeView")))
        liste->hideColumn(colonneType);
}
