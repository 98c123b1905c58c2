#include "DisquePlein.h"
#include "Etabli.h"
#include "LigneScenario.h"

#include "donnees/Jauge.h"
#include "donnees/Sauvegardes.h"
#include "donnees/Transfert.h"
#include "machine/Banc.h"
#include "platform/base/Erreur.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>

namespace {

constexpr char Fichier[] = "Rc_Fic";
constexpr char Dialogue[] = "Em_Rc";
constexpr char Annule[] = "Command4", Suivante[] = "Command5", Fin[] = "Command6";

/// Tool k as the bench sends it, and its line in the gauge file of a mill.
QByteArray Outil(int k)
{
    return Banc::Salve(QByteArray::number(k), QByteArray::number(100 + k) + ".5", QByteArray::number(k), "D");
}
QByteArray LigneD(int k)
{
    return u"D%1 L%2.5 R%1\r\n"_s.arg(k).arg(100 + k).toLatin1();
}

/// What the disk holds behind the tools 1 to nombre.
QByteArray Brut(int nombre)
{
    QByteArray brut;
    for (int k = 1; k <= nombre; ++k)
        brut += Outil(k) + "\r\n";
    return brut;
}

/// A stroke of the mouse on a button.
void Frappe(QWidget &bouton, QEvent::Type coup)
{
    const QPointF centre = bouton.rect().center();
    QMouseEvent evenement(coup, centre, bouton.mapToGlobal(centre), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&bouton, &evenement);
}

QString Recue(int k)
{
    return u"Jauges Outil N°  %1 reçues"_s.arg(k);
}
Operateur::Condition Mesure(int k)
{
    return [k] { return Operateur::Lu("Label2") == Recue(k); };
}

/// A workstation before the first tool of a mill, with a bench on Com2 whose characters the test gives.
struct Atelier : Etabli
{
    explicit Atelier(int nbCorrecteurs = 32)
        : Etabli(0)
    {
        Charge("ANCIEN");
        frmPrinc->MSComm1->setFabrique(LigneScenario::Fabrique(banc));
        ParamCom.TailleRecep = int(Banc::TailleSalve);
        ParamCom.NbCarLecture = 512;
        ParamCom.Echo = 1;
        Reglages.DosJauge = Dossier();
        mac = Ecrit("M.mac", u"1\n0\n0\n0\n1\n1000\n1000\n%1\ncor\nP\n0"_s.arg(nbCorrecteurs).toLatin1());
    }

    /// The operator chooses the machine, names the file, and confirms or not.
    void Nomme(QMessageBox::StandardButton reponse = QMessageBox::Yes)
    {
        Choisit(mac);
        Fait(Fichier, [](QWidget &fenetre) {
            QCOMPARE(fenetre.windowTitle(), u"Création d'un fichier jauges outils"_s);
            fenetre.findChild<QComboBox *>(u"Combo1"_s)->setCurrentText(u"iso"_s); // the machine's own counts
        });
        Saisit(Fichier, "Text1", "jauges");
        Recoit(reponse);
    }
    void Recoit(QMessageBox::StandardButton reponse)
    {
        Presse(Fichier, "Command2");
        Repond("Réception des jauges outils à partir du banc de préréglage",
               "\rConfirmez la réception des jauges outils JAUGES.COR sur le port Com2 ?", Operateur::Demande, reponse);
    }

    /// The bench sends: once the program has read all that came before, if nothing else is said.
    void Envoie(const QByteArray &octets, const Operateur::Condition &quand = {})
    {
        Fait(
            Dialogue, [this, octets](QWidget &) { banc->Envoie(octets); }, quand ? quand : [this] { return Lus(); });
    }
    bool Lus() const
    {
        return frmPrinc->PortOuvert && banc->EnAttente() == 0 && frmPrinc->MSComm1->InBufferCount() == 0;
    }

    /// Tools 1 to nombre, up to the last one received.
    void Outils(int nombre)
    {
        for (int k = 1; k <= nombre; ++k) {
            Envoie(Outil(k));
            if (k < nombre)
                Presse(Dialogue, Suivante, Mesure(k));
        }
    }

