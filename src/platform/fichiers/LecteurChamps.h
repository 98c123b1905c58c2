#pragma once

#include <QString>

/// texte as a quoted value that LecteurChamps reads back. A double quote inside would end it there and shift every
/// field behind it; an apostrophe stands in.
QString ValeurEntreGuillemets(QString texte);

/// Reads the fields of a settings file one after another.
///
/// Blanks before a value are skipped. A value that begins with a double quote runs to the next double quote; any other
/// runs to the next comma or the end of its line. What follows, up to and including the separator or line end, is
/// consumed with the field. Every operation raises FinDeFichier when the file ended before the field.
class LecteurChamps
{
public:
    /// texte: the whole file.
    explicit LecteurChamps(const QString &texte);

    /// Next field as text.
    QString Chaine();

    /// Next field as a 16-bit number; a text that is none counts as 0. Raises Depassement.
    int Entier();

    /// Next line, which must hold a quoted text and nothing else. Raises TypeIncompatible.
    QString LigneChaine();

    /// Next line, which must hold a 16-bit number, blanks around it allowed, and nothing else.
    /// Raises TypeIncompatible, Depassement.
    int LigneEntier();

    /// Same, and also takes the words #TRUE# and #FALSE# for 1 and 0.
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
