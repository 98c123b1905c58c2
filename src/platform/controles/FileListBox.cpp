#include "platform/controles/FileListBox.h"

#include "platform/base/Erreur.h"

#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>

#include <algorithm>

namespace {

QList<QRegularExpression> Formes(const QString &motif)
{
    QList<QRegularExpression> formes;
    const auto alternatives = motif.split(u';', Qt::SkipEmptyParts);
    for (const QString &alternative : alternatives) {
        const QString ecrit = alternative.trimmed();
        // As everywhere in the program, "*.*" includes names without a point.
        QString forme = QRegularExpression::escape(ecrit == QLatin1String("*.*") ? QStringLiteral("*") : ecrit);
        forme.replace(QLatin1String("\\*"), QLatin1String(".*")).replace(QLatin1String("\\?"), QLatin1String("."));
        formes << QRegularExpression(QRegularExpression::anchoredPattern(forme),
                                     QRegularExpression::CaseInsensitiveOption |
                                         QRegularExpression::DotMatchesEverythingOption);
    }
    return formes;
}

} // namespace

FileListBox::FileListBox(QWidget *parent)
    : QListView(parent)
{
    setModel(&m_noms);
    setEditTriggers(NoEditTriggers);
    connect(&m_guetteur, &GuetteurDossiers::Change, this, &FileListBox::Refresh);
    connect(this, &QListView::doubleClicked, this, &FileListBox::DblClick);
}

void FileListBox::setPath(const QString &dossier)
{
    const QFileInfo infos(dossier);
    if (!infos.isDir())
        throw Erreur(Erreur::FichierIntrouvable, dossier);
    if (!infos.isReadable())
        throw Erreur(Erreur::AccesRefuse, dossier);
    if (dossier != m_dossier) {
        if (!m_guetteur.directories().isEmpty())
            m_guetteur.removePaths(m_guetteur.directories());
        m_dossier = dossier;
        setCurrentIndex({});
    }
    Refresh();
}

void FileListBox::setPattern(const QString &motif)
{
    static const QRegularExpression interdits(QStringLiteral(R"([/\\:"<>|])"));
    if (motif.contains(interdits))
        throw Erreur(Erreur::MotifRefuse, motif);
    m_motif = motif;
    m_formes = Formes(motif);
    Refresh();
}

QString FileListBox::FileName() const
{
    return selectionModel()->selectedIndexes().value(0).data().toString();
}

void FileListBox::Refresh()
{
    // A folder that was deleted and created again must be watched again.
    if (m_guetteur.directories().isEmpty() && QFileInfo(m_dossier).isDir())
        m_guetteur.addPath(m_dossier);
    const QStringList noms = Noms();
    if (noms == m_noms.stringList())
        return;
    const QString choisi = FileName();
    m_noms.setStringList(noms);
    if (const qsizetype rang = noms.indexOf(choisi); rang >= 0)
        setCurrentIndex(m_noms.index(static_cast<int>(rang)));
}

void FileListBox::Pendant(const std::function<void()> &travail)
{
    m_guetteur.Suspend(travail);
    Refresh();
}

QStringList FileListBox::Noms() const
{
    if (m_dossier.isEmpty())
        return {};
    QStringList noms = QDir(m_dossier).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
    noms.removeIf([this](const QString &nom) { return !Convient(nom); });
    return noms;
}

bool FileListBox::Convient(const QString &nom) const
{
    return m_formes.isEmpty() || std::any_of(m_formes.begin(), m_formes.end(),
                                             [&nom](const auto &forme) { return forme.match(nom).hasMatch(); });
}

void FileListBox::keyPressEvent(QKeyEvent *evenement)
{
    const bool entree = evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter;
    if (entree && !FileName().isEmpty())
        Q_EMIT DblClick();
    else
        QListView::keyPressEvent(evenement);
}
