#include "Donnees.h"
#include "Etabli.h"

#include "donnees/Transfert.h"
#include "platform/fichiers/FichierTexte.h"
#include "shell/CadreExplorateur.h"
#include "transfer/Rc_Fic.h"

#include <QDirIterator>
#include <QInputDialog>
#include <QLineEdit>
#include <QSignalSpy>

#include <sys/stat.h>
#include <unistd.h>

namespace {

/// An operator at a workstation with some programs, and the column open on "Pieces".
struct Atelier : Etabli
{
    Atelier()
        : Etabli(0)
    {
        QDir(Dossier()).mkpath(u"Pieces/Tour"_s);
        Ecrit("Pieces/PIECE.ISO", "%1\r\nG0X1");
        Ecrit("Pieces/b.cn", "%2");
        Ecrit("Pieces/Tour/b.cn", "%3");
        Ecrit("b.cn", "%4");
        Reglages.DosDefaut = Chemin("Pieces");
        Barre(15);
    }

    /// The selected folder, seen from the application folder, and the files listed.
    QString Montre() const
    {
        const QString choisi = frmPrinc->Frame1->FolderTreeview1->SelectedFolder();
        QStringList montre{QDir(Dossier()).relativeFilePath(choisi) + u':'};
        const QAbstractItemModel *const modele = frmPrinc->Frame1->File1->model();
        for (int i = 0; i < modele->rowCount(); ++i)
            montre << modele->index(i, 0).data().toString();
        return montre.join(u' ');
    }

    /// What all the programs hold, wherever they stand now.
    QStringList Programmes() const
    {
        QStringList programmes;
        QDirIterator fichiers(Dossier(), {u"b.cn"_s, u"PIECE.ISO"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (fichiers.hasNext())
            programmes << QString::fromLatin1(LitOctets(fichiers.next()));
        programmes.sort();
        return programmes;
    }
};

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
        QCOMPARE(atelier.Montre(), u"Pieces: b.cn PIECE.ISO"_s);
        const auto verifie = [](bool ouvert, const QString &bulle) {
            QCOMPARE(frmPrinc->Mnu_AffichDOS->isChecked(), ouvert);
            QCOMPARE(frmPrinc->Bouton(15)->isChecked(), ouvert);
            QCOMPARE(frmPrinc->Bouton(15)->toolTip(), bulle + u" l'explorateur de fichiers"_s);
        };
        verifie(true, u"Fermer"_s);
        frmPrinc->Frame1->Command3->click();
        verifie(false, u"Fermer"_s); // the words are the button's own doing
        Reglages.DosDefaut = atelier.Chemin("debranche");
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
        filtre.setCurrentIndex(1);
        QCOMPARE(atelier.Montre(), u"Pieces: PIECE.ISO"_s);
        filtre.lineEdit()->clear();
        for (const auto &[touches, fichiers] : {std::pair{u"*.c"_s, u""_s}, {u"n"_s, u" b.cn"_s}}) {
            QTest::keyClicks(filtre.lineEdit(), touches);
            QCOMPARE(atelier.Montre(), u"Pieces:"_s + fichiers);
        }
        atelier.Apprend("Erreur", "Filtre incorrect !");
        QTest::keyClicks(filtre.lineEdit(), u"/"_s);
        QCOMPARE(atelier.Montre(), u"Pieces: b.cn PIECE.ISO"_s);
    }

