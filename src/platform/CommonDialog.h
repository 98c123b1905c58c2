#pragma once

#include <QObject>
#include <QString>

/// The common dialog: asks the operator for a file. One object serves many commands; each sets what it needs first.
class CommonDialog : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool CancelError = false; ///< cancelling raises Erreur::DialogueAnnule
    QString FileName;         ///< before: name first offered; after: full path of the choice
    QString FileTitle;        ///< after: the name without its folder
    QString InitDir;          ///< folder first shown; "" is the current one
    QString DialogTitle;
    QString Filter;      ///< pairs "label|pattern", separated by "|"
    int FilterIndex = 0; ///< pair first selected, from 1; after: the pair chosen
    int Flags = 0;       ///< EcrasementDemande

    static constexpr int EcrasementDemande = 2; ///< ask before an existing file is chosen for saving

    /// Asks for an existing file. Raises DialogueAnnule when CancelError is set and the operator cancels; without
    /// CancelError nothing changes then.
    void ShowOpen();

    /// Asks for a file to write, existing or not. Raises as ShowOpen().
    void ShowSave();

private:
    void Demande(bool enregistrement);
};
