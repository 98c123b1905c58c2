#include "platform/Dossiers.h"
#include "platform/Erreur.h"
#include "platform/FichierTexte.h"
#include "platform/FileListBox.h"
#include "platform/FolderTreeview.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

// The folder tree, the file list and the operations on folders, on a real folder of the disk.
class TestFolderTreeview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_dossier = std::make_unique<QTemporaryDir>(); }
    void Selection();
    void SuitLeDisque();
    void EtoileNOuvrePasTout();
    void Motifs_data();
    void Motifs();
    void ListeSuitLeDisque();
    void Renomme();
    void EffaceSansSuivreLesLiens();
    void EffaceArrete();

private:
    QString Chemin(const QString &nom) const { return m_dossier->filePath(nom); }
    void Pose(const QStringList &fichiers) const;

    std::unique_ptr<QTemporaryDir> m_dossier;
};

namespace {

template <typename Geste>
int NumeroDe(Geste geste)
{
    try {
        geste();
    } catch (const Erreur &erreur) {
        return erreur.Numero();
    }
    return 0;
}

QString Sous(const QTreeWidgetItem *noeud)
{
    QStringList noms;
    for (int i = 0; i < noeud->childCount(); ++i)
        noms << noeud->child(i)->text(0);
    return noms.join(u' ');
}

QString Noms(const FileListBox &liste)
{
    QStringList noms;
    for (int i = 0; i < liste.model()->rowCount(); ++i)
        noms << liste.model()->index(i, 0).data().toString();
    return noms.join(u' ');
}

} // namespace

/// Makes files that hold their own names, with the folders that they need; a name with a final "/" is a folder.
void TestFolderTreeview::Pose(const QStringList &fichiers) const
{
    for (const QString &fichier : fichiers) {
        QVERIFY(QDir().mkpath(QFileInfo(Chemin(fichier)).path()));
        if (!fichier.endsWith(u'/'))
            EcritFichierTexte(Chemin(fichier), fichier);
    }
}

// A path comes back with its final separator, however it was written; what cannot be selected changes nothing.
void TestFolderTreeview::Selection()
{
    Pose({u"Tour/b/"_s, u"Tour/A/"_s, u"Tour/.cache/x/"_s, u"Tour/piece.iso"_s});
    FolderTreeview arbre;
    QCOMPARE(arbre.SelectedFolder(), QString());
    QSignalSpy changements(&arbre, &FolderTreeview::SelectionChange);
    for (const QString &ecrit : {u"Tour"_s, u"Tour/"_s, u"Tour/../Tour"_s}) {
        arbre.setSelectedFolder(Chemin(ecrit));
        QCOMPARE(arbre.SelectedFolder(), Chemin(u"Tour/"_s));
        QCOMPARE(arbre.Parent(), m_dossier->path() + u'/');
    }
    for (const QString &refuse : {Chemin(u"Fraise"_s), Chemin(u"Tour/piece.iso"_s), QString()})
        QCOMPARE(NumeroDe([&] { arbre.setSelectedFolder(refuse); }), Erreur::FichierIntrouvable);
    QCOMPARE(changements.count(), 1);

    arbre.currentItem()->setExpanded(true);
    QCOMPARE(Sous(arbre.currentItem()), u"A b"_s);
    arbre.setSelectedFolder(Chemin(u"Tour/.cache/x"_s)); // on the way lies a folder that is not listed
    arbre.Refresh();
    QCOMPARE(arbre.SelectedFolder(), Chemin(u"Tour/.cache/x/"_s));
    arbre.setSelectedFolder(QDir::rootPath());
    QCOMPARE(arbre.SelectedFolder(), QDir::toNativeSeparators(QDir::rootPath()));
    QCOMPARE(arbre.Parent(), QString());
    arbre.setSelectedFolder(QDir::homePath());
    QCOMPARE(arbre.currentItem()->parent(), nullptr); // the operator's own folder stands at the top
}

