#include "comconfig/ParamCom.h"
#include "Operateur.h"
#include "platform/Boites.h"
#include "platform/ChoixDossier.h"
#include "platform/Erreur.h"
#include "Poste.h"
#include "shell/Document.h"
#include "shell/Explorateur.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"

#include <QDir>
#include <QInputDialog>
#include <QLineEdit>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

// The explorer column, as an operator uses it.
class TestExplorateur : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void OuvreEtFerme_data() { Langues(); }
    void OuvreEtFerme();
    void DossierDeDepart();
    void Filtre_data() { Langues(); }
    void Filtre();
    void OuvreUnProgramme();
    void ListeSuitLaSelection();
    void Cree_data();
    void Cree();
    void NonCree_data() { Langues(); }
    void NonCree();
    void Supprime_data() { Langues(); }
    void Supprime();
    void SupprimeRefuse();
    void SupprimeUnLien();
    void SupprimeAMoitie();
    void RienASupprimer_data() { Langues(); }
    void RienASupprimer();
    void Renomme_data();
    void Renomme();
    void NonRenomme_data() { Langues(); }
    void NonRenomme();
    void DossierDuDialogue();
    void RienNEstCoupe_data() { Langues(); }
    void RienNEstCoupe();
    void ChoisitUnDossier();

private:
    static void Langues();
    void Ouvre(int langue = 0);
    void Selectionne(const QString &nom) const;
    QString Selection() const;
    static QStringList Fichiers();
    void Saisit(const QString &titre, const QString &invite, const QString &reponse);

    std::unique_ptr<Poste> m_poste;
    std::unique_ptr<Operateur> m_operateur;
};

namespace {

QString Choix(std::initializer_list<const char *> textes)
{
    QFETCH(int, langue);
    return QString::fromUtf8(textes.begin()[langue]);
}

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

} // namespace

void TestExplorateur::init()
{
    m_poste = std::make_unique<Poste>();
    m_operateur = std::make_unique<Operateur>();
    QDir dossier(m_poste->Dossier());
    QVERIFY(dossier.mkpath(QStringLiteral("Pieces/Tour")));
    m_poste->Ecrit(QStringLiteral("Pieces/PIECE.ISO"), "%1\r\nG0X1");
    m_poste->Ecrit(QStringLiteral("Pieces/b.cn"), "%2");
    m_poste->Ecrit(QStringLiteral("Pieces/Tour/b.cn"), "%3");
    m_poste->Ecrit(QStringLiteral("b.cn"), "%4");
}

void TestExplorateur::cleanup()
{
    m_operateur.reset(); // says which boxes never came
    m_poste.reset();
}

void TestExplorateur::Langues()
{
    QTest::addColumn<int>("langue");
    QTest::newRow("fr") << 0;
    QTest::newRow("en") << 1;
    QTest::newRow("es") << 2;
}

/// Starts the program with the column open on the folder "Pieces".
void TestExplorateur::Ouvre(int langue)
{
    m_poste->Demarre(langue);
    DosDefaut = m_poste->Chemin(QStringLiteral("Pieces"));
    Operateur::Barre(15);
}

void TestExplorateur::Selectionne(const QString &nom) const
{
    frmPrinc->FolderTreeview1->setSelectedFolder(m_poste->Chemin(nom));
}

/// The selected folder, seen from the application folder.
QString TestExplorateur::Selection() const
{
    return QDir(m_poste->Dossier()).relativeFilePath(frmPrinc->FolderTreeview1->SelectedFolder());
}

QStringList TestExplorateur::Fichiers()
{
    QStringList noms;
    const QAbstractItemModel *const modele = frmPrinc->File1->model();
    for (int i = 0; i < modele->rowCount(); ++i)
        noms << modele->index(i, 0).data().toString();
    return noms;
}

/// A null answer cancels the box.
void TestExplorateur::Saisit(const QString &titre, const QString &invite, const QString &reponse)
{
    m_operateur->Fait(QStringLiteral("InputBox"), [=](QWidget &fenetre) {
        auto &boite = dynamic_cast<QInputDialog &>(fenetre);
        QCOMPARE(boite.windowTitle(), titre);
        QCOMPARE(boite.labelText(), invite);
        boite.setTextValue(reponse);
        reponse.isNull() ? boite.reject() : boite.accept();
    });
}

