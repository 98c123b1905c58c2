#include "Operateur.h"
#include "Poste.h"
#include "shell/CadreExplorateur.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "shell/Reglages.h"
#include "transfer/Rc_Fic.h"
#include "transfer/Transfert.h"

#include <QDir>
#include <QInputDialog>
#include <QLineEdit>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// An operator at a workstation with some programs, and the column open on "Pieces".
struct Atelier : Poste, Operateur
{
    Atelier()
    {
        QDir(Dossier()).mkpath(u"Pieces/Tour"_s);
        Poste::Ecrit("Pieces/PIECE.ISO", "%1\r\nG0X1");
        Poste::Ecrit("Pieces/b.cn", "%2");
        Poste::Ecrit("Pieces/Tour/b.cn", "%3");
        Poste::Ecrit("b.cn", "%4");
        Poste::Ecrit("Dorvanel.ini", " 0 \r\n\"\"\r\n 0 \r\n\"\"\r\n 0 \r\n\r\n 0 \r\n");
        Demarre();
        DosDefaut = Chemin("Pieces");
        Barre(15);
    }

    void Selectionne(QAnyStringView nom) const { frmPrinc->Frame1->FolderTreeview1->setSelectedFolder(Chemin(nom)); }

    /// The selected folder, seen from the application folder, and the files listed.
    QString Montre() const
    {
        QStringList montre{QDir(Dossier()).relativeFilePath(frmPrinc->Frame1->FolderTreeview1->SelectedFolder()) +
                           u':'};
        const QAbstractItemModel *const modele = frmPrinc->Frame1->File1->model();
        for (int i = 0; i < modele->rowCount(); ++i)
            montre << modele->index(i, 0).data().toString();
        return montre.join(u' ');
    }

    /// Foretells an input box and what is selected in it; a null answer cancels.
    void Saisit(const QString &titre, const QString &invite, const QString &offert, const QString &reponse)
    {
        Fait("InputBox", [=](QWidget &fenetre) {
            auto &boite = dynamic_cast<QInputDialog &>(fenetre);
            QCOMPARE(boite.windowTitle(), titre);
            QCOMPARE(boite.labelText(), invite);
            QTRY_COMPARE(boite.findChild<QLineEdit *>()->selectedText(), offert);
            boite.setTextValue(reponse);
            reponse.isNull() ? boite.reject() : boite.accept();
        });
    }
};

constexpr int Question = Operateur::DemandeSimple | Boite::SecondBouton;

} // namespace

