#pragma once

#include <QPlainTextDocumentLayout>

/// The layout of a plain text pane, except that a long row waits for its next painting. The plain one lays the row out
/// anew at each change: a reception without line ends (a wrong speed or parity gives one) would do little else.
class MiseEnPage : public QPlainTextDocumentLayout
{
    Q_OBJECT

public:
    using QPlainTextDocumentLayout::QPlainTextDocumentLayout;

protected:
    void documentChanged(int position, int retirees, int ajoutees) override;

private:
    int m_lignes = 0; ///< of the document, at the last change
};