    // A double click, or Enter, opens the file; a changed text is dropped without a question.
    void OuvreUnProgramme()
    {
        const Atelier atelier;
        frmPrinc->Text1->setText(u"autre"_s);
        FileListBox &liste = *frmPrinc->Frame1->File1;
        const QPoint ici = liste.visualRect(liste.model()->index(1, 0)).center();
        QTest::mouseClick(liste.viewport(), Qt::LeftButton, {}, ici);
        QTest::mouseDClick(liste.viewport(), Qt::LeftButton, {}, ici);
        QCOMPARE((QStringList{Document.NomFichier, Document.TitreFichier}),
                 (QStringList{atelier.Chemin("Pieces/PIECE.ISO"), u"PIECE.ISO"_s}));
        QCOMPARE(frmPrinc->Text1->Text(), u"%1\r\nG0X1"_s);
        QVERIFY(!Document.FichierModifie);
        QTest::keyClick(&liste, Qt::Key_Up);
        QTest::keyClick(&liste, Qt::Key_Return);
        QCOMPARE(frmPrinc->Text1->Text(), u"%2"_s);
    }

    // What the buttons ask and tell. The list goes with the selected folder, for a namesake from elsewhere could go to
    // the machine; whatever stands under a new name, no program is lost.
    void Boutons_data() { RangeesDe(u"explorateur.tsv"_s); }
    void Boutons()
    {
        QFETCH(QStringList, cases);
        QStringList &c = cases;
        Atelier atelier;
        QDir::setCurrent(atelier.Dossier());
        QDir().mkdir(u"R&D"_s);
        const QStringList programmes = atelier.Programmes();
        c.replaceInStrings(u"%1"_s, atelier.Dossier());
        FolderTreeview &arbre = *frmPrinc->Frame1->FolderTreeview1;
        if (c[0].isEmpty())
            arbre.clearSelection();
        else
            arbre.setSelectedFolder(QDir(atelier.Dossier()).absoluteFilePath(c[0]));
        const auto saisit = [c](QWidget &fenetre) {
            auto &boite = dynamic_cast<QInputDialog &>(fenetre);
            QCOMPARE((QStringList{boite.windowTitle(), boite.labelText()}), (QStringList{c[2], c[3]}));
            QTRY_COMPARE(boite.findChild<QLineEdit *>()->selectedText(), c[4]);
            boite.setTextValue(c[5]);
            c[5] == u"-" ? boite.reject() : boite.accept();
        };
        if (!c[2].isEmpty())
            atelier.Fait("InputBox", saisit);
        if (!c[6].isEmpty())
            atelier.Apprend(c[6], c[7], c[8].toInt());
        frmPrinc->Frame1->findChild<QPushButton *>(c[1])->click();
        QVERIFY2(c[9].isEmpty() || atelier.Montre() == c[9], qPrintable(atelier.Montre()));
        QCOMPARE(atelier.Programmes(), programmes);
    }

    // Refused, nothing goes; the folder above is selected all the same, with its own files in the list. Of a link only
    // the link goes.
    void Supprime()
    {
        constexpr int question = Operateur::DemandeSimple | Boite::SecondBouton;
        Atelier atelier;
        FolderTreeview &arbre = *frmPrinc->Frame1->FolderTreeview1;
        arbre.setSelectedFolder(atelier.Chemin("Pieces/Tour"));
        atelier.Ferme("MsgBox");
        frmPrinc->Frame1->Command2->click();
        QCOMPARE(atelier.Montre(), u"Pieces: b.cn PIECE.ISO"_s);

        const QString lien = atelier.Chemin("Lien");
        QVERIFY(QFile::link(atelier.Chemin("Pieces"), lien));
        for (const auto &[choisi, demande] :
             {std::pair{lien, u"Supprimer ce lien ? Le dossier auquel il mène reste en place.\r%1"_s},
              {atelier.Chemin("Pieces"), u"Supprimer définitivement ce dossier et tout ce qu'il contient ?\r%1\r"
                                         u"Sous-dossiers : 1, fichiers : 3"_s}}) {
            const auto passe = Passe(choisi);
            QCOMPARE(atelier.Lit("Pieces/Tour/b.cn"), QByteArray("%3"));
            arbre.setSelectedFolder(choisi);
            atelier.Repond("Supprimer un dossier", demande.arg(choisi), question, QMessageBox::Yes);
            atelier.Apprend("Information", "Suppression de dossier réussi", Boite::Information);
            frmPrinc->Frame1->Command2->click();
            QVERIFY(!QFileInfo(choisi).isSymLink());
            QVERIFY(!QFileInfo::exists(choisi));
            QVERIFY(atelier.Montre().startsWith(u".: b.cn"_s));
        }
    }

