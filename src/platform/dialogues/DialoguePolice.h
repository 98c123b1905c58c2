#pragma once

#include <QColor>
#include <QFontDialog>

/// The toolkit's font dialog with a colour button added to its effects.
class DialoguePolice : public QFontDialog
{
    Q_OBJECT

public:
    DialoguePolice(const QFont &police, const QColor &couleur, QWidget *parent);

    QColor Couleur() const { return m_couleur; }

private:
    void DemandeCouleur();
    void MontreCouleur(const QColor &couleur);

    QColor m_couleur;
    class QPushButton *m_bouton;
};
