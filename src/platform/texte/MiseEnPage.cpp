#include "platform/texte/MiseEnPage.h"

#include <QTextBlock>
#include <QTextDocument>

#include <utility>

void MiseEnPage::documentChanged(int position, int retirees, int ajoutees)
{
    constexpr int Long = 512;
    const int lignes = document()->blockCount();
    const bool memeNombre = std::exchange(m_lignes, lignes) == lignes;
    QTextBlock ligne = document()->findBlock(position);
    const bool dansUneLigne = memeNombre && ligne == document()->findBlock(position + ajoutees);
    if (!dansUneLigne || ligne.length() < Long) {
        QPlainTextDocumentLayout::documentChanged(position, retirees, ajoutees);
        return;
    }
    ligne.clearLayout();
    Q_EMIT update();
}
