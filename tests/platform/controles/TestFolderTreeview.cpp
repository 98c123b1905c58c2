#include "Essais.h"
#include "platform/controles/FileListBox.h"
#include "platform/controles/FolderTreeview.h"
#include "platform/controles/GuetteurDossiers.h"
#include "platform/controles/posix/VolumesPosix.h"
#include "platform/fichiers/Dossiers.h"
#include "platform/fichiers/FichierTexte.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>

// The folder tree, the file list and the operations on folders, on a real folder of the disk.
class TestFolderTreeview : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_dossier;

    QString Chemin(const QString &nom) const { return m_dossier->filePath(nom); }

    /// Makes files that hold their own names, with the folders that they need; a name with a final "/" is a folder.
    void Pose(const QStringList &fichiers) const
    {
        for (const QString &fichier : fichiers) {
            QVERIFY(QDir().mkpath(QFileInfo(Chemin(fichier)).path()));
            if (!fichier.endsWith(u'/'))
                EcritFichierTexte(Chemin(fichier), fichier);
        }
    }

    /// What stands in a list, or directly under a node of the tree.
    static QString Noms(const QAbstractItemView &vue, const QModelIndex &noeud = {})
    {
        QStringList noms;
        for (int i = 0; i < vue.model()->rowCount(noeud); ++i)
            noms << vue.model()->index(i, 0, noeud).data().toString();
        return noms.join(u' ');
    }

