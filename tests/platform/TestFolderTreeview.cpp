#include "platform/Dossiers.h"
#include "platform/Erreur.h"
#include "platform/FichierTexte.h"
#include "platform/FileListBox.h"
#include "platform/FolderTreeview.h"

#include <QDir>
#include <QSignalSpy>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QTest>

// The folder tree, the file list and the operations on folders, on a real folder of the disk.
class TestFolderTreeview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void Selection();
    void SelectionRefusee();
    void SuitLeDisque();
    void DossierDisparu();
    void EtoileNOuvrePasTout();
    void Motifs_data();
    void Motifs();
    void MotifRefuse();
    void ListeSuitLeDisque();
    void ListeGardeSonDossier();
    void CreeEtRenomme();
    void EffaceSansSuivreLesLiens();
    void EffaceArrete();
    void EffaceResiste();
    void Racines();

private:
    QString Chemin(const QString &nom) const { return m_dossier->filePath(nom); }
    void Pose(const QStringList &fichiers) const;
    static QStringList Sous(const QTreeWidgetItem *noeud);
    static QStringList Noms(const FileListBox &liste);

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

bool Toujours()
{
    return true;
}

} // namespace

void TestFolderTreeview::init()
{
    m_dossier = std::make_unique<QTemporaryDir>();
}

/// Makes files, with the folders that they need; a name with a final "/" is a folder.
void TestFolderTreeview::Pose(const QStringList &fichiers) const
{
    for (const QString &fichier : fichiers) {
        QVERIFY(QDir().mkpath(QFileInfo(Chemin(fichier)).path()));
        if (!fichier.endsWith(u'/'))
            EcritFichierTexte(Chemin(fichier), fichier);
    }
}

QStringList TestFolderTreeview::Sous(const QTreeWidgetItem *noeud)
{
    QStringList noms;
    for (int i = 0; i < noeud->childCount(); ++i)
        noms << noeud->child(i)->text(0);
    return noms;
}

QStringList TestFolderTreeview::Noms(const FileListBox &liste)
{
    QStringList noms;
    for (int i = 0; i < liste.model()->rowCount(); ++i)
        noms << liste.model()->index(i, 0).data().toString();
    return noms;
}

// A path comes back with its final separator, however it was written; what is selected stands open in the tree.
void TestFolderTreeview::Selection()
{
    Pose({QStringLiteral("Tour/b/"), QStringLiteral("Tour/A/"), QStringLiteral("Tour/.cache/x/"),
          QStringLiteral("Tour/piece.iso")});
    FolderTreeview arbre;
    QCOMPARE(arbre.SelectedFolder(), QString());
    QCOMPARE(arbre.Parent(), QString());

    QSignalSpy changements(&arbre, &FolderTreeview::SelectionChange);
    for (const char *ecrit : {"Tour", "Tour/", "Tour/../Tour"}) {
        arbre.setSelectedFolder(Chemin(QLatin1String(ecrit)));
        QCOMPARE(arbre.SelectedFolder(), Chemin(QStringLiteral("Tour/")));
    }
    QCOMPARE(changements.count(), 1);
    QCOMPARE(arbre.Parent(), m_dossier->path() + u'/');
    QVERIFY(arbre.currentItem()->isSelected());

    arbre.currentItem()->setExpanded(true);
    QCOMPARE(Sous(arbre.currentItem()), QStringList({QStringLiteral("A"), QStringLiteral("b")}));
    arbre.setSelectedFolder(Chemin(QStringLiteral("Tour/.cache/x"))); // on the way lies a folder that is not listed
    QCOMPARE(arbre.SelectedFolder(), Chemin(QStringLiteral("Tour/.cache/x/")));
    arbre.Refresh();
    QCOMPARE(arbre.SelectedFolder(), Chemin(QStringLiteral("Tour/.cache/x/")));

    arbre.setSelectedFolder(QDir::rootPath());
    QCOMPARE(arbre.SelectedFolder(), QDir::toNativeSeparators(QDir::rootPath()));
    QCOMPARE(arbre.Parent(), QString());
    arbre.setSelectedFolder(QDir::homePath());
    QCOMPARE(arbre.currentItem()->parent(), nullptr); // the operator's own folder stands at the top
}