void TestExplorateur::OuvreEtFerme()
{
    QFETCH(int, langue);
    m_poste->Demarre(langue);
    QVERIFY(frmPrinc->Frame1->isHidden());
    const auto verifie = [](bool ouvert) {
        QCOMPARE(frmPrinc->Frame1->isVisible(), ouvert);
        QCOMPARE(frmPrinc->Mnu_AffichDOS->isChecked(), ouvert);
        QCOMPARE(frmPrinc->Bouton(15)->isChecked(), ouvert);
    };
    const QString bulleOuvert =
        Choix({"Fermer l'explorateur de fichiers", "Close explorer files", "Cerrar el explorador de ficheros"});
    Operateur::Menu(QStringLiteral("Mnu_AffichDOS"));
    verifie(true);
    QCOMPARE(frmPrinc->Bouton(15)->toolTip(), bulleOuvert);
    QCOMPARE(Selection(), QStringLiteral("."));
    frmPrinc->Command3->click();
    verifie(false);
    QCOMPARE(frmPrinc->Bouton(15)->toolTip(), bulleOuvert);
    Operateur::Barre(15);
    verifie(true);
    Operateur::Barre(15);
    verifie(false);
    QCOMPARE(frmPrinc->Bouton(15)->toolTip(),
             Choix({"Afficher l'explorateur de fichiers", "View explorer files", "Indicar el explorador de ficheros"}));
}

// The column opens on the folder of the open dialog; where that has gone, on the application folder. Opened again it
// shows what has come meanwhile.
void TestExplorateur::DossierDeDepart()
{
    Ouvre();
    QCOMPARE(Selection(), QStringLiteral("Pieces"));
    QCOMPARE(Fichiers(), QStringList({QStringLiteral("b.cn"), QStringLiteral("PIECE.ISO")}));
    Operateur::Barre(15);
    m_poste->Ecrit(QStringLiteral("Pieces/a.cn"), "%");
    Operateur::Barre(15);
    QCOMPARE(Fichiers().value(0), QStringLiteral("a.cn"));
    Operateur::Barre(15);
    DosDefaut = m_poste->Chemin(QStringLiteral("debranche"));
    Operateur::Barre(15);
    QCOMPARE(Selection(), QStringLiteral("."));
    QCOMPARE(DosDefaut, m_poste->Chemin(QStringLiteral("debranche")));
}

void TestExplorateur::Filtre()
{
    QFETCH(int, langue);
    Ouvre(langue);
    QComboBox &filtre = *frmPrinc->Combo1;
    QStringList entrees;
    for (int i = 0; i < filtre.count(); ++i)
        entrees << filtre.itemText(i);
    QCOMPARE(entrees.join(u' '), QStringLiteral("*.* *.iso *.rub *.cn *.xcn *.txt *.asc *.xpi *.jau *.cor *.prg *.cnc "
                                                "*.rrr *.qqq *.h *.rtf"));
    QCOMPARE(filtre.currentText(), QStringLiteral("*.*"));
    filtre.setCurrentIndex(1);
    QCOMPARE(Fichiers(), QStringList(QStringLiteral("PIECE.ISO")));

    filtre.lineEdit()->clear();
    QTest::keyClicks(filtre.lineEdit(),
                     QStringLiteral("b.c")); // each key counts, and nothing is added to what is typed
    QCOMPARE(Fichiers(), QStringList());
    QTest::keyClicks(filtre.lineEdit(), QStringLiteral("n"));
    QCOMPARE(Fichiers(), QStringList(QStringLiteral("b.cn")));
    m_operateur->Repond(Choix({"Erreur", "Error", "Error"}),
                        Choix({"Filtre incorrect !", "Incorrect filter !", "Filtro incorrecto !"}), Boite::Exclamation,
                        QMessageBox::Ok);
    QTest::keyClicks(filtre.lineEdit(), QStringLiteral("/"));
    QCOMPARE(Fichiers().size(), 2);
}