private Q_SLOTS:
    void init() { m_dossier = std::make_unique<QTemporaryDir>(); }

    // A path comes back with its final separator, however it was written; what cannot be selected changes nothing.
    void Selection()
    {
        Pose({u"Tour/b/"_s, u"Tour/A/"_s, u"Tour/.cache/x/"_s, u"Tour/piece.iso"_s});
        FolderTreeview arbre;
        const QSignalSpy changements(&arbre, &FolderTreeview::SelectionChange);
        arbre.setSelectedFolder(Chemin(u"Tour/../Tour"_s));
        QCOMPARE(arbre.SelectedFolder(), Chemin(u"Tour/"_s));
        for (const QString &refuse : {Chemin(u"Fraise"_s), Chemin(u"Tour/piece.iso"_s), QString()})
            QCOMPARE(NumeroErreur([&] { arbre.setSelectedFolder(refuse); }), Erreur::FichierIntrouvable);
        QCOMPARE(changements.count(), 1);
        QTest::keyClick(&arbre, Qt::Key_Asterisk); // opens not the whole disk
        QCOMPARE(Noms(arbre, arbre.currentIndex()), QString());
        arbre.currentItem()->setExpanded(true);
        QCOMPARE(Noms(arbre, arbre.currentIndex()), u"A b"_s);
        arbre.setSelectedFolder(Chemin(u"Tour/.cache/x"_s)); // on the way lies a folder that is not listed
        QCOMPARE(arbre.SelectedFolder(), Chemin(u"Tour/.cache/x/"_s));
        arbre.setSelectedFolder(QDir::rootPath());
        QCOMPARE(arbre.Parent(), QString());
    }

    // Folders that others make, rename or delete come and go in what has been read, and nothing else moves. Where the
    // selected one has gone it is the folder above that gets selected, never a neighbour, and that is told once; what
    // the operator takes away himself is not told.
    void SuitLeDisque()
    {
        Pose({u"B/dessous/"_s, u"B/avant/"_s, u"C/"_s});
        FolderTreeview arbre;
        arbre.setSelectedFolder(Chemin(u"B/dessous"_s));
        const QPersistentModelIndex b = arbre.currentIndex().parent();
        const QPersistentModelIndex dossier = b.parent();
        const QSignalSpy changements(&arbre, &FolderTreeview::SelectionChange);
        Pose({u"a/"_s});
        QVERIFY(QDir().rmdir(Chemin(u"B/avant"_s)));
        QVERIFY(QDir().rename(Chemin(u"C"_s), Chemin(u"D"_s)));
        QTRY_COMPARE(Noms(arbre, dossier), u"a B D"_s);
        QCOMPARE(Noms(arbre, b), u"dessous"_s);
        QVERIFY(arbre.isExpanded(b));
        QCOMPARE(changements.count(), 0);
        const QSignalSpy disparus(&arbre, &FolderTreeview::Disparu);
        QVERIFY(QDir(Chemin(u"B"_s)).removeRecursively());
        QTRY_COMPARE(Noms(arbre, dossier), u"a D"_s);
        QCOMPARE(arbre.SelectedFolder(), m_dossier->path() + u'/');
        QCOMPARE(disparus.value(0).value(0).toString(), Chemin(u"B/dessous/"_s));
        arbre.setSelectedFolder(Chemin(u"D"_s));
        GuetteurDossiers autre; // made after the tree's own, so it tells after that one
        autre.addPath(m_dossier->path());
        QSignalSpy dits(&autre, &GuetteurDossiers::Change);
        arbre.Pendant([&] {
            QVERIFY(QDir().rmdir(Chemin(u"D"_s)));
            QVERIFY(dits.wait());
        });
        QCOMPARE(arbre.SelectedFolder(), m_dossier->path() + u'/');
        QCOMPARE(disparus.count(), 1);
    }

    // What is in sight stays where it is when something comes further up.
    void NeBougePas()
    {
        for (const char nom : QByteArray("bcdefghijklmnopqrstuvwxyz"))
            Pose({QChar::fromLatin1(nom) + u"/"_s});
        FolderTreeview arbre;
        arbre.resize(200, 100);
        arbre.show();
        arbre.setSelectedFolder(Chemin(u"m"_s));
        const QModelIndex dossier = arbre.currentIndex().parent();
        const QRect place = arbre.visualRect(arbre.currentIndex());
        Pose({u"a/"_s});
        QTRY_VERIFY(Noms(arbre, dossier).startsWith(u'a'));
        QCOMPARE(arbre.visualRect(arbre.currentIndex()), place);
    }

    // A name with a blank and an accent; what lies deeper, elsewhere or in another one's session is not for the tree.
    void VolumesMontes()
    {
        QByteArray table;
        for (const char *la : {"/", "/mnt/z", "/media/moi", "/media/moi/CL\\303\\211\\0401", "/media/lui/X", "/mnt/z",
                               "/media/cdrom", "/run/media/moi/b\\134", "/mnt/z/a", "/home"})
            table += "42 27 0:39 / "_ba + la + " rw,relatime shared:1 - vfat /dev/sdb1 rw\n";
        const QStringList volumes{u"/media/cdrom"_s, u"/media/moi/CLÉ 1"_s, u"/mnt/z"_s, u"/run/media/moi/b\\"_s};
        QCOMPARE(VolumesDeTable(table + "42 27", u"moi"_s), volumes);
    }

    // Whether a path leads through a folder, however the two are written.
    void Derriere()
    {
        Pose({u"a/b/c.iso"_s, u"ab/"_s});
        QVERIFY(QFile::link(Chemin(u"a"_s), Chemin(u"lien"_s)));
        const std::tuple<QString, QString, std::optional<QString>> cas[] = {{u"a"_s, u"a/b/c.iso"_s, u"/b/c.iso"_s},
                                                                            {u"a/"_s, u"a/../a/parti"_s, u"/parti"_s},
                                                                            {u"a"_s, u"a"_s, QString()},
                                                                            {u"a"_s, u"ab"_s, std::nullopt},
                                                                            {u"a"_s, u"lien/b/c.iso"_s, u"/b/c.iso"_s},
                                                                            {u"lien/b"_s, u"a/b/c.iso"_s, u"/c.iso"_s},
                                                                            {u"lien"_s, u"lien/b/"_s, u"/b"_s},
                                                                            {u"lien"_s, u"a/b/c.iso"_s, std::nullopt}};
        for (const auto &[dossier, chemin, reste] : cas)
            QVERIFY2(ResteDerriere(Chemin(dossier), Chemin(chemin)) == reste, qPrintable(dossier + u' ' + chemin));
    }

    void Motifs()
    {
        Pose({u"PIECE.ISO"_s, u"p+1.iso"_s, u"p[1].iso"_s, u"a.cn"_s, u"B.RUB"_s, u"9000"_s, u".c.iso"_s, u"d.iso/"_s});
        FileListBox liste;
        liste.setPath(m_dossier->path());
        const std::pair<QString, QString> cas[] = {{QString(), u"9000 a.cn B.RUB p+1.iso p[1].iso PIECE.ISO"_s},
                                                   {u"*.cn; *.rub"_s, u"a.cn B.RUB"_s},
                                                   {u"p?1*.iso"_s, u"p+1.iso p[1].iso"_s},
                                                   {u"p[1]*"_s, u"p[1].iso"_s},
                                                   {u"*.is"_s, QString()}};
        for (const auto &[motif, attendus] : cas) {
            const auto passe = Passe(motif);
            liste.setPattern(motif);
            QCOMPARE(Noms(liste), attendus);
        }
        for (const char *refuse : {"../*", "a\\*", "c:*", "<a", "a>", "a|b", "\"a\""})
            QCOMPARE(NumeroErreur([&] { liste.setPattern(QString::fromLatin1(refuse)); }), Erreur::MotifRefuse);
        QCOMPARE(Noms(liste), QString());
    }

    // A file that a reception writes is there a moment later, and the selection stays on its file. A folder deleted and
    // made again is followed like the first.
    void ListeSuitLeDisque()
    {
        Pose({u"d/m.iso"_s});
        FileListBox liste;
        liste.setPath(Chemin(u"d/"_s));
        liste.setCurrentIndex(liste.model()->index(0, 0));
        Pose({u"d/a.iso"_s});
        QTRY_COMPARE(Noms(liste), u"a.iso m.iso"_s);
        QCOMPARE(liste.FileName(), u"m.iso"_s);
        QVERIFY(QDir(Chemin(u"d"_s)).removeRecursively());
        QTRY_COMPARE(Noms(liste), QString());
        Pose({u"d/neuf.iso"_s});
        liste.setPath(Chemin(u"d/"_s));
        Pose({u"d/suivant.iso"_s});
        QTRY_COMPARE(Noms(liste), u"neuf.iso suivant.iso"_s);
    }

    void EffaceSansSuivreLesLiens()
    {
        Pose({u"loin/p.iso"_s, u"d/a/b/1.iso"_s, u"d/.cache"_s, u"d/v/"_s});
        QVERIFY(QFile::link(Chemin(u"loin"_s), Chemin(u"d/a/lien"_s)));
        QVERIFY(QFile::link(Chemin(u"nulle part"_s), Chemin(u"d/casse"_s)));
        QVERIFY(QFile::link(Chemin(u"d"_s), Chemin(u"d/v/boucle"_s)));
        QCOMPARE(CompteContenu(Chemin(u"d"_s)).dossiers, 3);
        QCOMPARE(CompteContenu(Chemin(u"d"_s)).fichiers, 5);
        int vus = 0;
        const auto arret = NumeroErreur([&] { EffaceDossier(Chemin(u"d"_s), [&vus] { return ++vus < 2; }); });
        QCOMPARE(arret, Erreur::DialogueAnnule);
        const ContenuDossier reste = CompteContenu(Chemin(u"d"_s));
        QCOMPARE(reste.dossiers + reste.fichiers, 3 + 5 - 2); // which two, the disk decides
        EffaceDossier(Chemin(u"d"_s), [] { return true; });
        QVERIFY(!QFileInfo::exists(Chemin(u"d"_s)));
        QCOMPARE(LitOctets(Chemin(u"loin/p.iso"_s)), QByteArray("loin/p.iso"));
    }
};

QTEST_MAIN(TestFolderTreeview)
#include "TestFolderTreeview.moc"