// Folders that others make, rename or delete come and go in what has been read, and nothing else moves. Where the
// selected one has gone it is the folder above that gets selected, never a neighbour.
void TestFolderTreeview::SuitLeDisque()
{
    Pose({u"B/dessous/"_s, u"B/avant/"_s, u"C/"_s});
    FolderTreeview arbre;
    arbre.setSelectedFolder(Chemin(u"B/dessous"_s));
    QTreeWidgetItem *const dossier = arbre.currentItem()->parent()->parent();
    QSignalSpy changements(&arbre, &FolderTreeview::SelectionChange);
    Pose({u"a/"_s});
    QVERIFY(QDir().rmdir(Chemin(u"B/avant"_s)));
    QVERIFY(QDir().rename(Chemin(u"C"_s), Chemin(u"D"_s)));
    QTRY_COMPARE(Sous(dossier), u"a B D"_s);
    QCOMPARE(Sous(dossier->child(1)), u"dessous"_s);
    QVERIFY(dossier->child(1)->isExpanded());
    QCOMPARE(changements.count(), 0);
    QVERIFY(QDir(Chemin(u"B"_s)).removeRecursively());
    QTRY_COMPARE(Sous(dossier), u"a D"_s);
    QCOMPARE(arbre.SelectedFolder(), m_dossier->path() + u'/');
}

void TestFolderTreeview::EtoileNOuvrePasTout()
{
    Pose({u"A/B/"_s});
    FolderTreeview arbre;
    arbre.setSelectedFolder(m_dossier->path());
    QTest::keyClick(&arbre, Qt::Key_Asterisk);
    QCOMPARE(Sous(arbre.currentItem()), QString());
}

void TestFolderTreeview::Motifs_data()
{
    QTest::addColumn<QString>("motif");
    QTest::addColumn<QString>("attendus"); // null: refused
    const QString tous = u"9000 a.cn B.RUB p+1.iso p[1].iso PIECE.ISO"_s;
    QTest::newRow("every file") << u"*.*"_s << tous;
    QTest::newRow("nothing typed") << QString() << tous;
    QTest::newRow("both cases") << u"*.iso"_s << u"p+1.iso p[1].iso PIECE.ISO"_s;
    QTest::newRow("alternatives") << u"*.cn; *.rub"_s << u"a.cn B.RUB"_s;
    QTest::newRow("one character") << u"p?1*.iso"_s << u"p+1.iso p[1].iso"_s;
    QTest::newRow("brackets are letters") << u"p[1]*"_s << u"p[1].iso"_s;
    QTest::newRow("the whole name") << u"*.is"_s << u""_s;
    for (const char *refuse : {"../*", "a\\*", "c:*", "<a", "a>", "a|b", "\"a\""})
        QTest::newRow(refuse) << QString::fromLatin1(refuse) << QString();
}

void TestFolderTreeview::Motifs()
{
    QFETCH(QString, motif);
    QFETCH(QString, attendus);
    Pose(
        {u"PIECE.ISO"_s, u"p+1.iso"_s, u"p[1].iso"_s, u"a.cn"_s, u"B.RUB"_s, u"9000"_s, u".cache.iso"_s, u"d.iso/x"_s});
    FileListBox liste;
    liste.setPath(m_dossier->path());
    liste.setPattern(u"9*"_s);
    QCOMPARE(NumeroDe([&] { liste.setPattern(motif); }), attendus.isNull() ? FileListBox::MotifRefuse : 0);
    QCOMPARE(Noms(liste), attendus.isNull() ? u"9000"_s : attendus);
}

// A file that a reception writes is there a moment later, and the selection stays on its file. A folder that cannot be
// listed leaves the list as it is; one deleted and made again is followed like the first.
void TestFolderTreeview::ListeSuitLeDisque()
{
    Pose({u"d/m.iso"_s});
    FileListBox liste;
    liste.setPath(Chemin(u"d/"_s));
    QCOMPARE(liste.FileName(), QString());
    liste.setCurrentIndex(liste.model()->index(0, 0));
    Pose({u"d/a.iso"_s});
    QTRY_COMPARE(Noms(liste), u"a.iso m.iso"_s);
    QCOMPARE(liste.FileName(), u"m.iso"_s);
    QFile::remove(Chemin(u"d/m.iso"_s));
    QTRY_COMPARE(Noms(liste), u"a.iso"_s);
    QCOMPARE(liste.FileName(), QString());
    for (const QString &refuse : {Chemin(u"absent"_s), Chemin(u"d/a.iso"_s), QString()})
        QCOMPARE(NumeroDe([&] { liste.setPath(refuse); }), Erreur::FichierIntrouvable);
    QCOMPARE(Noms(liste), u"a.iso"_s);

    QDir(Chemin(u"d"_s)).removeRecursively();
    QTRY_COMPARE(Noms(liste), QString());
    Pose({u"d/neuf.iso"_s});
    liste.setPath(Chemin(u"d/"_s));
    Pose({u"d/suivant.iso"_s});
    QTRY_COMPARE(Noms(liste), u"neuf.iso suivant.iso"_s);
}

