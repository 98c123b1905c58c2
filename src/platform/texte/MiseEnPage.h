#pragma once

#include <QPlainTextDocumentLayout>

/// The layout of a plain text pane, except that a long row is laid out only when it is next painted. The base class
/// lays it out at each change, which would take nearly all the time of a reception without line ends (as a wrong speed
/// or parity produces).
class MiseEnPage : public QPlainTextDocumentLayout
{
    Q_OBJECT

public:
    using QPlainTextDocumentLayout::QPlainTextDocumentLayout;

protected:
    void documentChanged(int position, int retirees, int ajoutees) override;

private:
    int m_lignes = 0; ///< lines of the document at the last change
};
