#include "Operateur.h"
#include "platform/Boites.h"
#include "platform/ChoixDossier.h"
#include "Poste.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QDir>
#include <QInputDialog>
#include <QLineEdit>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

// The explorer column, as an operator uses it. The column is open on "Pieces" when a test begins.
class TestExplorateur : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void OuvreEtFerme();
    void Filtre();
    void OuvreUnProgramme();
    void ListeSuitLaSelection();
    void Cree_data();
    void Cree();
    void Supprime();
    void SupprimeUnLien();
    void SupprimeAMoitie();
    void Renomme_data();
    void Renomme();
    void Refus();
    void DossierDuDialogue();
    void RienNEstCoupe_data();
    void RienNEstCoupe();

private:
    void Selectionne(const QString &nom) const { frmPrinc->FolderTreeview1->setSelectedFolder(m_poste->Chemin(nom)); }
    QString Selection() const;
    static QString Fichiers();
    void Saisit(const QString &titre, const QString &invite, const QString &offert, const QString &reponse);

    std::unique_ptr<Poste> m_poste;
    std::unique_ptr<Operateur> m_operateur;
};

namespace {

/// Rights count for root too while this lives.
class SansPrivilege
{
public:
    SansPrivilege() { m_change = geteuid() == 0 && seteuid(65534) == 0; }
    ~SansPrivilege()
    {
        if (m_change && seteuid(0) != 0)
            qFatal("the rights of the test are lost");
    }
    Q_DISABLE_COPY_MOVE(SansPrivilege)

private:
    bool m_change = false;
};

constexpr int Question = Boite::OuiNon | Boite::Exclamation | Boite::SecondBouton;

} // namespace

void TestExplorateur::init()
{
    m_poste = std::make_unique<Poste>();
    m_operateur = std::make_unique<Operateur>();
    QVERIFY(QDir(m_poste->Dossier()).mkpath(u"Pieces/Tour"_s));
    m_poste->Ecrit(u"Pieces/PIECE.ISO"_s, "%1\r\nG0X1");
    m_poste->Ecrit(u"Pieces/b.cn"_s, "%2");
    m_poste->Ecrit(u"Pieces/Tour/b.cn"_s, "%3");
    m_poste->Ecrit(u"b.cn"_s, "%4");
    m_poste->Demarre(0);
    DosDefaut = m_poste->Chemin(u"Pieces"_s);
    Operateur::Barre(15);
}

void TestExplorateur::cleanup()
{
    m_operateur.reset(); // says which boxes never came
    m_poste.reset();
}

/// The selected folder, seen from the application folder.
QString TestExplorateur::Selection() const
{
    return QDir(m_poste->Dossier()).relativeFilePath(frmPrinc->FolderTreeview1->SelectedFolder());
}

QString TestExplorateur::Fichiers()
{
    QStringList noms;
    const QAbstractItemModel *const modele = frmPrinc->File1->model();
    for (int i = 0; i < modele->rowCount(); ++i)
        noms << modele->index(i, 0).data().toString();
    return noms.join(u' ');
}

/// Foretells an input box and what is selected in it; a null answer cancels.
void TestExplorateur::Saisit(const QString &titre, const QString &invite, const QString &offert, const QString &reponse)
{
    m_operateur->Fait(u"InputBox"_s, [=](QWidget &fenetre) {
        auto &boite = dynamic_cast<QInputDialog &>(fenetre);
        QCOMPARE(boite.windowTitle(), titre);
        QCOMPARE(boite.labelText(), invite);
        QTRY_COMPARE(boite.findChild<QLineEdit *>()->selectedText(), offert);
        boite.setTextValue(reponse);
        reponse.isNull() ? boite.reject() : boite.accept();
    });
}

// The menu entry, the button and the column go together. It opens on the folder of the open dialog; where that has
// gone, on the application folder.
void TestExplorateur::OuvreEtFerme()
{
    const auto etat = [] {
        const bool ouvert = frmPrinc->Frame1->isVisible();
        return ouvert == frmPrinc->Mnu_AffichDOS->isChecked() && ouvert == frmPrinc->Bouton(15)->isChecked() ? ouvert
                                                                                                             : -1;
    };
    QCOMPARE(etat(), 1);
    QCOMPARE(Selection(), u"Pieces"_s);
    QCOMPARE(Fichiers(), u"b.cn PIECE.ISO"_s);
    frmPrinc->Command3->click();
    QCOMPARE(etat(), 0);
    QCOMPARE(frmPrinc->Bouton(15)->toolTip(), u"Fermer l'explorateur de fichiers"_s); // the button's own doing
    DosDefaut = m_poste->Chemin(u"debranche"_s);
    Operateur::Menu(u"Mnu_AffichDOS"_s);
    QCOMPARE(etat(), 1);
    QCOMPARE(Selection(), u"."_s);
    QCOMPARE(DosDefaut, m_poste->Chemin(u"debranche"_s));
    Operateur::Barre(15);
    QCOMPARE(etat(), 0);
    QCOMPARE(frmPrinc->Bouton(15)->toolTip(), u"Afficher l'explorateur de fichiers"_s);
}

