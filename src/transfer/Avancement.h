#pragma once

#include <QElapsedTimer>
#include <QString>

class VueTransfert;

/// Shows in the progress bar how far a transfer is, and the time left at its pace so far. It repaints a few times a
/// second at most, so that the line never waits for the screen.
class Avancement
{
public:
    /// Shows the bar at 0. total: characters of the transfer; 0 hides the bar.
    Avancement(VueTransfert &vue, qint64 total);
    /// The bar keeps the percentage reached. The time left goes.
    ~Avancement();
    Q_DISABLE_COPY_MOVE(Avancement)

    /// faits: characters sent so far. A number outside 0 to total counts as the nearer of the two.
    void Montre(qint64 faits);

private:
    void Affiche(const QString &texte);
    QString EnPourCent() const;
    QString TempsRestant() const;

    VueTransfert &m_vue;
    qint64 m_total;
    qint64 m_faits = 0;
    int m_place = 0; // position of the bar, 0 to Pleine
    qint64 m_dernierAffichage = -1;
    QElapsedTimer m_depuis;
};
