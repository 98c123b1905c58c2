#pragma once

#include <QFont>
#include <QPainter>
#include <QString>
#include <QTextOption>

#include <functional>

class QPrinter;

/// The printer: it takes lines of text and turns the pages by itself, with no margins but the printer's own. A job
/// begins with the first line and goes out with EndDoc(); one that was not ended when the object goes is given up.
class Printer
{
public:
    /// reglages: printer, paper and PDF file as the operator chose them; it outlives this object.
    explicit Printer(QPrinter &reglages);
    ~Printer();
    Q_DISABLE_COPY_MOVE(Printer)

    QFont Font; ///< of the lines to come

    /// Called every now and then while a text is printed, with how many of its characters are done. What it raises
    /// leaves Print().
    std::function<void(qsizetype faits)> Suivi;

    /// Prints texte and goes to the next line. A line ends at CR LF, CR or LF; what does not fit beside the others is
    /// cut off, and a tabulator goes to the next eighth column. Raises ErreurFichier when the printer or its file
    /// cannot be written.
    void Print(const QString &texte = {});

    /// Ends the job. The next line begins another one; in PDF each has a file of its own, and those behind the first
    /// bear a number in their names that is still free.
    void EndDoc();

private:
    void CommenceTravail();
    void Ligne(const QString &ligne);
    QString FichierSuivant() const;

    QPrinter &m_reglages;
    const QString m_fichier; ///< the PDF file that the operator named; "" for a printer
    int m_travaux = 0;       ///< jobs begun
    QPainter m_peintre;
    QTextOption m_option;
    double m_hauteur = 0; ///< of a line, in the printer's dots
    double m_y = 0;       ///< where the next line goes
    int m_pagesDues = 0;  ///< pages to turn before the next character: lines without any at the end waste no sheet
};