void TestFolderTreeview::SelectionRefusee()
{
    Pose({QStringLiteral("Tour/piece.iso")});
    FolderTreeview arbre;
    arbre.setSelectedFolder(Chemin(QStringLiteral("Tour")));
    for (const QString &refuse :
         {Chemin(QStringLiteral("Fraise")), Chemin(QStringLiteral("Tour/piece.iso")), QString()}) {
        QCOMPARE(NumeroDe([&] { arbre.setSelectedFolder(refuse); }), Erreur::FichierIntrouvable);
        QCOMPARE(arbre.SelectedFolder(), Chemin(QStringLiteral("Tour/")));
    }
}

// Folders made, deleted and renamed by others appear and go in what has been read, and nothing else moves.
void TestFolderTreeview::SuitLeDisque()
{
    Pose({QStringLiteral("B/dessous/"), QStringLiteral("C/")});
    FolderTreeview arbre;
    arbre.setSelectedFolder(Chemin(QStringLiteral("B/dessous")));
    QTreeWidgetItem *const dossier = arbre.currentItem()->parent()->parent();
    QSignalSpy changements(&arbre, &FolderTreeview::SelectionChange);
    QDir(m_dossier->path()).mkdir(QStringLiteral("a"));
    QDir(m_dossier->path()).rename(QStringLiteral("C"), QStringLiteral("D"));
    QTRY_COMPARE(Sous(dossier), QStringList({QStringLiteral("a"), QStringLiteral("B"), QStringLiteral("D")}));
    QCOMPARE(arbre.SelectedFolder(), Chemin(QStringLiteral("B/dessous/")));
    QVERIFY(dossier->child(1)->isExpanded());
    QCOMPARE(changements.count(), 0);
}

void TestFolderTreeview::DossierDisparu()
{
    Pose({QStringLiteral("A/"), QStringLiteral("B/dessous/"), QStringLiteral("C/")});
    FolderTreeview arbre;
    arbre.setSelectedFolder(Chemin(QStringLiteral("B/dessous")));
    QVERIFY(QDir(Chemin(QStringLiteral("B"))).removeRecursively());
    arbre.Refresh();
    QCOMPARE(arbre.SelectedFolder(), m_dossier->path() + u'/'); // the folder above, never a neighbour
}

void TestFolderTreeview::EtoileNOuvrePasTout()
{
    Pose({QStringLiteral("A/B/C/")});
    FolderTreeview arbre;
    arbre.setSelectedFolder(m_dossier->path());
    QTest::keyClick(&arbre, Qt::Key_Asterisk);
    QCOMPARE(arbre.currentItem()->childCount(), 0);
}

void TestFolderTreeview::Motifs_data()
{
    QTest::addColumn<QString>("motif");
    QTest::addColumn<QStringList>("attendus");
    const auto cas = [](const char *motif, const char *noms) {
        QTest::newRow(motif) << QString::fromLatin1(motif) << QString::fromLatin1(noms).split(u' ', Qt::SkipEmptyParts);
    };
    cas("*.*", "9000 a.cn B.RUB p+1.iso p[1].iso PIECE.ISO");
    cas("", "9000 a.cn B.RUB p+1.iso p[1].iso PIECE.ISO");
    cas("*.iso", "p+1.iso p[1].iso PIECE.ISO");
    cas("*.cn; *.rub", "a.cn B.RUB");
    cas("p?1*.iso", "p+1.iso p[1].iso");
    cas("p[1]*", "p[1].iso");
    cas("*.is", "");
    cas("9*", "9000");
}

void TestFolderTreeview::Motifs()
{
    QFETCH(QString, motif);
    QFETCH(QStringList, attendus);
    Pose({QStringLiteral("PIECE.ISO"), QStringLiteral("p+1.iso"), QStringLiteral("p[1].iso"), QStringLiteral("a.cn"),
          QStringLiteral("B.RUB"), QStringLiteral("9000"), QStringLiteral(".cache.iso"), QStringLiteral("d.iso/x")});
    FileListBox liste;
    liste.setPath(m_dossier->path());
    liste.setPattern(motif);
    QCOMPARE(Noms(liste), attendus);
}

