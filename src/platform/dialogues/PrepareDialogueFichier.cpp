#include "platform/dialogues/PrepareDialogueFichier.h"

#include "platform/dialogues/Boites.h"
#include "platform/dialogues/DialoguesSysteme.h"

#include <QChildEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLayout>
#include <QListView>
#include <QMessageBox>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QTreeView>

namespace {

constexpr int ColonneNom = 0;
constexpr int ColonneTaille = 1;
constexpr int ColonneType = 2;
constexpr int ColonneDate = 3;

/// Shows sizes and dates in the operator's language; the toolkit shows them in the system's.
class EcritColonne : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &place) const override
    {
        QStyledItemDelegate::initStyleOption(option, place);
        const auto *const modele = qobject_cast<const QFileSystemModel *>(place.model());
        if (modele == nullptr)
            return;
        if (place.column() == ColonneDate)
            option->text = QLocale().toString(modele->lastModified(place), QLocale::ShortFormat);
        else if (!modele->isDir(place))
            option->text = QLocale().formattedDataSize(modele->size(place));
    }
};

void DemandeNouveauDossier(QFileDialog &dialogue)
{
    const QString titre = QFileDialog::tr("Create New Folder");
    const QString nom = InputBox(titre, titre, QFileDialog::tr("New Folder"));
    if (nom.isEmpty())
        return;
    QDir dossier = dialogue.directory();
    if (dossier.mkdir(nom) && dossier.cd(nom))
        dialogue.setDirectory(dossier);
    else
        MsgBox(dossier.filePath(nom), Boite::Exclamation, QFileSystemModel::tr("Invalid filename"));
}

/// Makes the dialog's own boxes, such as the question before a file is overwritten, wide enough for their title.
class PlaceAuxBoites : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *, QEvent *evenement) override
    {
        if (evenement->type() != QEvent::ChildPolished)
            return false;
        if (auto *const boite = qobject_cast<QMessageBox *>(static_cast<QChildEvent *>(evenement)->child()))
            Elargit(*boite);
        return false;
    }
};

} // namespace

QString DossierDeDepart(const QString &dossier)
{
    QDir depart(QDir::cleanPath(QDir::current().absoluteFilePath(dossier)));
    while (!depart.exists() && !depart.isRoot())
        depart = QDir(QFileInfo(depart.path()).path());
    return depart.path();
}

void DansLaLangue(QFileDialog &dialogue)
{
    constexpr int largeur = 70; // characters: room for name, size and date together
    dialogue.setOption(QFileDialog::DontUseNativeDialog, !FichiersDuSysteme());
    dialogue.installEventFilter(new PlaceAuxBoites(&dialogue));
    if (auto *const lieux = dialogue.findChild<QListView *>(QStringLiteral("sidebar")))
        lieux->setMinimumWidth(lieux->sizeHintForColumn(0) + 2 * lieux->frameWidth());
    auto *const liste = dialogue.findChild<QTreeView *>(QStringLiteral("treeView"));
    if (liste == nullptr)
        return;
    liste->hideColumn(ColonneType);
    for (const int colonne : {ColonneTaille, ColonneDate})
        liste->setItemDelegateForColumn(colonne, new EcritColonne(liste));
    // By default sizes and dates are cut although there is room beside them. Here they are shown whole, and the name
    // takes what is left.
    liste->header()->setStretchLastSection(false);
    liste->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    liste->header()->setSectionResizeMode(ColonneNom, QHeaderView::Stretch);
    liste->setMinimumWidth(largeur * liste->fontMetrics().averageCharWidth());
}

void NeFaitQueChoisir(QFileDialog &dialogue, bool nouveauDossier)
{
    dialogue.setOption(QFileDialog::ReadOnly);
    for (const char *const nom : {"listView", "treeView"}) {
        if (auto *const liste = dialogue.findChild<QAbstractItemView *>(QLatin1String(nom)))
            liste->setDragDropMode(QAbstractItemView::NoDragDrop);
    }
    // The toolkit's button makes a folder first and lets its name be changed afterwards, which a read-only dialog
    // forbids.
    auto *const bouton = dialogue.findChild<QToolButton *>(QStringLiteral("newFolderButton"));
    if (bouton == nullptr)
        return;
    bouton->hide();
    if (!nouveauDossier)
        return;
    auto *const notre = new QToolButton(&dialogue);
    notre->setObjectName(QStringLiteral("NouveauDossier"));
    notre->setIcon(bouton->icon());
    notre->setToolTip(bouton->toolTip());
    notre->setAutoRaise(bouton->autoRaise());
    notre->setAccessibleName(bouton->toolTip());
    delete bouton->parentWidget()->layout()->replaceWidget(bouton, notre);
    QObject::connect(notre, &QToolButton::clicked, &dialogue, [&dialogue] { DemandeNouveauDossier(dialogue); });
}