// Nothing that stands under the new name is overwritten, not even an empty folder.
void TestFolderTreeview::Renomme()
{
    Pose({u"Tour/p.iso"_s, u"vide/"_s, u"plein/p.iso"_s});
    for (const QString &pris : {u"vide"_s, u"plein"_s, u"plein/p.iso"_s})
        QVERIFY(NumeroDe([&] { RenommeDossier(Chemin(u"Tour"_s), Chemin(pris)); }) != 0);
    QCOMPARE(LitOctets(Chemin(u"plein/p.iso"_s)), QByteArray("plein/p.iso"));
    RenommeDossier(Chemin(u"Tour"_s), Chemin(u"vide/Tour 2"_s));
    QCOMPARE(LitOctets(Chemin(u"vide/Tour 2/p.iso"_s)), QByteArray("Tour/p.iso"));
    QCOMPARE(NumeroDe([&] { RenommeDossier(Chemin(u"x"_s), Chemin(u"y"_s)); }), Erreur::FichierIntrouvable);
}

void TestFolderTreeview::EffaceSansSuivreLesLiens()
{
    Pose({u"loin/p.iso"_s, u"d/a/b/1.iso"_s, u"d/.cache"_s, u"d/v/"_s});
    QVERIFY(QFile::link(Chemin(u"loin"_s), Chemin(u"d/a/lien"_s)));
    QVERIFY(QFile::link(Chemin(u"nulle part"_s), Chemin(u"d/casse"_s)));
    QVERIFY(QFile::link(Chemin(u"d"_s), Chemin(u"d/v/boucle"_s)));
    QVERIFY(QFile::link(Chemin(u"d"_s), Chemin(u"entree"_s)));
    const auto toujours = [] { return true; };
    QCOMPARE(CompteContenu(Chemin(u"d"_s)).dossiers, 3);
    QCOMPARE(CompteContenu(Chemin(u"d"_s)).fichiers, 5);
    EffaceDossier(Chemin(u"entree"_s), toujours);
    QVERIFY(!QFileInfo(Chemin(u"entree"_s)).isSymLink());
    QCOMPARE(CompteContenu(Chemin(u"d"_s)).fichiers, 5);
    EffaceDossier(Chemin(u"d"_s), toujours);
    QVERIFY(!QFileInfo::exists(Chemin(u"d"_s)));
    QCOMPARE(LitOctets(Chemin(u"loin/p.iso"_s)), QByteArray("loin/p.iso"));
}

// Stopped by the operator, or by an entry that another program puts into a folder just emptied.
void TestFolderTreeview::EffaceArrete()
{
    Pose({u"d/1"_s, u"d/2"_s, u"d/3"_s});
    int vus = 0;
    QCOMPARE(NumeroDe([&] { EffaceDossier(Chemin(u"d"_s), [&vus] { return ++vus < 2; }); }), Erreur::DialogueAnnule);
    QCOMPARE(CompteContenu(Chemin(u"d"_s)).fichiers, 1);
    const auto tracasse = [this] {
        Pose({u"d/neuf"_s});
        return true;
    };
    QCOMPARE(NumeroDe([&] { EffaceDossier(Chemin(u"d"_s), tracasse); }), Erreur::ErreurFichier);
    QCOMPARE(CompteContenu(Chemin(u"d"_s)).fichiers, 1);
}

QTEST_MAIN(TestFolderTreeview)
#include "TestFolderTreeview.moc"
