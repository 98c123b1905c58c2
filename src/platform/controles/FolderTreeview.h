#pragma once

#include "platform/controles/GuetteurDossiers.h"

#include <QTreeWidget>

#include <functional>

/// The tree of the folders of this PC. At its top stand the operator's own folder, the USB keys and other volumes (see
/// Volumes.h), and the drives (one root where the system has no drives). Every node is a real folder of the disk.
///
/// A folder is read when it is first opened, and again at each opening. What has been read follows the disk, and the
/// volumes come and go at the top; what is open and selected stays so. Hidden folders are left out, but for those on
/// the way to a folder that the program itself selects.
///
/// Paths: read with a final separator; written with or without.
class FolderTreeview : public QTreeWidget
{
    Q_OBJECT
    Q_PROPERTY(QString SelectedFolder READ SelectedFolder)

public:
    explicit FolderTreeview(QWidget *parent = nullptr);

    /// The selected folder; "" when nothing is selected.
    QString SelectedFolder() const;
    /// Selects a folder and opens the tree down to it. Raises FichierIntrouvable when there is no such folder; the
    /// selection then stays.
    void setSelectedFolder(const QString &chemin);

    /// The folder above the selected one; "" for a root, or when nothing is selected.
    QString Parent() const;

    /// Reads what has been read of the tree anew. Where the selected folder has gone, the nearest one above it that
    /// exists is selected; none where its volume has gone.
    void Refresh();

    /// Runs travail, in which the operator himself takes folders away, and then reads the tree anew. Disparu is not
    /// emitted for these folders. Raises what travail raises.
    void Pendant(const std::function<void()> &travail);

Q_SIGNALS:
    void Disparu(const QString &dossier); ///< the selected folder, dossier, has gone; what Refresh() says is selected
    void SelectionChange();               ///< another folder is selected, by whatever way
    void Click();                         ///< a folder was clicked, the selected one or another

protected:
    void showEvent(QShowEvent *evenement) override;
    void keyPressEvent(QKeyEvent *evenement) override;
    void resizeEvent(QResizeEvent *evenement) override;

private:
    void SuitLeDisque();
    void Annonce();
    QTreeWidgetItem *Choisi() const;
    void LitPremierement();
    void LitSommets();
    void Lit(QTreeWidgetItem *noeud);
    void Relit(QTreeWidgetItem *noeud);
    void Retire(QTreeWidgetItem *noeud);
    QTreeWidgetItem *Sommet(const QString &chemin) const;
    QTreeWidgetItem *SousDossier(QTreeWidgetItem *noeud, const QString &nom);

    QString m_annonce;           // the selection last announced
    GuetteurDossiers m_guetteur; // watches every folder that has been read
};
