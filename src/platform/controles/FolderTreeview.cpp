#include "platform/controles/FolderTreeview.h"

#include "platform/base/Casse.h"
#include "platform/base/Erreur.h"
#include "platform/controles/Volumes.h"

#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSet>
#include <QStyle>

namespace {

/// A node of the tree: a folder with its absolute path, with "/" and without a final separator (except a root).
class Noeud : public QTreeWidgetItem
{
public:
    Noeud(const QString &chemin, const QString &nom, const QIcon &icone)
        : m_chemin(chemin)
    {
        setText(0, nom);
        setIcon(0, icone);
        // Every node first shows that it can be opened. Whether it has sub-folders is found out when it is opened:
        // looking into each one beforehand would be slow and wake every network drive.
        setChildIndicatorPolicy(ShowIndicator);
    }

    const QString &Chemin() const { return m_chemin; }
    bool Lu() const { return childIndicatorPolicy() != ShowIndicator; }
    void MarqueLu() { setChildIndicatorPolicy(DontShowIndicatorWhenChildless); }

    QString CheminDe(const QString &nom) const { return QDir(m_chemin).filePath(nom); }

    // The column is narrow, so the tool tip shows the whole path.
    QVariant data(int colonne, int role) const override
    {
        return role == Qt::ToolTipRole ? QDir::toNativeSeparators(m_chemin) : QTreeWidgetItem::data(colonne, role);
    }

    bool operator<(const QTreeWidgetItem &autre) const override
    {
        return text(0).compare(autre.text(0), Qt::CaseInsensitive) < 0;
    }

private:
    QString m_chemin;
};

Noeud *EnNoeud(QTreeWidgetItem *noeud)
{
    return static_cast<Noeud *>(noeud);
}

const Noeud *EnNoeud(const QTreeWidgetItem *noeud)
{
    return static_cast<const Noeud *>(noeud);
}

/// A folder at the top of the tree.
struct LieuRacine
{
    QString chemin;
    QString nom;
    QStyle::StandardPixmap icone;
};

QList<LieuRacine> Lieux()
{
    QList<LieuRacine> lieux = {{QDir::homePath(), QDir::home().dirName(), QStyle::SP_DirHomeIcon}};
    const QStringList volumes = Volumes();
    for (const QString &volume : volumes)
        lieux << LieuRacine{volume, QFileInfo(volume).fileName(), QStyle::SP_DriveHDIcon};
    const auto disques = QDir::drives();
    for (const QFileInfo &disque : disques) {
        if (disque.filePath() != QDir::homePath())
            lieux << LieuRacine{disque.filePath(), QDir::toNativeSeparators(disque.filePath()),
                                QStyle::SP_ComputerIcon};
    }
    return lieux;
}

bool EstSous(const QString &chemin, const QString &dossier)
{
    const Qt::CaseSensitivity casse = CasseDesChemins();
    return chemin.compare(dossier, casse) == 0 ||
           chemin.startsWith(dossier.endsWith(u'/') ? dossier : dossier + u'/', casse);
}

QString AvecSeparateur(const QString &chemin)
{
    return QDir::toNativeSeparators(chemin.endsWith(u'/') ? chemin : chemin + u'/');
}

} // namespace

FolderTreeview::FolderTreeview(QWidget *parent)
    : QTreeWidget(parent)
{
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setIndentation(14);
    // Long rows of deep folders can be scrolled instead of being cut.
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(&m_guetteur, &GuetteurDossiers::Change, this, &FolderTreeview::SuitLeDisque);
    connect(this, &QTreeWidget::itemExpanded, this, &FolderTreeview::Lit);
    connect(this, &QTreeWidget::itemSelectionChanged, this, &FolderTreeview::Annonce);
    connect(this, &QTreeWidget::itemClicked, this, &FolderTreeview::Click);
}

void FolderTreeview::showEvent(QShowEvent *evenement)
{
    LitPremierement();
    QTreeWidget::showEvent(evenement);
}

