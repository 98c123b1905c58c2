#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <stdexcept>

/// Raised for a list of tools that is not well formed.
class ListeFausse : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// A presetting bench: it measures the tools of a list one by one, and gives each as one burst for the line.
///
/// Each line of the list is a tool: corrector number, length Z, X, and the letter that says whether X is a radius (R)
/// or a diameter (D), separated by blanks. The texts are sent as written, so that the bench can also send wrong ones. A
/// line in double quotes is a burst by itself, such as the greeting of a bench. Empty lines and lines that begin with #
/// are ignored.
class Banc
{
public:
    static constexpr qsizetype TailleSalve = 70; ///< characters of a burst, its CR LF included

    /// liste: the text of the list. Raises ListeFausse with the number of the wrong line, or when the list holds no
    /// tool.
    explicit Banc(const QByteArray &liste);

    qsizetype Nombre() const { return m_salves.size(); }
    /// Position in the list, from 1, of the burst that Mesure() returned last.
    qsizetype Numero() const { return m_numero; }
    /// The burst of the next tool. After the last tool comes the first again.
    QByteArray Mesure();

    /// The burst of one measure: "TN:", the corrector in columns 4 to 8, Z in 25 to 33, X in 50 to 58, the mode in 62.
    /// A text longer than its columns is cut at its end.
    static QByteArray Salve(const QByteArray &correcteur, const QByteArray &z, const QByteArray &x,
                            const QByteArray &mode);

private:
    QByteArrayList m_salves;
    qsizetype m_numero = 0;
};
