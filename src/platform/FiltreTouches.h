#pragma once

#include <QValidator>

/// Keeps characters out of a text box: a forbidden one is dropped, typed or pasted, and the rest goes in.
class FiltreTouches : public QValidator
{
    Q_OBJECT

public:
    /// interdits: the characters that must not enter.
    FiltreTouches(const QString &interdits, QObject *parent);

    State validate(QString &texte, int &curseur) const override;

private:
    QString m_interdits;
};
