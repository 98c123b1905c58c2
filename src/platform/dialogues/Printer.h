#pragma once

#include <QFont>
#include <QPainter>
#include <QString>
#include <QTextOption>

#include <functional>

class QPrinter;

/// Prints lines of text, and turns the pages by itself. The only margins are the printer's own. A job begins with the
/// first line and goes out with EndDoc(); a job that was not ended when the object is destroyed is given up.
class Printer
{
public:
    /// reglages: printer, paper and PDF file as the operator chose them; it outlives this object.
    explicit Printer(QPrinter &reglages);
    ~Printer();
    Q_DISABLE_COPY_MOVE(Printer)

    QFont Font; ///< font of the lines to come

    /// Called now and then while a text is printed. faits: characters of it that are done. An exception from it leaves
    /// Print().
    std::function<void(qsizetype faits)> Suivi;

    /// Prints texte and goes to the next line. A line ends at CR LF, CR or LF. A line too long for the page is cut at
    /// its right edge, and a tabulator goes to the next eighth column. Raises ErreurFichier when the printer or its
    /// file cannot be written.
    void Print(const QString &texte = {});

    /// Ends the job; the next line begins another one. In PDF each job has a file of its own: the second and later ones
    /// get the first free number added to the name. Raises ErreurFichier as Print().
    void EndDoc();

private:
    void CommenceTravail();
    void ImprimeLigne(const QString &ligne);
    QString FichierSuivant() const;

    QPrinter &m_reglages;
    const QString m_fichier; ///< the PDF file that the operator named; "" for a printer
    int m_travaux = 0;       ///< jobs begun
    QPainter m_peintre;
    QTextOption m_option;
    double m_hauteur = 0; ///< height of a line, in the printer's dots
    double m_y = 0;       ///< where the next line goes
    int m_pagesDues = 0;  ///< pages to turn before the next character: blank lines at the end use no sheet
};
