#pragma once

#include <QString>

#include <functional>

// Automatic saving of the program text. A changed text that leaves the pane unsaved, in whatever way, is first kept in
// the folder "Sauvegardes". While it is being changed it is written there from time to time, so that it survives a
// crash. The operator is never asked. A failure to write stops no command, and is told once a run.

/// Connects the automatic saving with the pane. Once, when the main window exists.
void BrancheSauvegardeAuto();

/// Keeps the text of the pane, if it is changed, unsaved and not empty, and the text of a RetientAussi. What
/// has not changed since is not kept a second time. For an end that the system demands; whatever puts another text into
/// the pane triggers the keeping of that by itself.
void RetientTexte();

/// While it lives, RetientTexte() keeps a second text: that of a running reception, which stands in no pane yet.
class RetientAussi
{
public:
    /// nom: path or name of its program. texte gives what there is so far, "" for nothing.
    RetientAussi(const QString &nom, std::function<QString()> texte);
    ~RetientAussi();
    Q_DISABLE_COPY_MOVE(RetientAussi)

    void Retient();

private:
    const QString m_nom;
    const std::function<QString()> m_texte;
    QString m_retenu; ///< what was kept last
};

/// Keeps the text at the end of the program, or before a new text begins. nonEnregistre: the operator wanted to save it
/// and that failed or he gave it up; he is then told where it is kept, or that it is lost.
void RetientTexteFinal(bool nonEnregistre);

/// Offers the texts that crashed runs of the program have left, at the start. It asks for each, the newest first,
/// whether to open it, until one is opened, and tells how many others there are and where. The opened one becomes a
/// changed document with its file in "Sauvegardes": the file that it came from is not touched.
void ProposeTextesRetrouves();
