#include "Donnees.h"
#include "Etabli.h"

#include "donnees/Jauge.h"
#include "donnees/Lignes.h"
#include "donnees/ParamCom.h"
#include "donnees/ParamMac.h"
#include "donnees/Transfert.h"
#include "gauges/FiltreJauge.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>

namespace {

/// A workstation with a mill, and the bursts of its bench.
struct Atelier : Etabli
{
    Atelier()
        : Etabli(0)
    {
        ParamMac.TypeMachine = 1;
        ParamMac.JaugeMaxiX = 1e9;
        ParamCom.TailleRecep = 70;
    }

    /// Filters the bursts of a reception of as many tools; gives the gauge file.
    QByteArray Filtre(const QStringList &rafales, int outils) const
    {
        Transfert.DossierRecep = Dossier();
        Transfert.NomFicRecep = u"A.JAU"_s;
        VideLignes();
        Jauges = {};
        std::copy(rafales.begin(), rafales.end(), Lignes.begin());
        Jauges.NbJauges = outils;
        FiltreJauge();
        return Lit("A.JAU");
    }
};

/// A burst: the texts at their columns.
QString Mesure(const QString &correcteur, const QString &z, const QString &x, const QString &mode)
{
    return u"TN:"_s + correcteur.leftJustified(21) + z.leftJustified(25) + x.leftJustified(12) + mode;
}

} // namespace

