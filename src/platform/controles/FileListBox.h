#pragma once

#include "platform/controles/GuetteurDossiers.h"

#include <QList>
#include <QListView>
#include <QRegularExpression>
#include <QStringListModel>

/// The list of the plain files of one folder that match a pattern, in the order of their names. It follows the disk: a
/// file that comes or goes while the list stands open is shown or dropped a moment later, and the selection stays.
class FileListBox : public QListView
{
    Q_OBJECT
    Q_PROPERTY(QString Path READ Path)
    Q_PROPERTY(QString Pattern READ Pattern)
    Q_PROPERTY(QString FileName READ FileName)

public:
    explicit FileListBox(QWidget *parent = nullptr);

    /// The folder listed, as it was given; "" before the first one.
    QString Path() const { return m_dossier; }
    /// Lists another folder, or the same one anew. Raises FichierIntrouvable or AccesRefuse when it cannot be listed;
    /// the list then stays as it is.
    void setPath(const QString &dossier);

    /// Which names are listed: "*" stands for any characters, "?" for one, letters match in both cases, and ";" parts
    /// alternatives. "*.*", as well as "", is every file. At first "*.*".
    QString Pattern() const { return m_motif; }
    /// Raises MotifRefuse for characters that no file name has (/ \ : " < > |); the pattern then stays as it is.
    void setPattern(const QString &motif);

    /// The selected file, without folder; "" when none is selected.
    QString FileName() const;

    /// Reads the folder anew. One that has gone, or cannot be read any more, lists nothing.
    void Refresh();

Q_SIGNALS:
    void DblClick(); ///< a file was double-clicked, or Enter pressed on it: FileName

protected:
    void keyPressEvent(QKeyEvent *evenement) override;

private:
    QStringList Noms() const;
    bool Convient(const QString &nom) const;

    QString m_dossier;
    QString m_motif = QStringLiteral("*.*");
    QList<QRegularExpression> m_formes; // one for each alternative of the pattern
    QStringListModel m_noms;
    GuetteurDossiers m_guetteur;
};