    // What lies in a folder that is renamed goes with it, in the form in which it stood, and in the title; what only
    // looks alike stays. A name that the settings cannot keep is told.
    void RenommeAvecLeProgramme()
    {
        Atelier atelier;
        OuvreDocument(atelier.Chemin("Pieces/Tour/b.cn"));
        Reglages.DosDefaut = atelier.Chemin("Pieces/");
        ParamCom.DosRecep = u"Pieces/Tour"_s;
        EtatConf.FicConf = atelier.Chemin("Pieces 2/M.par");
        Reglages.DosConf = atelier.Chemin("Pieces");
        QDir::setCurrent(atelier.Chemin("Pieces"));
        const QString etrange = atelier.Chemin("Łot");
        for (const auto &[ancien, nouveau, avis] : {std::tuple{u"Pieces/Tour"_s, u"../Pieces/Fraise"_s, QString()},
                                                    {u"Pieces"_s, etrange, u":  Ł\n"_s + etrange + u'\n'},
                                                    {u"Łot"_s, atelier.Chemin("L,t"), u" une virgule, "_s},
                                                    {u"L,t"_s, atelier.Chemin("Lot/"), QString()}}) {
            frmPrinc->Frame1->FolderTreeview1->setSelectedFolder(atelier.Chemin(ancien));
            atelier.Fait("InputBox", [nouveau](QWidget &boite) {
                dynamic_cast<QInputDialog &>(boite).setTextValue(nouveau);
                dynamic_cast<QInputDialog &>(boite).accept();
            });
            QString dit;
            if (!avis.isEmpty())
                atelier.Fait("MsgBox", [&dit](QWidget &boite) {
                    dit = dynamic_cast<QMessageBox &>(boite).text();
                    boite.close();
                });
            frmPrinc->Frame1->Command4->click();
            QVERIFY2(dit.contains(avis), qPrintable(dit));
        }
        QCOMPARE(Document.NomFichier, atelier.Chemin("Lot/Fraise/b.cn"));
        QVERIFY(frmPrinc->windowTitle().endsWith(Document.NomFichier));
        QCOMPARE(ParamCom.DosRecep, atelier.Chemin("Lot/Fraise"));
        QCOMPARE(Reglages.DosDefaut, atelier.Chemin("Lot/"));
        QCOMPARE(EtatConf.FicConf, atelier.Chemin("Pieces 2/M.par"));
    }

    // A folder that goes by another hand is left: it is applied no more, and that is told once the dialogs are closed.
    // A column that is closed, and applied to nothing, says nothing.
    void Disparait()
    {
        Atelier atelier;
        const QString cle = atelier.Chemin("Pieces/Cle");
        const auto perd = [&] {
            QDir().mkdir(cle);
            frmPrinc->Frame1->FolderTreeview1->setSelectedFolder(cle);
            QVERIFY(QDir().rmdir(cle));
            QTRY_VERIFY(atelier.Montre().startsWith(u"Pieces: b.cn"));
        };
        Operateur::Barre(15);
        perd();
        frmPrinc->Frame1->CheckDOS->setChecked(true);
        ParamCom.DosRecep = cle + u'/';
        Reglages.DosJauge = atelier.Chemin("Pieces/");
        atelier.Fait("InputBox", [&](QWidget &boite) {
            perd();
            const auto *const annonce = frmPrinc->findChild<QTimer *>(u"AnnonceDisparu"_s);
            QVERIFY(QSignalSpy(annonce, &QTimer::timeout).wait()); // and nobody is told yet
            QCOMPARE(QApplication::activeModalWidget(), &boite);
            QVERIFY(!frmPrinc->Frame1->CheckDOS->isChecked());
            QCOMPARE((QStringList{ParamCom.DosRecep, Reglages.DosJauge}),
                     (QStringList{atelier.Dossier(), atelier.Chemin("Pieces/")}));
            boite.close();
        });
        QString dit;
        atelier.Fait("MsgBox", [&dit](QWidget &boite) {
            dit = dynamic_cast<QMessageBox &>(boite).text();
            boite.close();
        });
        frmPrinc->Frame1->Command1->click();
        const QString texte = u"Le dossier %1 n'est plus là : il a été supprimé ou déplacé, ou son support retiré.\n"
                              u"Le dossier sélectionné n'est plus appliqué à l'ouverture ni à la réception des "
                              u"programmes."_s;
        QTRY_COMPARE(dit, texte.arg(cle));
    }