class TestFiltreJauge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Colonnes_data() { RangeesDe(u"mesures.tsv"_s); }
    void Colonnes()
    {
        QFETCH(QStringList, cases);
        Atelier atelier;
        if (cases.size() > 2)
            atelier.Apprend("Mesures du banc", u"Ces mesures sont douteuses, elles sont lues ainsi :\r"
                                               "    N° 1, correcteur "_s +
                                                   cases[2]);
        QCOMPARE(atelier.Filtre({cases[1]}, 1), "%\r\n" + cases[0].toLatin1() + "\r\n");
        QCOMPARE(QApplication::overrideCursor(), nullptr);
    }

    // Bursts ahead of the measures and between them are passed over, and told at their places of the session; nothing
    // is written for them.
    void Suite()
    {
        Atelier atelier;
        ParamMac.JaugeMaxiZ = -1; // its box stops the work while the cleaned text stands in the file
        const QString doutes =
            u"Z \"\" pris pour 0, X \"\" pris pour 0,\r          lettre \"\" : X pris pour 0 au rayon"_s;
        atelier.Apprend("Mesures du banc",
                        u"Ces mesures n'ont pas pu être lues, elles ne sont pas écrites :\r    N° 1 : EPB\r"
                        "    N° 2 : (rien)\r    N° 3 : (rien)\r    N° 5 : (rien)\r    N° 6 : TOTAL\r\r"
                        "Ces mesures sont douteuses, elles sont lues ainsi :\r    N° 4, correcteur 3 : %1\r"
                        "    N° 7, correcteur 4 : %1"_s.arg(doutes));
        for (int i = 0; i < 2; ++i)
            atelier.Fait("MsgBox", [&](QWidget &boite) {
                // Of two blank lines in a row one stays.
                QCOMPARE(atelier.Lit("A.JAU"), "EPB\r\n\r\nTN:    3 \x80\r\nTOTAL\r\nTN:    4\r\n");
                QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
                dynamic_cast<QMessageBox &>(boite).accept();
            });
        const QStringList rafales = u"EPB\r|\r\n|\a| TN:    3 \u20AC |\x1b|TOTAL|TN:    4"_s.split(u'|');
        QCOMPARE(atelier.Filtre(rafales, 7), "%\r\nD3 L0 R0\r\nD4 L0 R0\r\n");
        QCOMPARE(Jauges.NbJauges, 2);
    }

    // Where no measure could be read the text of the bench stays as it came; blanks alone leave an empty file.
    void Aucune()
    {
        const QString fin =
            u"\r\rAucun fichier de jauges n'est créé.\rLe texte reçu du banc reste dans le fichier :\r"_s;
        const QString entete = u"Ces mesures n'ont pas pu être lues, elles ne sont pas écrites :"_s;
        QString rangs;
        for (int place = 1; place <= 12; ++place)
            rangs += u"\r    N° %1 : tn: 12"_s.arg(place);
        for (const auto &[rafale, nombre, dits, reste] :
             {std::tuple{u"tn: 12\r"_s, 13, rangs + u"\r    ... + 1"_s, "BRUT\r\n"},
              {u"\a "_s, 1, u"\r    N° 1 : (rien)"_s, ""}}) {
            const auto passe = Passe(rafale);
            Atelier atelier;
            ParamMac.TypeMachine = 0; // and no dial
            atelier.Ecrit("A.JAU", "BRUT\r\n");
            const bool tiennent = nombre == 1;
            atelier.Fait("MsgBox", [&, dits = dits](QWidget &fenetre) {
                auto &boite = dynamic_cast<QMessageBox &>(fenetre);
                QCOMPARE(boite.text(), PourAffichage(entete + dits + fin + atelier.Chemin("A.JAU")));
                QCOMPARE(boite.detailedText(),
                         tiennent ? QString() : PourAffichage(entete + rangs + u"\r    N° 13 : tn: 12"_s));
                boite.close();
            });
            QCOMPARE(atelier.Filtre(QStringList(nombre, rafale), nombre), reste);
            QCOMPARE(Jauges.NbJauges, 0);
        }
    }

    // A corrector number that the machine does not have is asked again until it fits; giving up means 0.
    void HorsPlage()
    {
        for (const auto &[recu, dit, reponses, numero] :
             {std::tuple{u"33"_s, u"33"_s, u"33|99999|12"_s.split(u'|'), "12"},
              {u"-9E4"_s, u"-90000"_s, {u"-40000"_s, u"-1"_s}, "-1"},
              {u"300"_s, u"300"_s, {QString()}, "0"}}) {
            const auto passe = Passe(recu);
            Atelier atelier;
            atelier.Apprend("Erreur de numéro de correcteur",
                            u"Attention numéro de correcteur %1|   interdit pour l'outil Nø: 2"_s.arg(dit),
                            Boite::Critique);
            for (const QString &reponse : reponses)
                atelier.Fait("InputBox", [=](QWidget &boite) {
                    QCOMPARE(boite.windowTitle(), u"Valeur du correcteur"_s);
                    QCOMPARE(boite.findChild<QLabel *>()->text(), u"Nouvelle valeur du correcteur (0 -  32)"_s);
                    auto *const saisie = boite.findChild<QLineEdit *>();
                    QCOMPARE(saisie->text(), u" 32"_s);
                    saisie->setText(reponse);
                    dynamic_cast<QDialog &>(boite).done(reponse.isEmpty() ? QDialog::Rejected : QDialog::Accepted);
                });
            if (recu == u"300")
                atelier.ApprendQue(u"N° 2, correcteur 0 : correcteur \"300\" pris pour 0"_s);
            if (recu == u"-9E4")
                atelier.Apprend("Mesures du banc",
                                u"Ces mesures sont douteuses, elles sont lues ainsi :\r    N° 2, "
                                u"correcteur -1 : correcteur \"-9E4\" pris pour -1, numéro de correcteur négatif"_s);
            QCOMPARE(atelier.Filtre({Mesure(u"32"_s, u"1"_s, u"1"_s, u"R"_s), Mesure(recu, u"2"_s, u"2"_s, u"R"_s)}, 2),
                     "%\r\nD32 L1 R1\r\nD"_ba + numero + " L2 R2\r\n");
        }
    }

    // One line too many fills the table and leaves the count of the text before it.
    void LignesEnTable()
    {
        const QString pleine = u"N\r\n"_s.repeated(CapaciteLignes - 1) + u"FIN"_s;
        CalculeLigne(pleine);
        QCOMPARE(Lignes.NbLignes, CapaciteLignes);
        CalculeLigne(u"A\r\nB"_s);
        CalculeLigne(pleine + u"\r\n"_s);
        QCOMPARE(Lignes.NbLignes, 2);
        QCOMPARE(Lignes(CapaciteLignes), u"\nFIN\r"_s);
    }

    // On a lathe the dial comes between, without the hourglass; closing it asks, and lets the file be made all the
    // same. A value that no gauge can hold, or no machine's form of it, is told, and the other measures go on.
    void Tour()
    {
        Atelier atelier;
        ParamMac.TypeMachine = 0;
        QStringList rafales;
        QString rangs;
        for (const QString &z : {u"1E99"_s, u"1E999"_s, u"-2E35"_s}) {
            rafales << Mesure(u"1"_s, z, u"1"_s, u"R"_s);
            rangs += u"\r    N° %1 : TN:1 %2 1 R, Z \"%2\" est trop grand"_s.arg(rafales.size()).arg(z);
        }
        rafales << Mesure(u"2"_s, u"98.12"_s, u"26"_s, u"R"_s);
        atelier.Apprend("Mesures du banc",
                        u"Ces mesures n'ont pas pu être lues, elles ne sont pas écrites :"_s + rangs);
        for (const auto reponse : {QMessageBox::No, QMessageBox::Yes}) {
            atelier.Ferme("JauTour", [] { return QApplication::overrideCursor() == nullptr; });
            atelier.Repond("Fermer le cadran",
                           "Outils non validés : 1\rIls seront écrits avec le rayon 0 et le localisateur 0.\r"
                           "Fermer quand même ?",
                           Boite::Exclamation | Boite::OuiNon | Boite::SecondBouton, reponse);
        }
        QCOMPARE(atelier.Filtre(rafales, 4), "%\r\nD2 X26 Z98.12 R0 C0\r\n");
        QCOMPARE(QApplication::overrideCursor(), nullptr);
    }
};

QTEST_MAIN(TestFiltreJauge)
#include "TestFiltreJauge.moc"