// A double click, or Enter, opens the file; a changed text is dropped without a question.
void TestExplorateur::OuvreUnProgramme()
{
    Ouvre();
    frmPrinc->Text1->setText(QStringLiteral("autre"));
    FileListBox &liste = *frmPrinc->File1;
    QTest::mouseDClick(liste.viewport(), Qt::LeftButton, {},
                       liste.viewport()->rect().bottomRight()); // beside the names
    QCOMPARE(NomFichier, QString());

    const QPoint ici = liste.visualRect(liste.model()->index(1, 0)).center();
    QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, ici);
    QTest::mouseDClick(liste.viewport(), Qt::LeftButton, {}, ici);
    QCOMPARE(NomFichier, m_poste->Chemin(QStringLiteral("Pieces/PIECE.ISO")));
    QCOMPARE(TitreFichier, QStringLiteral("PIECE.ISO"));
    QCOMPARE(frmPrinc->Text1->Text(), QStringLiteral("%1\r\nG0X1"));
    QCOMPARE(FichierModifie, 0);

    liste.setCurrentIndex(liste.model()->index(0, 0));
    QTest::keyClick(&liste, Qt::Key_Return);
    QCOMPARE(frmPrinc->Text1->Text(), QStringLiteral("%2"));
}

// The list and the selected folder are never at odds: a namesake elsewhere could go to the machine.
void TestExplorateur::ListeSuitLaSelection()
{
    Ouvre();
    QTest::keyClick(frmPrinc->FolderTreeview1, Qt::Key_Right);
    QTest::keyClick(frmPrinc->FolderTreeview1, Qt::Key_Down);
    QCOMPARE(Selection(), QStringLiteral("Pieces/Tour"));
    QCOMPARE(Fichiers(), QStringList(QStringLiteral("b.cn")));
    QDir(m_poste->Chemin(QStringLiteral("Pieces/Tour"))).removeRecursively();
    QTRY_COMPARE(Selection(), QStringLiteral("Pieces"));
    QCOMPARE(Fichiers().size(), 2);
    frmPrinc->File1->setCurrentIndex(frmPrinc->File1->model()->index(0, 0));
    Q_EMIT frmPrinc->File1->DblClick();
    QCOMPARE(NomFichier, m_poste->Chemin(QStringLiteral("Pieces/b.cn")));
}

void TestExplorateur::Cree_data()
{
    QTest::addColumn<int>("langue");
    QTest::addColumn<QString>("reponse");
    QTest::addColumn<QString>("cree"); // null: nothing
    QTest::newRow("fr") << 0 << QStringLiteral("Fraise") << QStringLiteral("Fraise");
    QTest::newRow("en, blanks around stay") << 1 << QStringLiteral(" F 1 ") << QStringLiteral(" F 1 ");
    QTest::newRow("es, hidden") << 2 << QStringLiteral(".f") << QStringLiteral(".f");
    QTest::newRow("blanks only") << 0 << QStringLiteral("   ") << QString();
    QTest::newRow("cancelled") << 0 << QString() << QString();
}

void TestExplorateur::Cree()
{
    QFETCH(int, langue);
    QFETCH(QString, reponse);
    QFETCH(QString, cree);
    Ouvre(langue);
    const QString invite =
        Choix({"Indiquez le nom du nouveau dossier, qui deviendra sous-dossier de %1 après sa création !",
               "Indicate the name of the new file,which will become sub-directory of %1 after its creation !",
               "Indique el nombre del nuevo expediente, que se volverá subfichero de %1 después de su creación !"})
            .arg(frmPrinc->FolderTreeview1->SelectedFolder());
    Saisit(Choix({"Créer un dossier", "Create a directory", "Crear un directorio"}), invite, reponse);
    frmPrinc->Command1->click();
    QCOMPARE(frmPrinc->FolderTreeview1->SelectedFolder(),
             m_poste->Chemin(cree.isNull() ? QStringLiteral("Pieces/") : QStringLiteral("Pieces/%1/").arg(cree)));
    QCOMPARE(frmPrinc->File1->Path(), frmPrinc->FolderTreeview1->SelectedFolder());
    const auto filtre = QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot;
    QCOMPARE(QDir(m_poste->Chemin(QStringLiteral("Pieces"))).entryList(filtre).size(), cree.isNull() ? 1 : 2);
}

