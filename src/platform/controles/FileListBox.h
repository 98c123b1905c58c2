#pragma once

#include "platform/controles/GuetteurDossiers.h"

#include <QList>
#include <QListView>
#include <QRegularExpression>
#include <QStringListModel>

/// A list of the plain files in one folder that match a pattern, sorted by name. It follows the disk: files that appear
/// or disappear are shown or removed a moment later, and the selection stays.
class FileListBox : public QListView
{
    Q_OBJECT
    Q_PROPERTY(QString Path READ Path)
    Q_PROPERTY(QString Pattern READ Pattern)
    Q_PROPERTY(QString FileName READ FileName)

public:
    explicit FileListBox(QWidget *parent = nullptr);

    /// The folder listed, as it was given to setPath; "" at first.
    QString Path() const { return m_dossier; }
    /// Lists the folder dossier. Raises FichierIntrouvable or AccesRefuse when it cannot be listed; the list then
    /// stays.
    void setPath(const QString &dossier);

    /// The pattern of the names listed. "*" stands for any characters, "?" for one, case does not matter, and ";"
    /// separates alternatives. "*.*" and "" mean every file. "*.*" at first.
    QString Pattern() const { return m_motif; }
    /// Raises MotifRefuse for characters that no file name has (/ \ : " < > |); the pattern then stays as it is.
    void setPattern(const QString &motif);

    /// Name of the selected file, without folder; "" when none is selected.
    QString FileName() const;

    /// Reads the folder again. The list is empty when the folder has gone or cannot be read.
    void Refresh();

    /// Runs travail, which deletes or renames the folder, and then reads the folder again. Raises what travail raises.
    void Pendant(const std::function<void()> &travail);

Q_SIGNALS:
    void DblClick(); ///< FileName() was double-clicked, or Enter was pressed on it

protected:
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    QStringList Noms() const;
    bool Convient(const QString &nom) const;

    QString m_dossier;
    QString m_motif = QStringLiteral("*.*");
    QList<QRegularExpression> m_formes; // one expression for each alternative of the pattern
    QStringListModel m_noms;
    GuetteurDossiers m_guetteur;
};
