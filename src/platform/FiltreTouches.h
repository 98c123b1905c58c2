#pragma once

#include <QValidator>

class QLineEdit;

/// Characters that the operator cannot put into the name of a file or folder: what a machine tool's control, or an
/// older file system, stumbles over.
inline constexpr char16_t InterditsNom[] = u" \"².,;:ù*îïÎÏêëÊËôöÔÖûüÛÜâäÂÄ&?+'`^=\\/éèàç()~{[|`\\^]}°*+";

/// Keeps characters out of a text box: a forbidden one is dropped, typed or pasted, and the rest goes in. A line end or
/// tab, which only a paste can bring, is always dropped.
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

/// Shows texte in a box, whole: where it is longer than what the operator may type, the box takes that much from now on.
/// A value of a file would otherwise be cut, and saved so.
void MontreEnEntier(QLineEdit *saisie, const QString &texte);

/// Keeps a text box to texts that match motif, a regular expression: a key that would break it is dropped.
void LimiteTouches(QLineEdit *saisie, const QString &motif);