void TestExplorateur::NonCree()
{
    QFETCH(int, langue);
    Ouvre(langue);
    m_operateur->Fait(QStringLiteral("InputBox"), [](QWidget &fenetre) {
        dynamic_cast<QInputDialog &>(fenetre).setTextValue(QStringLiteral("Tour"));
        dynamic_cast<QInputDialog &>(fenetre).accept();
    });
    m_operateur->Repond(Choix({"Erreur", "Error", "Error"}),
                        Choix({"Le dossier %1 n'a pas pu être créé !", "The repertory %1  could not be to create !",
                               "El directorio %1 no pudo ser crear !"})
                            .arg(m_poste->Chemin(QStringLiteral("Pieces/Tour"))),
                        Boite::Critique, QMessageBox::Ok);
    frmPrinc->Command1->click();
    frmPrinc->FolderTreeview1->clearSelection(); // then the button has nowhere to create
    frmPrinc->Command1->click();
}

void TestExplorateur::Supprime()
{
    QFETCH(int, langue);
    Ouvre(langue);
    m_operateur->Repond(Choix({"Supprimer un dossier", "Remove a directory", "Suprimir un directorio"}),
                        Choix({"Supprimer définitivement ce dossier et tout ce qu'il contient ?\r%1\r"
                               "Sous-dossiers : 1, fichiers : 3",
                               "Permanently remove this directory and all that it holds ?\r%1\r"
                               "Sub-directories: 1, files: 3",
                               "Suprimir definitivamente este directorio y todo lo que contiene ?\r%1\r"
                               "Subdirectorios: 1, ficheros: 3"})
                            .arg(m_poste->Chemin(QStringLiteral("Pieces"))),
                        Boite::OuiNon | Boite::Exclamation | Boite::SecondBouton, QMessageBox::Yes);
    m_operateur->Repond(Choix({"Information", "Information", "Información"}),
                        Choix({"Suppression de dossier réussi", "Suppression of successful repertory",
                               "Supresión de directorio conseguido"}),
                        Boite::Information, QMessageBox::Ok);
    frmPrinc->Command2->click();
    QVERIFY(!QFileInfo::exists(m_poste->Chemin(QStringLiteral("Pieces"))));
    QCOMPARE(Selection(), QStringLiteral("."));
    QVERIFY(Fichiers().contains(QStringLiteral("b.cn")));
}

// Refused, nothing goes; the folder above is selected all the same, and the list shows that one's files.
void TestExplorateur::SupprimeRefuse()
{
    Ouvre();
    Selectionne(QStringLiteral("Pieces/Tour"));
    m_operateur->Fait(QStringLiteral("MsgBox"), [](QWidget &boite) { boite.close(); });
    frmPrinc->Command2->click();
    QCOMPARE(m_poste->Lit(QStringLiteral("Pieces/Tour/b.cn")), QByteArray("%3"));
    QCOMPARE(Selection(), QStringLiteral("Pieces"));
    QCOMPARE(Fichiers().size(), 2);
}

void TestExplorateur::SupprimeUnLien()
{
    const QString lien = m_poste->Chemin(QStringLiteral("Lien"));
    QVERIFY(QFile::link(m_poste->Chemin(QStringLiteral("Pieces")), lien));
    Ouvre();
    Selectionne(QStringLiteral("Lien"));
    m_operateur->Repond(QStringLiteral("Supprimer un dossier"),
                        QStringLiteral("Supprimer ce lien ? Le dossier auquel il mène reste en place.\r") + lien,
                        Boite::OuiNon | Boite::Exclamation | Boite::SecondBouton, QMessageBox::Yes);
    m_operateur->Repond(QStringLiteral("Information"), QStringLiteral("Suppression de dossier réussi"),
                        Boite::Information, QMessageBox::Ok);
    frmPrinc->Command2->click();
    QVERIFY(!QFileInfo(lien).isSymLink());
    QCOMPARE(m_poste->Lit(QStringLiteral("Pieces/Tour/b.cn")), QByteArray("%3"));
}