// Each key counts, and nothing is added to what is typed.
void TestExplorateur::Filtre()
{
    QComboBox &filtre = *frmPrinc->Combo1;
    QCOMPARE(filtre.count(), 16);
    filtre.setCurrentIndex(1);
    QCOMPARE(Fichiers(), u"PIECE.ISO"_s);
    filtre.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(frmPrinc));
    filtre.lineEdit()->clear();
    QTest::keyClicks(filtre.lineEdit(), u"*.c"_s);
    QCOMPARE(Fichiers(), QString());
    QTest::keyClicks(filtre.lineEdit(), u"n"_s);
    QCOMPARE(Fichiers(), u"b.cn"_s);
    m_operateur->Repond(u"Erreur"_s, u"Filtre incorrect !"_s, Boite::Exclamation, QMessageBox::Ok);
    QTest::keyClicks(filtre.lineEdit(), u"/"_s);
    QCOMPARE(Fichiers(), u"b.cn PIECE.ISO"_s);
}

// A double click, or Enter, opens the file; a changed text is dropped without a question.
void TestExplorateur::OuvreUnProgramme()
{
    frmPrinc->Text1->setText(u"autre"_s);
    FileListBox &liste = *frmPrinc->File1;
    const auto double_clic = [&liste](QPoint ici) {
        QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, ici);
        QTest::mouseDClick(liste.viewport(), Qt::LeftButton, {}, ici);
    };
    double_clic(liste.viewport()->rect().bottomRight()); // beside the names
    QCOMPARE(NomFichier, QString());
    double_clic(liste.visualRect(liste.model()->index(1, 0)).center());
    QCOMPARE(NomFichier, m_poste->Chemin(u"Pieces/PIECE.ISO"_s));
    QCOMPARE(TitreFichier, u"PIECE.ISO"_s);
    QCOMPARE(frmPrinc->Text1->Text(), u"%1\r\nG0X1"_s);
    QCOMPARE(FichierModifie, 0);
    QTest::keyClick(&liste, Qt::Key_Up);
    QTest::keyClick(&liste, Qt::Key_Return);
    QCOMPARE(frmPrinc->Text1->Text(), u"%2"_s);
}

// The list and the selected folder are never at odds: a namesake from elsewhere could go to the machine.
void TestExplorateur::ListeSuitLaSelection()
{
    QTest::keyClick(frmPrinc->FolderTreeview1, Qt::Key_Right);
    QTest::keyClick(frmPrinc->FolderTreeview1, Qt::Key_Down);
    QCOMPARE(Selection(), u"Pieces/Tour"_s);
    QCOMPARE(Fichiers(), u"b.cn"_s);
    QDir(m_poste->Chemin(u"Pieces/Tour"_s)).removeRecursively();
    QTRY_COMPARE(Selection(), u"Pieces"_s);
    QCOMPARE(Fichiers(), u"b.cn PIECE.ISO"_s);
}

void TestExplorateur::Cree_data()
{
    QTest::addColumn<QString>("reponse");
    QTest::addColumn<QString>("cree"); // the folder selected afterwards
    QTest::newRow("a name") << u"Fraise"_s << u"Pieces/Fraise/"_s;
    QTest::newRow("blanks around stay") << u" F 1 "_s << u"Pieces/ F 1 /"_s;
    QTest::newRow("hidden") << u".f"_s << u"Pieces/.f/"_s;
    QTest::newRow("blanks only") << u"   "_s << u"Pieces/"_s;
    QTest::newRow("cancelled") << QString() << u"Pieces/"_s;
    QTest::newRow("in use") << u"Tour"_s << u"Pieces/"_s;
}

void TestExplorateur::Cree()
{
    QFETCH(QString, reponse);
    QFETCH(QString, cree);
    const QString dossier = frmPrinc->FolderTreeview1->SelectedFolder();
    Saisit(u"Créer un dossier"_s,
           u"Indiquez le nom du nouveau dossier, qui deviendra sous-dossier de %1 après sa création !"_s.arg(dossier),
           QString(), reponse);
    if (reponse == u"Tour")
        m_operateur->Repond(u"Erreur"_s, u"Le dossier %1Tour n'a pas pu être créé !"_s.arg(dossier), Boite::Critique,
                            QMessageBox::Ok);
    frmPrinc->Command1->click();
    QCOMPARE(frmPrinc->FolderTreeview1->SelectedFolder(), m_poste->Chemin(cree));
    QCOMPARE(frmPrinc->File1->Path(), m_poste->Chemin(cree));
    const auto dossiers = QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot;
    QCOMPARE(QDir(dossier).entryList(dossiers).size(), cree == u"Pieces/" ? 1 : 2);
}

