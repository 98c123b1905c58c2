#pragma once

#include "platform/controles/GuetteurDossiers.h"

#include <QTreeWidget>

#include <functional>

/// The tree of the folders of this PC. At its top are the operator's home folder, the USB keys and other volumes (see
/// Volumes.h), and the drives (one root where the system has no drives).
///
/// A folder is read each time it is opened. Folders that have been read follow the disk, and volumes come and go at the
/// top; open folders stay open and the selection stays. Hidden folders are shown only on the way to a folder that the
/// program selects.
///
/// Paths are returned with a final separator and accepted with or without one.
class FolderTreeview : public QTreeWidget
{
    Q_OBJECT
    Q_PROPERTY(QString SelectedFolder READ SelectedFolder)

public:
    explicit FolderTreeview(QWidget *parent = nullptr);

    /// The selected folder; "" when nothing is selected.
    QString SelectedFolder() const;
    /// Selects a folder and opens the tree down to it. Raises FichierIntrouvable when it does not exist; the selection
    /// then stays.
    void setSelectedFolder(const QString &chemin);

    /// The folder above the selected one; "" for a root or when nothing is selected.
    QString Parent() const;

    /// Reads again the folders that have been read. When the selected folder has gone, the nearest existing folder
    /// above it is selected; none when its volume has gone.
    void Refresh();

    /// Runs travail, which deletes or renames folders on the operator's command, and then reads the tree again. Disparu
    /// is not emitted for these folders. Raises what travail raises.
    void Pendant(const std::function<void()> &travail);

Q_SIGNALS:
    void Disparu(const QString &dossier); ///< the selected folder dossier has gone; the selection is as after Refresh()
    void SelectionChange();               ///< another folder is selected, by the operator or the program
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

    QString m_annonce;           // the selection last reported by SelectionChange
    GuetteurDossiers m_guetteur; // watches every folder that has been read
};