// What resists is named, with what is left.
void TestExplorateur::SupprimeAMoitie()
{
    Ouvre();
    QCOMPARE(chmod(qPrintable(m_poste->Dossier()), 0755), 0);
    const QByteArray tour = m_poste->Chemin(QStringLiteral("Pieces/Tour")).toUtf8();
    QCOMPARE(chmod(tour.constData(), 0555), 0);
    Selectionne(QStringLiteral("Pieces/Tour"));
    {
        const SansPrivilege operateurOrdinaire;
        m_operateur->Fait(QStringLiteral("MsgBox"),
                          [](QWidget &boite) { dynamic_cast<QMessageBox &>(boite).button(QMessageBox::Yes)->click(); });
        m_operateur->Repond(QStringLiteral("Information"),
                            QStringLiteral("ERREUR N° 70\r%1/b.cn : Permission denied\r"
                                           "Il reste dans le dossier : Sous-dossiers : 0, fichiers : 1")
                                .arg(QString::fromUtf8(tour)),
                            Boite::Information, QMessageBox::Ok);
        frmPrinc->Command2->click();
    }
    QCOMPARE(chmod(tour.constData(), 0755), 0);
    QCOMPARE(m_poste->Lit(QStringLiteral("Pieces/Tour/b.cn")), QByteArray("%3"));
}

void TestExplorateur::RienASupprimer()
{
    QFETCH(int, langue);
    Ouvre(langue);
    frmPrinc->FolderTreeview1->setSelectedFolder(QDir::rootPath());
    m_operateur->Repond(Choix({"Attention", "Caution", "Atención"}),
                        Choix({"Vous vous trouvez dans le dossier racine ! Ce dossier ne peut pas être supprimé !",
                               "You are in the root directory ! This directory cannot be removed !",
                               "Se encuentran en el directorio raíz ! Este directorio no puede suprimirse !"}),
                        Boite::Critique, QMessageBox::Ok);
    frmPrinc->Command2->click();
    frmPrinc->FolderTreeview1->clearSelection();
    m_operateur->Repond(
        Choix({"Erreur", "Error", "Error"}),
        Choix({"Pas de dossier sélectionné !", "No selected directory !", "No hay directorio seleccionado !"}),
        Boite::Exclamation, QMessageBox::Ok);
    frmPrinc->Command2->click();
}

void TestExplorateur::Renomme_data()
{
    QTest::addColumn<QString>("reponse"); // %1: the application folder
    QTest::addColumn<QString>("devient");
    QTest::newRow("new name") << QStringLiteral("%1/Pieces/Fraise") << QStringLiteral("Pieces/Fraise");
    QTest::newRow("elsewhere") << QStringLiteral("%1/Tour 2/") << QStringLiteral("Tour 2");
    QTest::newRow("bare name") << QStringLiteral("Nu") << QStringLiteral("Nu"); // goes to the current directory
    QTest::newRow("unchanged") << QStringLiteral("%1/Pieces/Tour") << QStringLiteral("Pieces/Tour");
    QTest::newRow("cancelled") << QString() << QStringLiteral("Pieces/Tour");
}

void TestExplorateur::Renomme()
{
    QFETCH(QString, reponse);
    QFETCH(QString, devient);
    Ouvre(1); // these texts stand in French in every language
    Selectionne(QStringLiteral("Pieces/Tour"));
    QDir::setCurrent(m_poste->Dossier());
    const QString ancien = m_poste->Chemin(QStringLiteral("Pieces/Tour"));
    m_operateur->Fait(QStringLiteral("InputBox"), [&](QWidget &fenetre) {
        auto &boite = dynamic_cast<QInputDialog &>(fenetre);
        QCOMPARE(boite.windowTitle(), QStringLiteral("Nouveau nom du dossier"));
        QCOMPARE(boite.labelText(), QStringLiteral("Indiquez le nouveau nom pour le dossier %1.").arg(ancien));
        QCOMPARE(boite.textValue(), ancien);
        QTRY_COMPARE(boite.findChild<QLineEdit *>()->selectedText(), QStringLiteral("Tour")); // typing keeps the path
        boite.setTextValue(reponse.contains(QLatin1String("%1")) ? reponse.arg(m_poste->Dossier()) : reponse);
        reponse.isNull() ? boite.reject() : boite.accept();
    });
    frmPrinc->Command4->click();
    QCOMPARE(Selection(), devient);
    QCOMPARE(m_poste->Lit(devient + QStringLiteral("/b.cn")), QByteArray("%3"));
    QCOMPARE(Fichiers(), QStringList(QStringLiteral("b.cn")));
}

