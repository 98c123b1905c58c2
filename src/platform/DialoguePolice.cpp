#include "platform/DialoguePolice.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>

DialoguePolice::DialoguePolice(const QFont &police, const QColor &couleur, QWidget *parent)
    : QFontDialog(police, parent)
    , m_bouton(new QPushButton(QColorDialog::tr("Select Color")))
{
    // The system's own dialog would speak the system's language, and has no room for the colour.
    setOption(DontUseNativeDialog);
    m_bouton->setObjectName(QStringLiteral("Couleur"));
    m_bouton->setAutoDefault(false);
    findChild<QCheckBox *>()->parentWidget()->layout()->addWidget(m_bouton); // the frame of the effects
    connect(m_bouton, &QPushButton::clicked, this, &DialoguePolice::DemandeCouleur);
    MontreCouleur(couleur);
}

void DialoguePolice::DemandeCouleur()
{
    const QColor choisie = QColorDialog::getColor(m_couleur, this, m_bouton->text(), QColorDialog::DontUseNativeDialog);
    if (choisie.isValid())
        MontreCouleur(choisie);
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
