#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <stdexcept>

/// A list of tools that means nothing.
class ListeFausse : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A presetting bench: it measures the tools of a list one by one, and gives each as one burst for the line.
///
/// The list holds a tool on each line: corrector number, length Z, X, and the letter that says whether X is a radius
/// (R) or a diameter (D), with blanks between them. Each is sent as it is written, so that a bench may also be wrong. A
/// line in double quotes is a burst of its own, such as the greeting of a bench. A line that begins with #, and an
/// empty one, is passed over.
class Banc
{
public:
    static constexpr qsizetype TailleSalve = 70; ///< characters of a burst, its CR LF included

    /// liste: the text of the list. Raises ListeFausse with the number of the line that is wrong, or when there is no
    /// tool in it.
    explicit Banc(const QByteArray &liste);

    qsizetype Nombre() const { return m_salves.size(); }
    /// Place in the list, from 1, of the burst that Mesure() gave last.
    qsizetype Numero() const { return m_numero; }
    /// The burst of the next tool; behind the last comes the first again.
    QByteArray Mesure();

    /// The burst of one measure: "TN:", the corrector in columns 4 to 8, Z in 25 to 33, X in 50 to 58, the mode in 62.
    /// A text that is longer than its columns loses its end.
    static QByteArray Salve(const QByteArray &correcteur, const QByteArray &z, const QByteArray &x,
                            const QByteArray &mode);

private:
    QByteArrayList m_salves;
    qsizetype m_numero = 0;
};