void TestExplorateur::NonRenomme()
{
    QFETCH(int, langue);
    Ouvre(langue);
    Saisit(QStringLiteral("Nouveau nom du dossier"),
           QStringLiteral("Indiquez le nouveau nom pour le dossier %1.").arg(m_poste->Chemin(QStringLiteral("Pieces"))),
           m_poste->Chemin(QStringLiteral("b.cn")));
    m_operateur->Repond(Choix({"Erreur", "Error", "Error"}),
                        Choix({"Erreur ! Le dossier ne peut être renommé.", "Error ! The repertory cannot be famous.",
                               "Error ! El directorio no puede reelegirse."}),
                        Boite::Exclamation, QMessageBox::Ok);
    frmPrinc->Command4->click();
    QCOMPARE(Selection(), QStringLiteral("Pieces"));
    QCOMPARE(m_poste->Lit(QStringLiteral("b.cn")), QByteArray("%4"));

    frmPrinc->FolderTreeview1->setSelectedFolder(QDir::rootPath());
    m_operateur->Repond(Choix({"Information", "Information", "Información"}),
                        Choix({"Ce dossier ne peut pas être renommé ! ou dossier racine !",
                               "This repertory cannot be famous! or root directory !",
                               "Este directorio no puede reelegirse! ¡o directorio raíz !"}),
                        Boite::Information, QMessageBox::Ok);
    frmPrinc->Command4->click();
}

// Ticked, the box makes the open dialog start in the selected folder, also when the column is closed again.
void TestExplorateur::DossierDuDialogue()
{
    Ouvre();
    Selectionne(QStringLiteral("Pieces/Tour"));
    Operateur::Barre(15);
    for (const bool coche : {false, true}) {
        frmPrinc->CheckDOS->setChecked(coche);
        m_operateur->Choisit(QStringLiteral("b.cn"));
        Operateur::Menu(QStringLiteral("Mnu_Ouvrir"));
        QCOMPARE(frmPrinc->Text1->Text(), coche ? QStringLiteral("%3") : QStringLiteral("%4"));
        QCOMPARE(DosDefaut, coche ? m_poste->Chemin(QStringLiteral("Pieces/Tour/")) : m_poste->Dossier());
    }
}

// In the smallest window every caption of the column has its room, and every control its name.
void TestExplorateur::RienNEstCoupe()
{
    QFETCH(int, langue);
    Ouvre(langue);
    frmPrinc->resize(frmPrinc->minimumSize());
    QCoreApplication::processEvents();
    for (const QWidget *texte :
         {static_cast<QWidget *>(frmPrinc->CheckDOS), static_cast<QWidget *>(frmPrinc->Label7)}) {
        QVERIFY(texte->height() >= texte->heightForWidth(texte->width()));
        QVERIFY(frmPrinc->Frame1->rect().contains(texte->geometry()));
    }
    QVERIFY(frmPrinc->CheckDOS->heightForWidth(frmPrinc->CheckDOS->width()) >
            2 * frmPrinc->CheckDOS->fontMetrics().height());
    QCOMPARE(frmPrinc->Command4->accessibleName(),
             Choix({"Renommer le dossier sélectionné", "Rename the selected directory",
                    "Reelegir el expediente seleccionado"}));
    QCOMPARE(frmPrinc->Command3->accessibleName(),
             Choix({"Fermer l'explorateur de fichiers", "Close file explorer", "Cerrar el explorador de ficheros"}));
    QCOMPARE(frmPrinc->FolderTreeview1->accessibleName(), Choix({"Dossiers", "Directories", "Directorios"}));
}

void TestExplorateur::ChoisitUnDossier()
{
    Ouvre();
    m_operateur->Choisit(m_poste->Chemin(QStringLiteral("Pieces/Tour/")));
    QCOMPARE(ChoixDossier(frmPrinc), m_poste->Chemin(QStringLiteral("Pieces/Tour")));
    m_operateur->AnnuleChoix();
    QCOMPARE(ChoixDossier(frmPrinc), QString());
}

QTEST_MAIN(TestExplorateur)
#include "TestExplorateur.moc"