    // What resists is named, with what is left.
    void SupprimeAMoitie()
    {
        Atelier atelier;
        const QString tour = atelier.Chemin("Pieces/Tour");
        QCOMPARE(chmod(qPrintable(atelier.Dossier()), 0755), 0);
        QCOMPARE(chmod(qPrintable(tour), 0555), 0);
        frmPrinc->Frame1->FolderTreeview1->setSelectedFolder(tour);
        atelier.Fait("MsgBox", Operateur::Clique(QMessageBox::Yes));
        atelier.Apprend("Information",
                        u"ERREUR N° 70\rL'accès est refusé.\r%1/b.cn\r"
                        u"Il reste dans le dossier : Sous-dossiers : 0, fichiers : 1"_s.arg(tour),
                        Boite::Information);
        const uid_t avant = geteuid();
        if (avant == 0) // for whom rights do not count
            QCOMPARE(seteuid(65534), 0);
        frmPrinc->Frame1->Command2->click();
        QCOMPARE(seteuid(avant), 0);
        QCOMPARE(chmod(qPrintable(tour), 0755), 0);
        QCOMPARE(atelier.Lit("Pieces/Tour/b.cn"), QByteArray("%3"));
    }

    // Ticked, the box makes the open dialog and the receptions start in the selected folder, also when the column is
    // closed again; nothing selected changes nothing. A name that the settings cannot keep is told once.
    void DossierApplique()
    {
        Atelier atelier;
        const QString tour = atelier.Chemin(u"Pieces/Łódź/"_s);
        QVERIFY(QDir().rename(atelier.Chemin("Pieces/Tour"), tour));
        frmPrinc->Frame1->FolderTreeview1->setSelectedFolder(tour);
        Operateur::Barre(15);
        for (const bool coche : {false, true}) {
            const auto passe = Passe(coche ? u"ticked"_s : u"not ticked"_s);
            frmPrinc->Frame1->CheckDOS->setChecked(coche);
            if (coche)
                atelier.ApprendQue(u"  Ł ź\n"_s);
            atelier.Choisit("b.cn");
            Operateur::Menu("Mnu_Ouvrir");
            QCOMPARE(frmPrinc->Text1->Text(), coche ? u"%3"_s : u"%4"_s);
            QCOMPARE(Reglages.DosDefaut, coche ? tour : atelier.Dossier());
            for (const ModeTransfert type : {ReceptionProgramme, ReceptionJauges, ReceptionBanc}) {
                Transfert.TypeTransfert = type;
                QCOMPARE(Rc_Fic(frmPrinc).Label3->text() == tour, coche);
            }
        }
        frmPrinc->Frame1->CheckDOS->click();
        atelier.ApprendQue(u"  Ł ź\n"_s);
        frmPrinc->Frame1->CheckDOS->click();
        frmPrinc->Frame1->FolderTreeview1->clearSelection();
        Transfert.TypeTransfert = ReceptionProgramme;
        QCOMPARE(Rc_Fic(frmPrinc).Label3->text(), tour);
    }
};

QTEST_MAIN(TestExplorateur)
#include "TestExplorateur.moc"
