#include "Etabli.h"

#include "captures_prog/Vues.h"
#include "comconfig/Prop.h"
#include "platform/base/Horloge.h"

#include <QComboBox>
#include <QPushButton>
#include <QWheelEvent>

using namespace std::chrono_literals;

namespace {

std::chrono::milliseconds heure(1'000'000);

/// What a hand does with a key: P presses it, R releases it, M is a repetition that the system marks, J one that it
/// does not; +400 lets so many milliseconds go by.
void Joue(QWidget *cible, Qt::Key touche, const QString &gestes)
{
    for (const QString &geste : gestes.split(u' ', Qt::SkipEmptyParts)) {
        heure += std::chrono::milliseconds(geste.toInt());
        for (const QChar etape : geste == u"J" ? u"RP"_s : geste) {
            if (!etape.isLetter())
                break;
            QKeyEvent evenement(etape == u'R' ? QEvent::KeyRelease : QEvent::KeyPress, touche, {},
                                touche == Qt::Key_O ? u"o"_s : QString(), etape == u'M');
            evenement.setTimestamp(quint64(heure.count()));
            QCoreApplication::sendEvent(cible, &evenement);
        }
    }
}

} // namespace

class TestClavier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The clock stands still until the test moves it.
    void initTestCase()
    {
        Horloge::Maintenant = [] { return Horloge::Instant(heure); };
    }

    // In each dialog Enter comes to each control that the keyboard can go to: a button presses itself, from any other
    // one the default button is pressed.
    void Entree()
    {
        const Poste poste(0);
        poste.Charge("");
        poste.Ecrit("DORVANEL.HLP", "<p>G0</p>");
        QDir(poste.Dossier()).mkdir(u"Conf"_s);
        QFile::copy(EtatConf.FicConf, poste.Chemin("Conf/Machine_simulee.par"));
        const auto cas =
            u"FrmLangue/Command1 Em_Rc_1/Command2 Em_Rc_3_cours Em_Rc_5/Command5 Rc_Fic_3/Command2 "
            u"Prop_0/cmdOK Prop_1 FrmCaract/Command1 DosProg/Command1 FrmConfDem/Command4 ConfMac/Command2 "
            u"JauTour/Command1/Text1 Apropos/Command1 FrmAide//Text1/Command4"_s;
        for (const QString &ligne : cas.split(u' ')) { // window, default button, another control and what it presses
            const QStringList mots = (ligne + u"///"_s).split(u'/');
            const auto vue =
                std::find_if(Vues.begin(), Vues.end(), [&](const Vue &v) { return mots[0] == QLatin1String(v.nom); });
            const std::unique_ptr<QWidget> fenetre(vue->ouvre());
            fenetre->show();
            QString presses;
            for (auto *const bouton : fenetre->findChildren<QAbstractButton *>()) {
                bouton->disconnect(SIGNAL(clicked(bool)));
                connect(bouton, &QAbstractButton::clicked, fenetre.get(),
                        [&presses, bouton] { presses += bouton->objectName(); });
                bouton->setEnabled(true);
            }
            for (auto *const controle : fenetre->findChildren<QWidget *>()) {
                if (!controle->isVisible() || !(controle->focusPolicy() & Qt::TabFocus))
                    continue;
                const QString lieu = controle->objectName();
                const auto *const bouton = qobject_cast<QAbstractButton *>(controle);
                const bool presse = bouton != nullptr && (!bouton->isCheckable() || bouton->inherits("Tuile"));
                presses.clear();
                heure += 1s;
                controle->setFocus();
                QTest::keyClick(controle, Qt::Key_Return);
                const QString attendu = presse ? lieu : !lieu.isEmpty() && lieu == mots[2] ? mots[3] : mots[1];
                QVERIFY2(presses == attendu, qPrintable(mots[0] + u": "_s + lieu + u" presses "_s + presses));
            }
        }
    }

    // A box that comes (|) over a hand on a key: whether what the hand does then answers it.
    void Tenues()
    {
        const std::pair<QString, bool> cas[] = {
            {u"| P"_s, true},
            {u"P R +400 | P"_s, true},
            {u"P R +399 | P R +399 P"_s, false},
            {u"P R +399 | P R +400 P"_s, true},
            {u"P +900 | M +30 M +900 M"_s, false},
            {u"P +900 | J +30 J +900 R +29 P"_s, false},
            {u"P +900 | +900 R +30 P"_s, true},
            {u"P +900 M | +900 P"_s, true}, // its release went to another program
        };
        Etabli etabli(0);
        const auto demande = [&](Qt::Key touche, const QString &gestes) {
            bool repondu = false;
            heure += 10s;
            Joue(frmPrinc, touche, gestes.section(u'|', 0, 0));
            etabli.Fait("MsgBox", [&](QWidget &boite) {
                Joue(boite.focusWidget(), touche, gestes.section(u'|', 1));
                const auto boutons = boite.findChildren<QPushButton *>();
                const auto enfonce = [](const QPushButton *bouton) { return bouton->isDown(); };
                repondu = !boite.isVisible() || std::any_of(boutons.begin(), boutons.end(), enfonce);
                boite.close();
            });
            Confirme(u"?"_s, 0, u"?"_s);
            return repondu;
        };
        for (const Qt::Key touche : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape, Qt::Key_O}) {
            for (const auto &[gestes, repond] : cas) {
                QVERIFY2(demande(touche, gestes) == repond,
                         qPrintable(QKeySequence(touche).toString() + u' ' + gestes));
                Joue(frmPrinc, touche, u"R"_s);
            }
        }
        // The text behind the box is not there for the hand that has answered it.
        QVERIFY(demande(Qt::Key_Return, u"| P"_s));
        frmPrinc->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(frmPrinc));
        Joue(frmPrinc->Text1, Qt::Key_Return, u"M J +30 M R +100 P R"_s);
        QCOMPARE(frmPrinc->Text1->Text(), QString());
        Joue(frmPrinc->Text1, Qt::Key_Return, u"+400 P R"_s);
        QCOMPARE(frmPrinc->Text1->Text(), u"\r\n"_s);
        // A name is typed from the first moment on.
        etabli.Fait("InputBox", [](QWidget &boite) {
            Joue(boite.focusWidget(), Qt::Key_Return, u"P R"_s);
            QVERIFY(boite.isVisible());
            Joue(boite.focusWidget(), Qt::Key_O, u"P R"_s);
            Joue(boite.focusWidget(), Qt::Key_Return, u"P R"_s);
        });
        QCOMPARE(InputBox(u"?"_s, u"?"_s), u"o"_s);
    }

    // A question goes by itself (|), and may leave a box in its place: the stroke that was meant for it presses
    // nothing.
    void DemandeRetiree()
    {
        const std::pair<QString, bool> cas[] = {{u"P R"_s, false}, {u"+399 P R"_s, false}, {u"+400 P"_s, true}};
        Etabli etabli(0);
        for (const auto &[gestes, presse] : cas) {
            for (const bool boiteSuit : {false, true}) {
                QDialog fenetre;
                QPushButton bouton(&fenetre);
                bool repondu = false;
                connect(&bouton, &QPushButton::clicked, this, [&] { repondu = true; });
                fenetre.show();
                heure += 10s;
                DemandeSansAttendre(fenetre, u"?"_s, 0, u"?"_s, [] { QFAIL("answered"); });
                if (boiteSuit) {
                    etabli.Fait("MsgBox", [&, gestes = gestes](QWidget &boite) {
                        Joue(boite.focusWidget(), Qt::Key_Return, gestes);
                        repondu = !boite.isVisible();
                        boite.close();
                    });
                    MsgBox(u"?"_s, 0, u"?"_s);
                } else {
                    RetireDemande();
                    Joue(&bouton, Qt::Key_Return, gestes);
                }
                QCOMPARE(repondu, presse);
            }
        }
    }

    // The wheel over a list changes it only when the keyboard is there, and never gives it the keyboard.
    void Molette()
    {
        const Poste poste(0);
        Prop prop(frmPrinc);
        prop.show();
        QVERIFY(QTest::qWaitForWindowActive(&prop));
        QComboBox &liste = *prop.cboSpeed;
        const int choix = liste.currentIndex();
        for (const bool foyer : {false, true}) {
            const auto passe = Passe(foyer ? u"with the keyboard"_s : u"without"_s);
            (foyer ? &liste : static_cast<QWidget *>(prop.cmdOK))->setFocus();
            QWheelEvent tour({5, 5}, liste.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, {}, {}, Qt::NoScrollPhase, false);
            QCoreApplication::sendEvent(&liste, &tour);
            QVERIFY(tour.isAccepted());
            QCOMPARE(liste.currentIndex() != choix, foyer);
            QCOMPARE(liste.focusPolicy(), Qt::StrongFocus);
        }
    }
};

QTEST_MAIN(TestClavier)
#include "TestClavier.moc"