/// Reads the tree when it is first needed, so that the start of the program does not wait for the disk.
void FolderTreeview::LitPremierement()
{
    if (topLevelItemCount() == 0)
        LitSommets();
}

QString FolderTreeview::SelectedFolder() const
{
    const QTreeWidgetItem *const choisi = Choisi();
    return choisi == nullptr ? QString() : AvecSeparateur(EnNoeud(choisi)->Chemin());
}

void FolderTreeview::setSelectedFolder(const QString &chemin)
{
    const QString cible = QDir::cleanPath(QFileInfo(chemin).absoluteFilePath());
    if (chemin.isEmpty() || !QFileInfo(cible).isDir())
        throw Erreur(Erreur::FichierIntrouvable, chemin);
    LitPremierement();
    QTreeWidgetItem *noeud = Sommet(cible);
    if (noeud == nullptr)
        throw Erreur(Erreur::FichierIntrouvable, chemin);
    const auto noms = cible.mid(EnNoeud(noeud)->Chemin().size()).split(u'/', Qt::SkipEmptyParts);
    for (const QString &nom : noms) {
        noeud->setExpanded(true);
        noeud = SousDossier(noeud, nom);
    }
    setCurrentItem(noeud);
    scrollToItem(noeud);
}

QString FolderTreeview::Parent() const
{
    const QTreeWidgetItem *const choisi = Choisi();
    if (choisi == nullptr || QDir(EnNoeud(choisi)->Chemin()).isRoot())
        return {};
    return AvecSeparateur(QFileInfo(EnNoeud(choisi)->Chemin()).path());
}

void FolderTreeview::Refresh()
{
    LitSommets();
    for (int i = 0; i < topLevelItemCount(); ++i)
        Relit(topLevelItem(i));
}

/// Follows a change of the disk. The visible rows stay in place even when folders above them appear or disappear, since
/// the operator may be about to click on one.
void FolderTreeview::SuitLeDisque()
{
    const QString choisi = SelectedFolder();
    const QPersistentModelIndex enHaut = indexAt(QPoint());
    const int deCote = horizontalScrollBar()->value();
    Refresh();
    if (enHaut.isValid()) {
        scrollTo(enHaut, PositionAtTop);
        horizontalScrollBar()->setValue(deCote);
    }
    if (choisi != SelectedFolder())
        Q_EMIT Disparu(choisi);
}

void FolderTreeview::Pendant(const std::function<void()> &travail)
{
    m_guetteur.Suspend(travail);
    Refresh();
}

/// Reads the top of the tree again: volumes come and go while the program runs.
void FolderTreeview::LitSommets()
{
    const QList<LieuRacine> lieux = Lieux();
    for (int i = topLevelItemCount() - 1; i >= 0; --i) {
        const QString &chemin = EnNoeud(topLevelItem(i))->Chemin();
        if (std::none_of(lieux.begin(), lieux.end(),
                         [&chemin](const LieuRacine &lieu) { return lieu.chemin == chemin; }))
            Retire(topLevelItem(i));
    }
    for (int i = 0; i < lieux.size(); ++i) {
        const LieuRacine &lieu = lieux[i];
        if (topLevelItem(i) == nullptr || EnNoeud(topLevelItem(i))->Chemin() != lieu.chemin)
            insertTopLevelItem(i, new Noeud(lieu.chemin, lieu.nom, style()->standardIcon(lieu.icone)));
    }
}