void TestFolderTreeview::MotifRefuse()
{
    Pose({QStringLiteral("a.cn"), QStringLiteral("b.iso")});
    FileListBox liste;
    liste.setPath(m_dossier->path());
    liste.setPattern(QStringLiteral("*.cn"));
    for (const char *refuse : {"../*", "a\\*", "c:*", "<a>", "a|b", "\"a\""}) {
        QCOMPARE(NumeroDe([&] { liste.setPattern(QLatin1String(refuse)); }), FileListBox::MotifRefuse);
        QCOMPARE(liste.Pattern(), QStringLiteral("*.cn"));
        QCOMPARE(Noms(liste), QStringList(QStringLiteral("a.cn")));
    }
}

// A file that a reception writes is there a moment later, and the selection stays on its file.
void TestFolderTreeview::ListeSuitLeDisque()
{
    Pose({QStringLiteral("d/m.iso"), QStringLiteral("d/z.iso")});
    FileListBox liste;
    liste.setPath(Chemin(QStringLiteral("d/")));
    QCOMPARE(liste.FileName(), QString());
    liste.setCurrentIndex(liste.model()->index(0, 0));
    QCOMPARE(liste.FileName(), QStringLiteral("m.iso"));
    Pose({QStringLiteral("d/a.iso")});
    QTRY_COMPARE(liste.model()->rowCount(), 3);
    QCOMPARE(liste.FileName(), QStringLiteral("m.iso"));
    QFile::remove(Chemin(QStringLiteral("d/m.iso")));
    QTRY_COMPARE(liste.model()->rowCount(), 2);
    QCOMPARE(liste.FileName(), QString());

    QDir(Chemin(QStringLiteral("d"))).removeRecursively();
    QTRY_COMPARE(liste.model()->rowCount(), 0);
    Pose({QStringLiteral("d/neuf.iso")});
    liste.setPath(Chemin(QStringLiteral("d/")));
    Pose({QStringLiteral("d/suivant.iso")}); // the folder made again is followed too
    QTRY_COMPARE(liste.model()->rowCount(), 2);
}

void TestFolderTreeview::ListeGardeSonDossier()
{
    Pose({QStringLiteral("a.cn")});
    FileListBox liste;
    liste.setPath(m_dossier->path());
    for (const QString &refuse : {Chemin(QStringLiteral("absent")), Chemin(QStringLiteral("a.cn")), QString()})
        QCOMPARE(NumeroDe([&] { liste.setPath(refuse); }), Erreur::FichierIntrouvable);
    QCOMPARE(liste.Path(), m_dossier->path());
    QCOMPARE(Noms(liste), QStringList(QStringLiteral("a.cn")));
}

