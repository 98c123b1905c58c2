#pragma once

#include <QTextDocument>

/// Switches undo off while it lives and clears the undo history. For a whole program the history would need more memory
/// than the text.
class SansAnnulation
{
public:
    explicit SansAnnulation(QTextDocument *document)
        : m_document(document)
    {
        m_document->setUndoRedoEnabled(false);
    }
    ~SansAnnulation() { m_document->setUndoRedoEnabled(true); }
    Q_DISABLE_COPY_MOVE(SansAnnulation)

private:
    QTextDocument *m_document;
};