/// Reads the folders directly below a node. New folders get a node and vanished ones lose theirs. The other nodes stay,
/// with all that is open below them.
void FolderTreeview::Lit(QTreeWidgetItem *noeud)
{
    Noeud *const dossier = EnNoeud(noeud);
    const QStringList noms =
        QDir(dossier->Chemin()).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    QSet<QString> absents(noms.begin(), noms.end());
    for (int i = noeud->childCount() - 1; i >= 0; --i) {
        Noeud *const enfant = EnNoeud(noeud->child(i));
        // Hidden folders are not listed, but exist.
        if (!absents.remove(enfant->text(0)) && !QFileInfo(enfant->Chemin()).isDir())
            Retire(enfant);
    }
    const bool complete = noeud->childCount() > 0 && !absents.isEmpty();
    QList<QTreeWidgetItem *> nouveaux;
    const QIcon icone = style()->standardIcon(QStyle::SP_DirIcon);
    for (const QString &nom : noms) {
        if (absents.contains(nom))
            nouveaux << new Noeud(dossier->CheminDe(nom), nom, icone);
    }
    noeud->addChildren(nouveaux);
    if (complete)
        noeud->sortChildren(0, Qt::AscendingOrder);
    dossier->MarqueLu();
    m_guetteur.addPath(dossier->Chemin());
}

void FolderTreeview::Relit(QTreeWidgetItem *noeud)
{
    if (!EnNoeud(noeud)->Lu())
        return;
    Lit(noeud);
    for (int i = 0; i < noeud->childCount(); ++i)
        Relit(noeud->child(i));
}

/// Emits SelectionChange when another folder is selected. Qt also reports a change when only the row of the same folder
/// has changed.
void FolderTreeview::Annonce()
{
    if (const QString dossier = SelectedFolder(); dossier != m_annonce) {
        m_annonce = dossier;
        Q_EMIT SelectionChange();
    }
}

QTreeWidgetItem *FolderTreeview::Choisi() const
{
    return selectedItems().value(0);
}

/// Removes a node. If it contains the selected folder, the folder above is selected first, because Qt would select a
/// neighbour.
void FolderTreeview::Retire(QTreeWidgetItem *noeud)
{
    const QString &chemin = EnNoeud(noeud)->Chemin();
    const QTreeWidgetItem *const choisi = Choisi();
    if (choisi != nullptr && EstSous(EnNoeud(choisi)->Chemin(), chemin))
        setCurrentItem(noeud->parent());
    const QStringList guettes = m_guetteur.directories().filter(chemin);
    for (const QString &guette : guettes) {
        if (EstSous(guette, chemin))
            m_guetteur.removePath(guette);
    }
    delete noeud;
}

/// The top node with the longest path that chemin lies below; nullptr when there is none.
QTreeWidgetItem *FolderTreeview::Sommet(const QString &chemin) const
{
    QTreeWidgetItem *meilleur = nullptr;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        QTreeWidgetItem *const sommet = topLevelItem(i);
        const QString &debut = EnNoeud(sommet)->Chemin();
        if (EstSous(chemin, debut) && (meilleur == nullptr || debut.size() > EnNoeud(meilleur)->Chemin().size()))
            meilleur = sommet;
    }
    return meilleur;
}

/// The node below noeud with the name nom, which must be an existing folder. A hidden folder, or one created since the
/// reading, gets a node now.
QTreeWidgetItem *FolderTreeview::SousDossier(QTreeWidgetItem *noeud, const QString &nom)
{
    for (int i = 0; i < noeud->childCount(); ++i) {
        if (noeud->child(i)->text(0).compare(nom, CasseDesChemins()) == 0)
            return noeud->child(i);
    }
    auto *const ajoute = new Noeud(EnNoeud(noeud)->CheminDe(nom), nom, style()->standardIcon(QStyle::SP_DirIcon));
    noeud->addChild(ajoute);
    noeud->sortChildren(0, Qt::AscendingOrder);
    return ajoute;
}

/// Extends the bar of the selection to the right edge, however short the names are.
void FolderTreeview::resizeEvent(QResizeEvent *evenement)
{
    QTreeWidget::resizeEvent(evenement);
    header()->setMinimumSectionSize(viewport()->width());
}

/// Ignores the key "*", by which Qt would open every folder of the PC at any depth.
void FolderTreeview::keyPressEvent(QKeyEvent *evenement)
{
    if (evenement->key() != Qt::Key_Asterisk)
        QTreeWidget::keyPressEvent(evenement);
}