// Refused, nothing goes; the folder above is selected all the same, with its own files in the list.
void TestExplorateur::Supprime()
{
    Selectionne(u"Pieces/Tour"_s);
    m_operateur->Ferme(u"MsgBox"_s);
    frmPrinc->Command2->click();
    QCOMPARE(m_poste->Lit(u"Pieces/Tour/b.cn"_s), QByteArray("%3"));
    QCOMPARE(Selection(), u"Pieces"_s);
    QCOMPARE(Fichiers(), u"b.cn PIECE.ISO"_s);

    m_operateur->Repond(u"Supprimer un dossier"_s,
                        u"Supprimer définitivement ce dossier et tout ce qu'il contient ?\r%1\r"
                        u"Sous-dossiers : 1, fichiers : 3"_s.arg(m_poste->Chemin(u"Pieces"_s)),
                        Question, QMessageBox::Yes);
    m_operateur->Repond(u"Information"_s, u"Suppression de dossier réussi"_s, Boite::Information, QMessageBox::Ok);
    frmPrinc->Command2->click();
    QVERIFY(!QFileInfo::exists(m_poste->Chemin(u"Pieces"_s)));
    QCOMPARE(Selection(), u"."_s);
    QVERIFY(Fichiers().contains(u"b.cn"));
}

void TestExplorateur::SupprimeUnLien()
{
    const QString lien = m_poste->Chemin(u"Lien"_s);
    QVERIFY(QFile::link(m_poste->Chemin(u"Pieces"_s), lien));
    Selectionne(u"Lien"_s);
    m_operateur->Repond(u"Supprimer un dossier"_s,
                        u"Supprimer ce lien ? Le dossier auquel il mène reste en place.\r"_s + lien, Question,
                        QMessageBox::Yes);
    m_operateur->Repond(u"Information"_s, u"Suppression de dossier réussi"_s, Boite::Information, QMessageBox::Ok);
    frmPrinc->Command2->click();
    QVERIFY(!QFileInfo(lien).isSymLink());
    QCOMPARE(m_poste->Lit(u"Pieces/Tour/b.cn"_s), QByteArray("%3"));
}

// What resists is named, with what is left.
void TestExplorateur::SupprimeAMoitie()
{
    const QByteArray tour = m_poste->Chemin(u"Pieces/Tour"_s).toUtf8();
    QCOMPARE(chmod(qPrintable(m_poste->Dossier()), 0755), 0);
    QCOMPARE(chmod(tour.constData(), 0555), 0);
    Selectionne(u"Pieces/Tour"_s);
    m_operateur->Fait(u"MsgBox"_s,
                      [](QWidget &boite) { dynamic_cast<QMessageBox &>(boite).button(QMessageBox::Yes)->click(); });
    m_operateur->Repond(u"Information"_s,
                        u"ERREUR N° 70\r%1/b.cn : Permission denied\r"
                        u"Il reste dans le dossier : Sous-dossiers : 0, fichiers : 1"_s.arg(QString::fromUtf8(tour)),
                        Boite::Information, QMessageBox::Ok);
    {
        const SansPrivilege operateurOrdinaire;
        frmPrinc->Command2->click();
    }
    QCOMPARE(chmod(tour.constData(), 0755), 0);
    QCOMPARE(m_poste->Lit(u"Pieces/Tour/b.cn"_s), QByteArray("%3"));
}

void TestExplorateur::Renomme_data()
{
    QTest::addColumn<QString>("reponse"); // %1: the application folder
    QTest::addColumn<QString>("devient");
    QTest::newRow("new name") << u"%1/Pieces/Fraise"_s << u"Pieces/Fraise"_s;
    QTest::newRow("elsewhere") << u"%1/Tour 2/"_s << u"Tour 2"_s;
    QTest::newRow("bare name") << u"Nu"_s << u"Nu"_s; // goes to the current directory
    QTest::newRow("unchanged") << u"%1/Pieces/Tour"_s << u"Pieces/Tour"_s;
    QTest::newRow("cancelled") << QString() << u"Pieces/Tour"_s;
    QTest::newRow("in use") << u"%1/b.cn"_s << u"Pieces/Tour"_s;
}