class TestExplorateur : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The menu entry, the button and the column go together. It opens on the folder of the open dialog; where that has
    // gone, on the application folder.
    void OuvreEtFerme()
    {
        const Atelier atelier;
        const auto verifie = [](bool ouvert, const QString &bulle) {
            QCOMPARE((QList<bool>{frmPrinc->ExplorateurMontre(), frmPrinc->Mnu_AffichDOS->isChecked(),
                                  frmPrinc->Bouton(15)->isChecked()}),
                     QList<bool>(3, ouvert));
            QCOMPARE(frmPrinc->Bouton(15)->toolTip(), bulle + u" l'explorateur de fichiers"_s);
        };
        verifie(true, u"Fermer"_s);
        QCOMPARE(atelier.Montre(), u"Pieces: b.cn PIECE.ISO"_s);
        frmPrinc->Frame1->Command3->click();
        verifie(false, u"Fermer"_s); // the words are the button's own doing
        DosDefaut = atelier.Chemin("debranche");
        Operateur::Menu("Mnu_AffichDOS");
        QVERIFY(atelier.Montre().startsWith(u".:"));
        Operateur::Barre(15);
        verifie(false, u"Afficher"_s);
    }

    // Each key counts, and nothing is added to what is typed.
    void Filtre()
    {
        Atelier atelier;
        QComboBox &filtre = *frmPrinc->Frame1->Combo1;
        QCOMPARE(filtre.count(), 16);
        filtre.setCurrentIndex(1);
        QCOMPARE(atelier.Montre(), u"Pieces: PIECE.ISO"_s);
        filtre.lineEdit()->clear();
        QTest::keyClicks(filtre.lineEdit(), u"*.c"_s);
        QCOMPARE(atelier.Montre(), u"Pieces:"_s);
        QTest::keyClicks(filtre.lineEdit(), u"n"_s);
        QCOMPARE(atelier.Montre(), u"Pieces: b.cn"_s);
        atelier.Repond("Erreur", "Filtre incorrect !", Boite::Exclamation, QMessageBox::Ok);
        QTest::keyClicks(filtre.lineEdit(), u"/"_s);
        QCOMPARE(atelier.Montre(), u"Pieces: b.cn PIECE.ISO"_s);
    }

    // A double click, or Enter, opens the file; a changed text is dropped without a question.
    void OuvreUnProgramme()
    {
        const Atelier atelier;
        frmPrinc->Text1->setText(u"autre"_s);
        FileListBox &liste = *frmPrinc->Frame1->File1;
        const auto double_clic = [&liste](QPoint ici) {
            QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, ici);
            QTest::mouseDClick(liste.viewport(), Qt::LeftButton, {}, ici);
        };
        double_clic(liste.viewport()->rect().bottomRight()); // beside the names
        QCOMPARE(NomFichier, QString());
        double_clic(liste.visualRect(liste.model()->index(1, 0)).center());
        QCOMPARE(NomFichier + TitreFichier, atelier.Chemin("Pieces/PIECE.ISO") + u"PIECE.ISO"_s);
        QCOMPARE(frmPrinc->Text1->Text(), u"%1\r\nG0X1"_s);
        QCOMPARE(FichierModifie, 0);
        QTest::keyClick(&liste, Qt::Key_Up);
        QTest::keyClick(&liste, Qt::Key_Return);
        QCOMPARE(frmPrinc->Text1->Text(), u"%2"_s);
    }

    // The list goes with the selected folder: a namesake from elsewhere could go to the machine.
    void Cree()
    {
        for (const auto &[reponse, choisi] : {std::pair{u"Fraise"_s, u"Pieces/Fraise/"_s},
                                              {u" F 1 "_s, u"Pieces/ F 1 /"_s},
                                              {u".f"_s, u"Pieces/.f/"_s},
                                              {u"   "_s, u"Pieces/"_s},
                                              {QString(), u"Pieces/"_s},
                                              {u"Tour"_s, u"Pieces/"_s}}) { // in use
            Atelier atelier;
            const QString dossier = frmPrinc->Frame1->FolderTreeview1->SelectedFolder();
            atelier.Saisit(
                u"Créer un dossier"_s,
                u"Indiquez le nom du nouveau dossier, qui deviendra sous-dossier de %1 après sa création !"_s.arg(
                    dossier),
                QString(), reponse);
            if (reponse == u"Tour")
                atelier.Repond("Erreur", u"Le dossier %1Tour n'a pas pu être créé !"_s.arg(dossier), Boite::Critique,
                               QMessageBox::Ok);
            frmPrinc->Frame1->Command1->click();
            QCOMPARE(frmPrinc->Frame1->FolderTreeview1->SelectedFolder(), atelier.Chemin(choisi));
            QCOMPARE(frmPrinc->Frame1->File1->Path(), atelier.Chemin(choisi));
            const auto dossiers = QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot;
            QCOMPARE(QDir(dossier).entryList(dossiers).size(), choisi == u"Pieces/" ? 1 : 2);
        }
    }

    // Refused, nothing goes; the folder above is selected all the same, with its own files in the list. Of a link only
    // the link goes.
    void Supprime()
    {
        Atelier atelier;
        atelier.Selectionne("Pieces/Tour");
        atelier.Ferme("MsgBox");
        frmPrinc->Frame1->Command2->click();
        QCOMPARE(atelier.Montre(), u"Pieces: b.cn PIECE.ISO"_s);

        const QString lien = atelier.Chemin("Lien");
        QVERIFY(QFile::link(atelier.Chemin("Pieces"), lien));
        for (const auto &[choisi, question] :
             {std::pair{lien, u"Supprimer ce lien ? Le dossier auquel il mène reste en place.\r%1"_s},
              {atelier.Chemin("Pieces"), u"Supprimer définitivement ce dossier et tout ce qu'il contient ?\r%1\r"
                                         u"Sous-dossiers : 1, fichiers : 3"_s}}) {
            QCOMPARE(atelier.Poste::Lit("Pieces/Tour/b.cn"), QByteArray("%3"));
            frmPrinc->Frame1->FolderTreeview1->setSelectedFolder(choisi);
            atelier.Repond("Supprimer un dossier", question.arg(choisi), Question, QMessageBox::Yes);
            atelier.Repond("Information", "Suppression de dossier réussi", Boite::Information, QMessageBox::Ok);
            frmPrinc->Frame1->Command2->click();
            QVERIFY(!QFileInfo(choisi).isSymLink() && !QFileInfo::exists(choisi));
            QVERIFY(atelier.Montre().startsWith(u".: b.cn"_s));
        }
    }

    // What resists is named, with what is left.
    void SupprimeAMoitie()
    {
        Atelier atelier;
        const QByteArray tour = atelier.Chemin("Pieces/Tour").toUtf8();
        QCOMPARE(chmod(qPrintable(atelier.Dossier()), 0755), 0);
        QCOMPARE(chmod(tour.constData(), 0555), 0);
        atelier.Selectionne("Pieces/Tour");
        atelier.Fait("MsgBox", Operateur::Clique(QMessageBox::Yes));
        atelier.Repond("Information",
                       u"ERREUR N° 70\r%1/b.cn : Permission denied\r"
                       u"Il reste dans le dossier : Sous-dossiers : 0, fichiers : 1"_s.arg(QString::fromUtf8(tour)),
                       Boite::Information, QMessageBox::Ok);
        const uid_t avant = geteuid();
        if (avant == 0) // for whom rights do not count
            QCOMPARE(seteuid(65534), 0);
        frmPrinc->Frame1->Command2->click();
        QCOMPARE(seteuid(avant), 0);
        QCOMPARE(chmod(tour.constData(), 0755), 0);
        QCOMPARE(atelier.Poste::Lit("Pieces/Tour/b.cn"), QByteArray("%3"));
    }

    void Renomme()
    {
        // the last three: nothing that stands under the new name is overwritten
        for (auto [reponse, devient, refuse] : {std::tuple{u"%1/Pieces/Fraise"_s, u"Pieces/Fraise"_s, false},
                                                {u"%1/Tour 2/"_s, u"Tour 2"_s, false},
                                                {u"Nu"_s, u"Nu"_s, false}, // goes to the current directory
                                                {u"%1/Pieces/Tour"_s, u"Pieces/Tour"_s, false},
                                                {QString(), u"Pieces/Tour"_s, false},
                                                {u"%1/b.cn"_s, u"Pieces/Tour"_s, true},
                                                {u"%1/Pieces"_s, u"Pieces/Tour"_s, true},
                                                {u"%1/Vide"_s, u"Pieces/Tour"_s, true}}) {
            Atelier atelier;
            atelier.Selectionne("Pieces/Tour");
            QDir::setCurrent(atelier.Dossier());
            QDir().mkdir(u"Vide"_s);
            atelier.Saisit(u"Nouveau nom du dossier"_s,
                           u"Indiquez le nouveau nom pour le dossier %1."_s.arg(atelier.Chemin("Pieces/Tour")),
                           u"Tour"_s, reponse.replace(u"%1"_s, atelier.Dossier()));
            if (refuse)
                atelier.Repond("Erreur", "Erreur ! Le dossier ne peut être renommé.", Boite::Exclamation,
                               QMessageBox::Ok);
            frmPrinc->Frame1->Command4->click();
            QCOMPARE(atelier.Montre(), devient + u": b.cn"_s);
            QCOMPARE(atelier.Poste::Lit(devient + u"/b.cn"_s), QByteArray("%3"));
            QCOMPARE(atelier.Poste::Lit("b.cn"), QByteArray("%4"));
        }
    }

    // A root, and nothing selected, stay out of reach of the buttons.
    void Refus()
    {
        Atelier atelier;
        const CadreExplorateur &cadre = *frmPrinc->Frame1;
        for (const bool racine : {true, false}) {
            if (racine)
                cadre.FolderTreeview1->setSelectedFolder(QDir::rootPath());
            else
                cadre.FolderTreeview1->clearSelection();
            atelier.Repond("Information", "Ce dossier ne peut pas être renommé ! ou dossier racine !",
                           Boite::Information, QMessageBox::Ok);
            cadre.Command4->click();
            atelier.Repond(racine ? "Attention" : "Erreur",
                           racine ? "Vous vous trouvez dans le dossier racine ! Ce dossier ne peut pas être supprimé !"
                                  : "Pas de dossier sélectionné !",
                           racine ? Boite::Critique : Boite::Exclamation, QMessageBox::Ok);
            cadre.Command2->click();
        }
        cadre.Command1->click(); // asks nothing
    }

    // Ticked, the box makes the open dialog and the receptions start in the selected folder, also when the column is
    // closed again; nothing selected changes nothing.
    void DossierApplique()
    {
        Atelier atelier;
        atelier.Selectionne("Pieces/Tour");
        Operateur::Barre(15);
        for (const bool coche : {false, true}) {
            frmPrinc->Frame1->CheckDOS->setChecked(coche);
            atelier.Choisit("b.cn");
            Operateur::Menu("Mnu_Ouvrir");
            QCOMPARE(frmPrinc->Text1->Text(), coche ? u"%3"_s : u"%4"_s);
            QCOMPARE(DosDefaut, coche ? atelier.Chemin("Pieces/Tour/") : atelier.Dossier());
            for (const int type : {ReceptionProgramme, ReceptionJauges, ReceptionBanc}) {
                TypeTransfert = type;
                QCOMPARE(Rc_Fic(frmPrinc).Label3->text() == atelier.Chemin("Pieces/Tour/"), coche);
            }
        }
        frmPrinc->Frame1->FolderTreeview1->clearSelection();
        TypeTransfert = ReceptionProgramme;
        QCOMPARE(Rc_Fic(frmPrinc).Label3->text(), atelier.Chemin("Pieces/Tour/"));
    }
};

QTEST_MAIN(TestExplorateur)
#include "TestExplorateur.moc"