void TestFolderTreeview::CreeEtRenomme()
{
    const QString nom = QStringLiteral(" Pièce 1 ");
    CreeDossier(Chemin(nom));
    QCOMPARE(QDir(m_dossier->path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList(nom));
    QCOMPARE(NumeroDe([&] { CreeDossier(Chemin(nom)); }), Erreur::ErreurFichier);
    QCOMPARE(NumeroDe([&] { CreeDossier(Chemin(QStringLiteral("x/y"))); }), Erreur::FichierIntrouvable);

    Pose({QStringLiteral("plein/p.iso"), QStringLiteral("vide/")});
    for (const char *pris : {"plein", "vide", "plein/p.iso"}) {
        QVERIFY(NumeroDe([&] { RenommeDossier(Chemin(nom), Chemin(QLatin1String(pris))); }) != 0);
        QVERIFY(QFileInfo(Chemin(nom)).isDir());
    }
    QCOMPARE(LitOctets(Chemin(QStringLiteral("plein/p.iso"))), QByteArray("plein/p.iso"));
    RenommeDossier(Chemin(QStringLiteral("plein")), Chemin(QStringLiteral("vide/deplace")));
    QCOMPARE(LitOctets(Chemin(QStringLiteral("vide/deplace/p.iso"))), QByteArray("plein/p.iso"));
    RenommeDossier(Chemin(nom), Chemin(nom)); // an answer left as it was offered
    QCOMPARE(NumeroDe([&] { RenommeDossier(Chemin(QStringLiteral("x")), Chemin(QStringLiteral("y"))); }),
             Erreur::FichierIntrouvable);
}

void TestFolderTreeview::EffaceSansSuivreLesLiens()
{
    Pose({QStringLiteral("loin/p.iso"), QStringLiteral("d/a/b/1.iso"), QStringLiteral("d/.cache"),
          QStringLiteral("d/v/")});
    QVERIFY(QFile::link(Chemin(QStringLiteral("loin")), Chemin(QStringLiteral("d/a/lien"))));
    QVERIFY(QFile::link(Chemin(QStringLiteral("nulle part")), Chemin(QStringLiteral("d/casse"))));
    QVERIFY(QFile::link(Chemin(QStringLiteral("d")), Chemin(QStringLiteral("d/v/boucle"))));
    QVERIFY(QFile::link(Chemin(QStringLiteral("d")), Chemin(QStringLiteral("entree"))));

    const ContenuDossier contenu = CompteContenu(Chemin(QStringLiteral("d")));
    QCOMPARE(contenu.dossiers, 3);
    QCOMPARE(contenu.fichiers, 5);
    QCOMPARE(CompteContenu(Chemin(QStringLiteral("entree"))).fichiers, 0);

    EffaceDossier(Chemin(QStringLiteral("entree")), Toujours);
    QVERIFY(!QFileInfo(Chemin(QStringLiteral("entree"))).isSymLink());
    QCOMPARE(CompteContenu(Chemin(QStringLiteral("d"))).fichiers, 5);
    EffaceDossier(Chemin(QStringLiteral("d")), Toujours);
    QVERIFY(!QFileInfo::exists(Chemin(QStringLiteral("d"))));
    QCOMPARE(LitOctets(Chemin(QStringLiteral("loin/p.iso"))), QByteArray("loin/p.iso"));
}

void TestFolderTreeview::EffaceArrete()
{
    Pose({QStringLiteral("d/1"), QStringLiteral("d/2"), QStringLiteral("d/3")});
    int vus = 0;
    QCOMPARE(NumeroDe([&] { EffaceDossier(Chemin(QStringLiteral("d")), [&vus] { return ++vus < 2; }); }),
             Erreur::DialogueAnnule);
    QCOMPARE(CompteContenu(Chemin(QStringLiteral("d"))).fichiers, 1);
}

// A folder that goes away under the deletion's hands resists at its turn, and the failure names it.
void TestFolderTreeview::EffaceResiste()
{
    Pose({QStringLiteral("d/1"), QStringLiteral("d/2")});
    const auto tracasse = [this] {
        Pose({QStringLiteral("d/neuf")}); // written by another program while the folder is being emptied
        return true;
    };
    try {
        EffaceDossier(Chemin(QStringLiteral("d")), tracasse);
        QFAIL("a folder that is not empty was deleted");
    } catch (const Erreur &erreur) {
        QCOMPARE(erreur.Numero(), Erreur::ErreurFichier);
        QVERIFY(erreur.Description().contains(Chemin(QStringLiteral("d"))));
    }
    QCOMPARE(CompteContenu(Chemin(QStringLiteral("d"))).fichiers, 1);
}

void TestFolderTreeview::Racines()
{
    QVERIFY(EstRacine(QDir::rootPath()));
    QVERIFY(!EstRacine(m_dossier->path() + u'/'));
    const auto volumes = QStorageInfo::mountedVolumes();
    for (const QStorageInfo &volume : volumes)
        QVERIFY2(!volume.isReady() || EstRacine(volume.rootPath()), qPrintable(volume.rootPath()));
}

QTEST_MAIN(TestFolderTreeview)
#include "TestFolderTreeview.moc"
