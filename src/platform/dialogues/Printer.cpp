#include "platform/dialogues/Printer.h"

#include "platform/base/Erreur.h"
#include "platform/dialogues/Boites.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPrinter>
#include <QScreen>
#include <QTextLayout>

namespace {

[[noreturn]] void Echoue()
{
    throw Erreur(Erreur::ErreurFichier, QString());
}

} // namespace

Printer::Printer(QPrinter &reglages)
    : m_reglages(reglages)
    , m_fichier(reglages.outputFileName())
{
    m_option.setWrapMode(QTextOption::WrapAnywhere); // only the first piece of a broken line is drawn
}

Printer::~Printer()
{
    if (m_peintre.isActive()) {
        m_reglages.abort();
        m_peintre.end();
        if (!m_fichier.isEmpty())
            QFile::remove(m_reglages.outputFileName());
    }
    m_reglages.setOutputFileName(m_fichier);
}

void Printer::Print(const QString &texte)
{
    constexpr int pas = 100; // lines
    constexpr int colonnesTabulation = 8;
    CommenceTravail();
    const QFontMetricsF metrique(Font, &m_reglages);
    m_hauteur = metrique.lineSpacing();
    // QTextLayout takes tab stops in dots of the screen and converts them to the printer's.
    const double echelle = QGuiApplication::primaryScreen()->logicalDotsPerInchY() / m_reglages.logicalDpiY();
    m_option.setTabStopDistance(colonnesTabulation * metrique.horizontalAdvance(u' ') * echelle);
    const QString lignes = PourAffichage(texte);
    int numero = 0;
    for (const QStringView ligne : qTokenize(lignes, u'\n')) {
        ImprimeLigne(ligne.toString());
        if (Suivi && ++numero % pas == 0)
            Suivi(ligne.data() + ligne.size() - lignes.constData());
    }
}

void Printer::EndDoc()
{
    if (m_peintre.isActive() && !m_peintre.end())
        Echoue();
}

void Printer::CommenceTravail()
{
    if (m_peintre.isActive())
        return;
    if (!m_fichier.isEmpty() && m_travaux > 0)
        m_reglages.setOutputFileName(FichierSuivant());
    if (!m_peintre.begin(&m_reglages))
        Echoue();
    ++m_travaux;
    m_y = 0;
    m_pagesDues = 0;
}

void Printer::ImprimeLigne(const QString &ligne)
{
    const QRectF page = m_reglages.pageRect(QPrinter::DevicePixel);
    if (m_y > 0 && m_y + m_hauteur > page.height()) {
        ++m_pagesDues;
        m_y = 0;
    }
    for (; !ligne.isEmpty() && m_pagesDues > 0; --m_pagesDues) {
        if (!m_reglages.newPage())
            Echoue();
    }
    QTextLayout piece(ligne, Font, &m_reglages);
    piece.setTextOption(m_option);
    piece.beginLayout();
    QTextLine debut = piece.createLine();
    if (debut.isValid()) {
        debut.setLineWidth(page.width());
        debut.draw(&m_peintre, QPointF(0, m_y));
    }
    piece.endLayout();
    m_y += m_hauteur;
}

/// The first name "fichier_2.pdf", "fichier_3.pdf" and so on that no file bears.
QString Printer::FichierSuivant() const
{
    const QFileInfo premier(m_fichier);
    QString suivant;
    for (int numero = 2; suivant.isEmpty() || QFile::exists(suivant); ++numero)
        suivant = premier.dir().filePath(
            QStringLiteral("%1_%2.%3").arg(premier.completeBaseName()).arg(numero).arg(premier.suffix()));
    return suivant;
}
