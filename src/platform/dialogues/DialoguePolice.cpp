#include "platform/dialogues/DialoguePolice.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QFontInfo>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>

namespace {

/// police with the family and style names that the list of fonts shows. "monospace" and the like only stand for another
/// family, and the toolkit does not find the style "Normal" in a family that calls it "Book".
QFont Nommee(QFont police)
{
    const QFontInfo listee(police);
    police.setFamily(listee.family());
    police.setStyleName(listee.styleName());
    return police;
}

} // namespace

DialoguePolice::DialoguePolice(const QFont &police, const QColor &couleur, QWidget *parent)
    : QFontDialog(Nommee(police), parent)
    , m_bouton(new QPushButton(QColorDialog::tr("Select Color")))
{
    // The system's own dialog would stand in the system's language, and it has no room for the colour.
    setOption(DontUseNativeDialog);
    m_bouton->setObjectName(QStringLiteral("Couleur"));
    m_bouton->setAutoDefault(false);
    findChild<QCheckBox *>()->parentWidget()->layout()->addWidget(m_bouton); // the frame of the effects
    connect(m_bouton, &QPushButton::clicked, this, &DialoguePolice::DemandeCouleur);
    MontreCouleur(couleur);
}

void DialoguePolice::DemandeCouleur()
{
    QColorDialog dialogue(m_couleur, this);
    dialogue.setObjectName(QStringLiteral("ChoixCouleur"));
    dialogue.setOption(QColorDialog::DontUseNativeDialog);
    if (dialogue.exec() == Accepted)
        MontreCouleur(dialogue.selectedColor());
}

void DialoguePolice::MontreCouleur(const QColor &couleur)
{
    m_couleur = couleur;
    QPixmap pastille(m_bouton->iconSize());
    pastille.fill(couleur);
    m_bouton->setIcon(pastille);
    auto *const exemple = findChild<QLineEdit *>(QStringLiteral("qt_fontDialog_sampleEdit"));
    QPalette palette = exemple->palette();
    palette.setColor(QPalette::Text, couleur);
    exemple->setPalette(palette);
}
