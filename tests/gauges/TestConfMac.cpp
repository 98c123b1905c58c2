#include "Donnees.h"
#include "Etabli.h"

#include "donnees/ParamMac.h"
#include "gauges/ConfMac.h"
#include "platform/dialogues/CommonDialog.h"
#include "platform/fichiers/FichierTexte.h"

#include <QClipboard>
#include <QFileDialog>

namespace {

/// The frames and boxes that depend on machine and kind of file, as they show.
QList<bool> Montres(const ConfMac &d)
{
    return {d.Frame2->isVisible(), d.Label6->isVisible(), d.Text6->isVisible(), d.Frame7->isVisible()};
}

QList<QLineEdit *> Saisies(const ConfMac &d)
{
    return {d.Text1, d.Text2, d.Text3, d.Text4, d.Text5, d.Text6};
}

} // namespace

class TestConfMac : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // A new configuration: choices count at once, typed values when they are saved, whatever becomes of the saving.
    void Cree()
    {
        Etabli etabli(0);
        Reglages.DosConf = etabli.Dossier();
        ParamMac.NbCorrecteurs = 5;
        ParamMac.TypeMachine = 1;
        etabli.Fait("ConfMac", [](QWidget &fenetre) {
            auto &d = dynamic_cast<ConfMac &>(fenetre);
            QCOMPARE(d.windowTitle(), u"Configuration Machine : Sans Nom"_s);
            QVERIFY(d.OptMac_0->isChecked());
            QVERIFY(d.OptTour_0->isChecked());
            QVERIFY(d.OptionRAZ_0->isChecked());
            QCOMPARE(Montres(d), QList<bool>({true, false, false, false}));
            for (auto *const option : {d.OptMac_1, d.OptJauge_1, d.OptTour_1, d.OptionX_1, d.OptionRAZ_1})
                option->click();
            QCOMPARE(Montres(d), QList<bool>({false, true, true, true}));
            QStringList touches = u"a1+0e0,|-12345.678|-99.9||/:/x| %\"2 "_s.split(u'|');
            for (QLineEdit *const saisie : Saisies(d)) {
                saisie->selectAll();
                QTest::keyClicks(saisie, touches.takeFirst());
            }
            QTest::keyClick(d.Text1, Qt::Key_Comma, Qt::KeypadModifier); // the point of its keypad
            QTest::keyClicks(d.Text1, u"3 mm"_s);
            QGuiApplication::clipboard()->setText(u"-,5"_s);
            for (QLineEdit *const saisie : {d.Text1, d.Text4}) // the first has its point
                saisie->paste();
            QCOMPARE(ParamMac.JaugeMaxiX, 100.0);
            d.Command2->click(); // cancelled
            QCOMPARE(d.windowTitle(), u"Configuration Machine : Sans Nom"_s);
            QCOMPARE(d.Text3->text(), u"300"_s); // what the gauges can hold
            d.Text4->clear();
            d.Command2->click();
            QCOMPARE(d.windowTitle(), u"Configuration machine : TOUR.mac"_s);
            QCOMPARE(d.Text6->text(), u"%'2"_s); // as it is stored
            QTest::mouseClick(d.Text1, Qt::LeftButton);
            QTest::keyClicks(d.Text1, u"7"_s); // in the place of the other
            QCOMPARE(d.Text1->text(), u"7"_s);
            d.Command1->click();
        });
        etabli.Fait("CommonDialog", [](QWidget &fenetre) {
            auto &dialogue = dynamic_cast<QFileDialog &>(fenetre);
            QCOMPARE(dialogue.windowTitle(), u"Enregistrer la configuration jauges outils"_s);
            QCOMPARE(dialogue.selectedNameFilter(), u"Fichiers paramètres (*.mac)"_s);
            QCOMPARE(dialogue.directory(), QDir(Reglages.DosConf));
            dialogue.reject();
            QCOMPARE(ParamMac.DiffPoches, -.5); // and yet taken
        });
        etabli.Choisit(etabli.Chemin("TOUR")); // which the dialog completes
        etabli.Apprend("Configuration machine : TOUR.mac",
                       "L'extension contient des signes interdits dans un nom de fichier :  / :\rLa changer avant de "
                       "recevoir des mesures : le fichier de jauges risque de ne pas se créer.");
        Operateur::Menu("Mn_CreeConfMac");
        QCOMPARE(etabli.Lit("TOUR.mac"),
                 "1\r\n1\r\n0\r\n1\r\n1\r\n100.3\r\n-12345\r\n300\r\n\"/:/\"\r\n\"%'2\"\r\n1\r\n");
        QCOMPARE(ParamMac.NomCompletMac, etabli.Chemin("TOUR.mac"));
        QCOMPARE(ParamMac.JaugeMaxiX, 100.3);
    }

    // A file is read into the dialog, in the language, and saved as it was, under the name that is offered: what a mill
    // does not show, and values that are longer than what can be typed.
    void Modifie()
    {
        const QByteArray longues =
            "1\r\n0\r\n-12.0625\r\n1\r\n0\r\n12345.678\r\n2\r\n3\r\n\"JAUG\"\r\n\"%79999\"\r\n0\r\n";
        for (const auto &[octets, textes] :
             {std::pair{LitOctets(Donnees(u"Complete.mac"_s)), u"100.3|1234.5|300|-.125|COR|%12.5"_s},
              {longues, u"12345.678|2|3|-12.0625|JAUG|%79999"_s}}) {
            const auto passe = Passe(textes);
            Etabli etabli(2);
            etabli.Choisit(etabli.Ecrit("lue.mac", octets));
            etabli.Fait("ConfMac", [textes = textes](QWidget &fenetre) {
                const auto &d = dynamic_cast<ConfMac &>(fenetre);
                QCOMPARE(d.windowTitle(), u"Configuración máquina : lue.mac"_s);
                QCOMPARE(Montres(d), QList<bool>({false, true, true, true}));
                QStringList montres;
                for (const QLineEdit *const saisie : Saisies(d))
                    montres << saisie->text();
                QCOMPARE(montres.join(u'|'), textes);
                d.OptMac_0->click();
                d.OptMac_1->click();
                d.Command2->click();
                d.Command1->click();
            });
            etabli.Fait("CommonDialog", [](QWidget &fenetre) {
                QCOMPARE(fenetre.findChild<QLineEdit *>(u"fileNameEdit"_s)->text(), u"lue.mac"_s);
            });
            etabli.Choisit(etabli.Chemin("copie.mac"));
            Operateur::Menu("Mn_ModifConfMac");
            QCOMPARE(etabli.Lit("copie.mac"), octets);
        }
    }

    // Cancelled or cut short: no message, and nothing opens.
    void Courte()
    {
        Etabli etabli(0);
        etabli.Charge("");
        const QString dix = etabli.Ecrit("dix.mac", "1\r\n1\r\n2\r\n1\r\n1\r\n5\r\n6\r\n7\r\n\"A\"\r\n\"B\"\r\n");
        for (const char *commande : {"Mn_ModifConfMac", "Mnu_RecepBanc"}) {
            const auto passe = Passe(QLatin1String(commande));
            etabli.Ferme("CommonDialog");
            Operateur::Menu(commande);
            etabli.Choisit(dix);
            Operateur::Menu(commande);
            QCOMPARE((QStringList{ParamMac.NumProgJauge, ParamMac.NomMac}), (QStringList{u"B"_s, u"dix.mac"_s}));
            QVERIFY(!frmPrinc->CommonDialog1->CancelError);
        }
    }

    // Every line goes out as it came. A new configuration is that of the file of ordinary values.
    void EcritCommeLu()
    {
        ParamMac = {};
        EcritMac(m_copie);
        QCOMPARE(LitOctets(m_copie), LitOctets(Donnees(u"Neuve.mac"_s)));
        LitMac(Donnees(u"Complete.mac"_s));
        EcritMac(m_copie);
        QCOMPARE(LitOctets(m_copie), LitOctets(Donnees(u"Complete.mac"_s)));

        // A quote inside a text would shift the fields behind it; small and large numbers stay plain decimals.
        ParamMac.NumProgJauge = u"%\"1\""_s;
        ParamMac.DiffPoches = .000001;
        ParamMac.JaugeMaxiX = 1e20;
        EcritMac(m_copie);
        QCOMPARE(Lu(m_copie), u"0: 1 1 .000001 1 1 100000000000000000000 1234.5 300 COR %'1' 1 "_s);
        QVERIFY_EXCEPTION_THROWN(EcritMac(m_dossier.filePath(u"parti/x.mac"_s)), Erreur);
    }

    // Whatever the file: the fields ahead of the failure are read, the others as they were.
    void Formes_data()
    {
        RangeesDe(u"formes_mac.tsv"_s);
        QTest::newRow("one long line") << QStringList{u"7: 0 0 0 0 0 100 200 32 JAU %7999 0 "_s,
                                                      QString(100'000, u'1')};
    }
    void Formes()
    {
        QFETCH(QStringList, cases);
        ParamMac = {};
        EcritFichierTexte(m_copie, cases[1]);
        QCOMPARE(Lu(m_copie), cases[0]);
    }

private:
    /// Reads chemin; the number of the failure, 0 for none, and the fields of the record, as its file holds them.
    QString Lu(const QString &chemin) const
    {
        const int numero = NumeroErreur([&chemin] { LitMac(chemin); });
        EcritMac(m_copie);
        return QString::number(numero) + u": "_s + LitFichierTexte(m_copie).replace(u"\r\n"_s, u" "_s).remove(u'"');
    }

    QTemporaryDir m_dossier;
    const QString m_copie = m_dossier.filePath(u"copie.mac"_s);
};

QTEST_MAIN(TestConfMac)
#include "TestConfMac.moc"
