#pragma once

#include <QElapsedTimer>
#include <QString>

class VueTransfert;

/// Shows in the progress bar how far a transfer is, and the time left at its pace so far, or that the machine lets it
/// wait. It repaints a few times a second at most, so that the line never waits for the screen.
class Avancement
{
public:
    /// Shows the bar at 0. total: characters of the transfer; 0 hides the bar.
    Avancement(VueTransfert &vue, qint64 total);
    /// The bar keeps the percentage reached. The time left goes.
    ~Avancement();
    Q_DISABLE_COPY_MOVE(Avancement)

    /// faits: characters sent so far, at most total. The bar never goes back.
    void Montre(qint64 faits);

private:
    void Affiche(const QString &texte);
    /// What the bar says. maintenant: milliseconds since the beginning.
    QString Dit(qint64 maintenant) const;
    QString EnPourCent() const;
    QString TempsRestant() const;

    VueTransfert &m_vue;
    qint64 m_total;
    qint64 m_faits = 0;
    int m_place = 0;      // position of the bar, 0 to Pleine
    qint64 m_progres = 0; // when m_faits last grew
    qint64 m_dernierAffichage = -1;
    QElapsedTimer m_depuis;
};
