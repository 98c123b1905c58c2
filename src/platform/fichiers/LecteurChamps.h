#pragma once

#include <QString>

/// texte as a quoted value that LecteurChamps reads back. A double quote inside texte becomes an apostrophe: it would
/// end the value early and shift every following field.
QString ValeurEntreGuillemets(QString texte);

/// Reads the fields of a settings file one after another.
///
/// Blanks before a value are skipped. A value that begins with a double quote runs to the next double quote; any other
/// runs to the next comma or the end of its line. The separator or line end behind the field, and anything before it,
/// is consumed too. Every operation raises FinDeFichier when the file ends before the field.
class LecteurChamps
{
public:
    /// texte: the whole file.
    explicit LecteurChamps(const QString &texte);

    /// Next field as text.
    QString Chaine();

    /// Next field as a 16-bit number, 0 when it is no number. Raises Depassement beyond 16 bits.
    int Entier();

    /// Next line, which must be a single quoted text. Raises TypeIncompatible.
    QString LigneChaine();

    /// Next line, which must be a single 16-bit number; blanks around it are allowed.
    /// Raises TypeIncompatible, Depassement.
    int LigneEntier();

    /// Same, and the words #TRUE# and #FALSE# count as 1 and 0.
    int LigneOuiNon();

private:
    void SauteBlancs();
    bool EnFinDeLigne() const;
    QString ValeurNue();
    QString ValeurCitee();
    QString Valeur();
    QString ResteDeLigne();
    void FinitLigne();

    QString m_texte;
    qsizetype m_place = 0;
};