void TestExplorateur::Renomme()
{
    QFETCH(QString, reponse);
    QFETCH(QString, devient);
    Selectionne(u"Pieces/Tour"_s);
    QDir::setCurrent(m_poste->Dossier());
    Saisit(u"Nouveau nom du dossier"_s,
           u"Indiquez le nouveau nom pour le dossier %1."_s.arg(m_poste->Chemin(u"Pieces/Tour"_s)), u"Tour"_s,
           reponse.contains(u'%') ? reponse.arg(m_poste->Dossier()) : reponse);
    if (reponse.endsWith(u"b.cn"))
        m_operateur->Repond(u"Erreur"_s, u"Erreur ! Le dossier ne peut être renommé."_s, Boite::Exclamation,
                            QMessageBox::Ok);
    frmPrinc->Command4->click();
    QCOMPARE(Selection(), devient);
    QCOMPARE(m_poste->Lit(devient + u"/b.cn"_s), QByteArray("%3"));
    QCOMPARE(m_poste->Lit(u"b.cn"_s), QByteArray("%4"));
    QCOMPARE(Fichiers(), u"b.cn"_s);
}

// A root, and nothing selected, stay out of reach of the buttons.
void TestExplorateur::Refus()
{
    frmPrinc->FolderTreeview1->setSelectedFolder(QDir::rootPath());
    m_operateur->Repond(u"Attention"_s,
                        u"Vous vous trouvez dans le dossier racine ! Ce dossier ne peut pas être supprimé !"_s,
                        Boite::Critique, QMessageBox::Ok);
    frmPrinc->Command2->click();
    const auto nonRenommable = [this] {
        m_operateur->Repond(u"Information"_s, u"Ce dossier ne peut pas être renommé ! ou dossier racine !"_s,
                            Boite::Information, QMessageBox::Ok);
        frmPrinc->Command4->click();
    };
    nonRenommable();
    frmPrinc->FolderTreeview1->clearSelection();
    nonRenommable();
    m_operateur->Repond(u"Erreur"_s, u"Pas de dossier sélectionné !"_s, Boite::Exclamation, QMessageBox::Ok);
    frmPrinc->Command2->click();
    frmPrinc->Command1->click(); // asks nothing
}

// Ticked, the box makes the open dialog start in the selected folder, also when the column is closed again. The folder
// chooser of the dialogs gives a path without final separator.
void TestExplorateur::DossierDuDialogue()
{
    Selectionne(u"Pieces/Tour"_s);
    Operateur::Barre(15);
    for (const bool coche : {false, true}) {
        frmPrinc->CheckDOS->setChecked(coche);
        m_operateur->Choisit(u"b.cn"_s);
        Operateur::Menu(u"Mnu_Ouvrir"_s);
        QCOMPARE(frmPrinc->Text1->Text(), coche ? u"%3"_s : u"%4"_s);
        QCOMPARE(DosDefaut, coche ? m_poste->Chemin(u"Pieces/Tour/"_s) : m_poste->Dossier());
    }
    m_operateur->Choisit(m_poste->Chemin(u"Pieces/Tour/"_s));
    QCOMPARE(ChoixDossier(frmPrinc), m_poste->Chemin(u"Pieces/Tour"_s));
    m_operateur->AnnuleChoix();
    QCOMPARE(ChoixDossier(frmPrinc), QString());
}

void TestExplorateur::RienNEstCoupe_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<QString>("renommer");
    QTest::newRow("fr") << 0 << u"Renommer le dossier sélectionné"_s;
    QTest::newRow("en") << 1 << u"Rename the selected directory"_s;
    QTest::newRow("es") << 2 << u"Reelegir el expediente seleccionado"_s;
}

// In the smallest window every caption of the column has its room, and the buttons are named in the operator's
// language.
void TestExplorateur::RienNEstCoupe()
{
    QFETCH(int, langue);
    QFETCH(QString, renommer);
    if (langue != 0)
        Operateur::Menu(u"Mnu_Lang_%1"_s.arg(langue));
    frmPrinc->resize(frmPrinc->minimumSize());
    QCoreApplication::processEvents();
    const QCheckBox &longue = *frmPrinc->CheckDOS;
    QVERIFY(longue.height() >= longue.heightForWidth(longue.width()));
    QVERIFY(longue.height() > 2 * longue.fontMetrics().height());
    QVERIFY(frmPrinc->Label7->height() >= frmPrinc->Label7->heightForWidth(frmPrinc->Label7->width()));
    QVERIFY(frmPrinc->Frame1->rect().contains(frmPrinc->File1->geometry()));
    QCOMPARE(frmPrinc->Command4->accessibleName(), renommer);
}

QTEST_MAIN(TestExplorateur)
#include "TestExplorateur.moc"
