#pragma once

#include <QTextDocument>

/// Work on a text that Ctrl+Z cannot undo: for a whole program the undo store would outweigh the text.
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