    /// The command; the file dialog, which is left behind, is closed.
    void Abandonne()
    {
        Presse(Fichier, "Command1");
        Menu("Mnu_RecepBanc");
        QVERIFY(!frmPrinc->PortOuvert);
        QVERIFY(!TransfertEnCours());
    }

    QByteArray Disque() const { return Lit("JAUGES.COR"); }

    QString mac;
    std::shared_ptr<Scenario> banc = std::make_shared<Scenario>();
};

QString SansJauges(const Atelier &atelier)
{
    return u"\nAucun fichier de jauges n'est créé.\nLe texte reçu du banc reste dans le fichier :\n"_s +
           atelier.Chemin("JAUGES.COR");
}

} // namespace

class TestReceptionJauge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What the operator reads and may press at each step, what the disk holds meanwhile, and the gauge file at the end.
    void Guide()
    {
        const QString touches =
            u"\n\nAppuyer sur la touche < PRINT >\nEntrez le Numéro de correcteur\nAppuyer sur la touche < ENTREE >"_s;
        const QString suite = u"\nCliquez sur le bouton\n < Jauge suivante... >\nPour recevoir de nouvelles jauges"_s;
        const QString attente = u"En attente de réception Jauges Outil N°  "_s;
        const std::pair<QString, QString> etapes[] = {{u"\nPrérégler le premier outil"_s + touches, attente + u'1'},
                                                      {u'\n' + Recue(1) + suite, Recue(1)},
                                                      {u"\nPrérégler l'outil N°  2"_s + touches, attente + u'2'},
                                                      {u'\n' + Recue(2) + suite, Recue(2)}};
        Atelier atelier;
        Jauges.Jauge(2).Rayon = 8; // of the session before
        atelier.Nomme();
        for (int i = 0; i < 4; ++i) {
            const auto passe = Passe(etapes[i].second);
            const auto verifie = [i, consigne = etapes[i].first, &atelier](QWidget &fenetre) {
                const auto bouton = [&](const char *nom) {
                    return fenetre.findChild<QPushButton *>(QLatin1String(nom));
                };
                const bool mesuree = i % 2 == 1;
                QCOMPARE(fenetre.windowTitle(), u"Réception des jauges outils à partir du banc"_s);
                QCOMPARE(Operateur::Lu("Label1"), consigne);
                QCOMPARE(Operateur::Lu("Label4"), u"Réception par ligne"_s);
                QVERIFY(bouton(Annule)->isEnabled());
                QCOMPARE(bouton(Suivante)->isEnabled(), mesuree);
                QCOMPARE(bouton(Fin)->isEnabled(), mesuree);
                // A stroke of the space bar too many does not cancel.
                QCOMPARE(fenetre.focusWidget(), mesuree ? bouton(Suivante) : &fenetre);
                QCOMPARE(frmPrinc->shpReceive->FillColor(), mesuree ? Lampe::Rouge : Lampe::Verte);
                QCOMPARE(atelier.Disque(), Brut((i + 1) / 2));
                if (!mesuree) { // the hand rests on a key while the measure comes
                    QTest::keyPress(&fenetre, Qt::Key_J, Qt::AltModifier);
                    atelier.banc->Envoie(Outil(i / 2 + 1));
                    return;
                }
                QTest::simulateEvent(&fenetre, true, Qt::Key_J, Qt::AltModifier, u"j"_s, true);
                QVERIFY(!Jauges.JaugeSuivante);
                QTest::keyRelease(&fenetre, Qt::Key_J, Qt::AltModifier);
                bouton(i == 1 ? Suivante : Fin)->click();
            };
            atelier.Fait(Dialogue, verifie, [statut = etapes[i].second] {
                return frmPrinc->PortOuvert && Operateur::Lu("Label2") == statut;
            });
        }
        Operateur::Barre(13);
        QCOMPARE(atelier.Disque(), "%\r\n" + LigneD(1) + LigneD(2));
        QCOMPARE(frmPrinc->Text1->Text().toLatin1(), atelier.Disque());
        QCOMPARE((QStringList{Document.NomFichier, Document.TitreFichier}),
                 (QStringList{atelier.Chemin("JAUGES.COR"), u"JAUGES.COR"_s}));
        QVERIFY(!Document.FichierModifie);
        QCOMPARE(Jauges.Jauge(2).Rayon, 0.0F);
    }

    // What comes over the line, read by read, and the measure that is made of it.
    void Salves()
    {
        struct Cas
        {
            int taille;  ///< TailleRecep
            int lecture; ///< characters that one read gives at most
            QByteArrayList lus;
            QByteArray mesure;
        };
        const QByteArray salve = Outil(1);
        const QByteArray dedans = salve.left(30) + "\a" + salve.mid(30);
        const Cas cas[] = {
            {70, 512, {salve.left(1), salve.mid(1, 60), salve.mid(61)}, salve},
            {70, 512, {"\a", salve}, salve},
            {70, 512, {salve.left(69), "\a", salve.mid(69)}, salve}, // the bell is not the last character
            {70, 512, {dedans}, dedans},                             // read with others it stays
            {70, 1, {"\a" + dedans + "\a"}, salve},                  // read alone it never does
            {70, 7, {salve + "  \r\n"}, salve + "  \r\n"},           // nothing is left for the next tool
            {0, 512, {"TN:    1"}, "TN:    1"},
            {0, 1, {salve}, salve}, // the next character may come a little late
        };
        Atelier atelier;
        atelier.Nomme();
        QByteArray disque;
        int k = 0;
        for (const Cas &c : cas) {
            const auto regle = [&c](QWidget &) {
                ParamCom.TailleRecep = c.taille;
                frmPrinc->MSComm1->setInputLen(c.lecture);
            };
            atelier.Fait(Dialogue, regle, [] { return frmPrinc->PortOuvert; });
            for (const QByteArray &lu : c.lus)
                atelier.Envoie(lu);
            atelier.Presse(Dialogue, &c == std::end(cas) - 1 ? Annule : Suivante, Mesure(++k));
            disque += c.mesure + "\r\n";
        }
        atelier.Abandonne();
        QCOMPARE(atelier.Disque(), disque);
    }

    // Given up behind a tool: the file keeps what had come, the pane stays, and the file dialog waits for another try.
    void Abandon()
    {
        Atelier atelier;
        atelier.Nomme(QMessageBox::No);
        atelier.Recoit(QMessageBox::Yes);
        atelier.Outils(1);
        for (const auto reponse : {QMessageBox::No, QMessageBox::Yes}) {
            atelier.Ferme(Dialogue, Mesure(1)); // Escape again so soon behind the answer would not be heard
            atelier.Repond("Transfert en cours", "Le transfert n'est pas terminé !\rConfirmez l'arrêt du transfert ?",
                           Operateur::Demande, reponse);
        }
        atelier.Abandonne();
        QCOMPARE(Jauges.NbJauges, 0);
        QVERIFY(!Transfert.FinTransfert);
        QCOMPARE(frmPrinc->Text1->Text(), u"ANCIEN"_s);
        QCOMPARE(atelier.Disque(), Brut(1));
    }

    // A double click on a measure that waits takes that one only. The bench is unplugged behind the last tool: what was
    // measured counts.
    void DebrancheALaFin()
    {
        Atelier atelier;
        atelier.Nomme();
        atelier.Outils(1);
        atelier.Envoie(Outil(2), Mesure(1));
        atelier.Presse(Dialogue, Suivante, Mesure(1));
        const auto encore = [&atelier](QWidget &dialogue) {
            auto *const bouton = dialogue.findChild<QPushButton *>(QLatin1String(Suivante));
            for (const auto coup : {QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease})
                Frappe(*bouton, coup);
            QVERIFY(!Jauges.JaugeSuivante);
            atelier.banc->Debranche();
        };
        atelier.Fait(Dialogue, encore, Mesure(2));
        atelier.Presse(Dialogue, Fin);
        Operateur::Menu("Mnu_RecepBanc");
        QCOMPARE(atelier.Disque(), "%\r\n" + LigneD(1) + LigneD(2));
    }

    // The characters of a burst under way are counted, also of one that comes before anybody has asked for it. What a
    // failure leaves on the screen is the failure, and no tool to be preset.
    void Compte()
    {
        Atelier atelier;
        atelier.Nomme();
        const auto compte = [](const QString &montre) {
            return [montre] {
                const auto *const barre = QApplication::activeModalWidget()->findChild<QProgressBar *>();
                return frmPrinc->PortOuvert && (barre->isVisible() ? barre->text() : QString()) == montre;
            };
        };
        atelier.Envoie(Outil(1).left(40), compte(QString()));
        atelier.Envoie(Outil(1).mid(40), compte(u"N° 1 : 40 / 70"_s));
        atelier.Envoie(Outil(2).left(30), Mesure(1));
        atelier.Presse(Dialogue, Suivante, compte(u"N° 2 : 30 / 70"_s));
        atelier.Fait(
            Dialogue, [&atelier](QWidget &) { atelier.banc->Debranche(); },
            [] { return Operateur::Lu("Label2") == u"En attente de réception Jauges Outil N°  2"; });
        const QString panne = u"Erreur de lecture du périphérique de communication"_s;
        atelier.LitErreur(8020, panne);
        atelier.Fait("MsgBox", Operateur::Clique(QMessageBox::No));
        atelier.Presse(Dialogue, Annule, [panne] {
            return Operateur::Lu("Label1") == u'\n' + panne && Operateur::Lu("Label2").isEmpty();
        });
        atelier.Abandonne();
        const QStringList copie = QDir(DossierSauvegardes()).entryList({u"JAUGES_*.TXT"_s});
        QCOMPARE(atelier.Lit(u"Sauvegardes/"_s + copie.value(0)), Brut(1) + Outil(2).left(30));
        QCOMPARE(atelier.Disque(), Brut(1));
    }

    // A tool that nobody asked for is told at the end. The disk fails while the dial stands open: what the disk holds
    // is told truly, and what was typed can be saved and stands in the pane then. The text of the bench that is left
    // there otherwise bears no name and is not to be sent.
    void EcritureRatee_data() { OuiEtNon("sauve", "saved elsewhere", "given up"); }
    void EcritureRatee()
    {
        QFETCH(bool, sauve);
        Atelier atelier;
        atelier.Ecrit("M.mac", "0\n0\n0\n0\n1\n1000\n1000\n32\ncor\nP\n0");
        atelier.Nomme();
        atelier.Outils(1);
        atelier.Envoie(Outil(2), Mesure(1));
        atelier.Presse(Dialogue, Fin, [] {
            return QApplication::activeModalWidget()->findChild<QProgressBar *>()->text() == u"N° 2 : 70 / 70";
        });
        atelier.Apprend("Mesures du banc", "Ces mesures n'ont pas pu être lues, elles ne sont pas écrites :\r"
                                           "    N° 2 : 70 caractères arrivés sans que la jauge suivante soit demandée");
        const QString chemin = atelier.Chemin("JAUGES.COR");
        atelier.Saisit("JauTour", "Text1", ".8");
        atelier.Fait("JauTour", [&](QWidget &cadran) {
            QCOMPARE(atelier.Disque(), Outil(1).trimmed() + "\r\n");
            QVERIFY(QFile::remove(chemin));
            QVERIFY(QFile::link(u"/dev/full"_s, chemin));
            cadran.findChild<QLineEdit *>(u"Text2"_s)->setText(u"5"_s);
            Operateur::Presse(cadran, "Command1");
        });
        atelier.LitErreur(61, u"Le disque est plein.\r"_s + chemin);
        atelier.Fait("MsgBox", [&](QWidget &boite) {
            QCOMPARE(boite.windowTitle(), u"Enregistrer les jauges"_s);
            QCOMPARE(dynamic_cast<QMessageBox &>(boite).text(),
                     u"Les jauges ne sont pas enregistrées.\nCe fichier est introuvable :\n%1\n"
                     "Enregistrer les jauges dans un autre fichier ?\n"
                     "Non : une copie reste dans le dossier Sauvegardes."_s.arg(chemin));
            QVERIFY(QFile::remove(chemin));
            Operateur::Clique(sauve ? QMessageBox::Yes : QMessageBox::No)(boite);
        });
        if (sauve)
            atelier.Fait("CommonDialog", [](QWidget &fenetre) {
                QCOMPARE(dynamic_cast<QFileDialog &>(fenetre).selectedNameFilter(), u"Fichiers jauges (*.cor)"_s);
            });
        if (sauve)
            atelier.Choisit(atelier.Chemin("SAUVE")); // which the dialog completes
        atelier.Abandonne();
        QCOMPARE(atelier.Lit("SAUVE.COR"), sauve ? "%\r\nD1 X-1 Z101.5 R.8 C5\r\n" : "");
        QCOMPARE(QDir(DossierSauvegardes()).entryList({u"JAUGES_*.COR"_s}).isEmpty(), sauve);
        QCOMPARE(frmPrinc->Text1->Text().toLatin1(), sauve ? atelier.Lit("SAUVE.COR") : Brut(1));
        QCOMPARE((QStringList{Document.NomFichier, Document.TitreFichier}),
                 sauve ? QStringList({atelier.Chemin("SAUVE.COR"), u"SAUVE.COR"_s}) : QStringList(2, QString()));
        QVERIFY(TexteModifie() != sauve);
        QCOMPARE(frmPrinc->Mnu_EmisProgCN->isEnabled(), sauve);
    }

    // The disk is full from the first measure on: that the file is empty is told, and what the bench has sent is
    // offered under a name that is no gauge file's.
    void BrutRate()
    {
        Atelier atelier;
        const auto plein = DisquePlein();
        atelier.Nomme();
        atelier.Envoie(Outil(1));
        atelier.ApprendQue(u"Le fichier est trop grand pour ce disque."_s);
        for (const auto reponse : {QMessageBox::Yes, QMessageBox::No}) {
            atelier.Repond("Enregistrer le texte du banc",
                           u"Les mesures reçues du banc ne sont pas toutes enregistrées.\rCe fichier est vide :\r%1\r"
                           "Enregistrer le texte du banc dans un autre fichier ?"_s.arg(atelier.Chemin("JAUGES.COR")),
                           Operateur::DemandeSimple, reponse);
            if (reponse == QMessageBox::Yes)
                atelier.Fait("CommonDialog", [](QWidget &fenetre) {
                    QCOMPARE(fenetre.findChild<QLineEdit *>(u"fileNameEdit"_s)->text(), u"JAUGES.TXT"_s);
                    dynamic_cast<QFileDialog &>(fenetre).reject();
                });
        }
        atelier.Presse(Dialogue, Annule);
        atelier.Abandonne();
    }

    // The correctors of the machine are used up: the tools end there, and only the operator's own end makes a gauge
    // file.
    void Limite()
    {
        for (const int nombre : {0, 2}) {
            const auto passe = Passe(QString::number(nombre));
            Atelier atelier(nombre);
            atelier.Nomme();
            atelier.Outils(nombre);
            if (nombre > 0)
                atelier.Presse(Dialogue, Suivante, Mesure(nombre));
            const QString limite = u"Nombre de correcteurs reçus > à %1 !"_s.arg(nombre);
            atelier.Apprend("Avertissement", limite, Boite::Critique);
            atelier.Presse(Dialogue, Annule, [&limite, consigne = nombre > 0 ? SansJauges(atelier) : QString()] {
                return Operateur::Lu("Label2") == limite && Operateur::Lu("Label1") == consigne && !TransfertEnCours();
            });
            atelier.Abandonne();
            QCOMPARE(atelier.Disque(), Brut(nombre));
            QCOMPARE(frmPrinc->Text1->Text().toLatin1(), atelier.Disque());
            QCOMPARE(Document.TitreFichier, u"JAUGES.COR"_s);
        }
    }
};

QTEST_MAIN(TestReceptionJauge)
#include "TestReceptionJauge.moc"
