#include "gauges/JauTour.h"

#include "donnees/Jauge.h"
#include "donnees/ParamMac.h"
#include "gauges/Virgule.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/base/Nombres.h"
#include "platform/base/Touches.h"
#include "platform/controles/Clavier.h"
#include "platform/controles/FiltreTouches.h"
#include "platform/controles/UnClic.h"
#include "platform/dialogues/Boites.h"

#include <QKeyEvent>

namespace {

constexpr Texte3 OutilTexte{u"Outil mesuré N° : ", u"Measured tool N° : ", u"instrumentos medida N° : "};
constexpr Texte3 CorrecteurTexte{u"Correcteur N° : ", u"Corrector N° : ", u"Corrector N° : "};
constexpr Texte3 TourelleArriere{u"Tourelle Arrière", u"Back Turret", u"Torreta Posterior"};
constexpr Texte3 TourelleAvant{u"Tourelle Avant", u"Front Turret", u"Torreta Antes"};
constexpr Texte3 FermerTitre{u"Fermer le cadran", u"Close the dial", u"Cerrar el cuadrante"};
constexpr Texte3 FermerReste{u"Outils non validés : ", u"Tools not validated: ", u"Herramientas sin validar: "};
constexpr Texte3 FermerTexte{u"\rIls seront écrits avec le rayon 0 et le localisateur 0.\rFermer quand même ?",
                             u"\rThey will be written with radius 0 and locator 0.\rClose all the same ?",
                             u"\rSe escribirán con el radio 0 y el localizador 0.\r¿Cerrar de todos modos?"};

/// A click on a tile of panneau, or on its label, writes its value to saisie.
void EcritAuClic(const QWidget *panneau, QLineEdit *saisie)
{
    const auto boutons = panneau->findChildren<QAbstractButton *>();
    for (const QAbstractButton *bouton : boutons) {
        const QString valeur = bouton->property("valeur").toString();
        QObject::connect(bouton, &QAbstractButton::clicked, saisie, [=] { PoseNombre(saisie, valeur); });
    }
}

} // namespace

JauTour::JauTour(QWidget *parent)
    : DialogueCentre(parent)
{
    setupUi(this);
    AppliqueLegendes(this);
    LimiteNombre(Text1, QStringLiteral("[0-9.]*"), Texte(VirguleRefusee));
    LimiteTouches(Text2, QStringLiteral("[0-9]*"));
    SelectionneAuClic(Text1);
    SelectionneAuClic(Text2);
    // The box holds one digit: the next one takes its place.
    connect(Text2, &QLineEdit::textEdited, Text2, &QLineEdit::selectAll);
    connect(Text2, &QLineEdit::inputRejected, Text2, &QLineEdit::selectAll, Qt::QueuedConnection);
    BrancheTuiles();
    UnClic(Command1);
    connect(Command1, &QPushButton::clicked, this, &JauTour::Command1_Click);
    Form_Activate();
}

void JauTour::BrancheTuiles()
{
    EcritAuClic(Picture21, Text1);
    EcritAuClic(Picture1, Text2);
    EcritAuClic(Picture11, Text2);
    // The labels of the tiles cover the axes, so they take the colour of the window. That of buttons differs on a dark
    // theme.
    for (QToolButton *const legende : findChildren<QToolButton *>())
        legende->setBackgroundRole(QPalette::Window);
    // A round plate has no nose: on the front dial its locator also sets the radius to 0.
    for (const QAbstractButton *bouton : std::initializer_list<QAbstractButton *>{Picture20, Label8})
        connect(bouton, &QAbstractButton::clicked, Text1, [this] { PoseNombre(Text1, QStringLiteral("0")); });
    connect(Text1, &QLineEdit::textChanged, this, &JauTour::DesigneTuiles);
    connect(Text2, &QLineEdit::textChanged, this, &JauTour::DesigneTuiles);
}

void JauTour::Form_Activate()
{
    const bool avant = ParamMac.TypeTourelle == 1;
    Picture1->setVisible(!avant);
    Picture11->setVisible(avant);
    PoseTexte(Label7, avant ? TourelleAvant : TourelleArriere);
    MontreMesure(QStringLiteral("   "));
}

/// Shows the current measure and sets both boxes to 0. intervalle: the blanks between the two parts of the caption.
void JauTour::MontreMesure(const QString &intervalle)
{
    const JaugeOutil &jauge = Jauges.Jauge(OutilCadran);
    PoseTexte(Frame1, OutilTexte,
              QString::number(OutilCadran + jauge.NonLuesAvant) + intervalle + Texte(CorrecteurTexte) +
                  QString::number(jauge.NumCorr));
    MontreDonnee(ValeursMesure, QStringLiteral("X = %1 (%2)    Z = %3")
                                    .arg(TexteReel(jauge.JaugeX), QString(jauge.ModeMesure), TexteReel(jauge.JaugeZ)));
    for (QLineEdit *const saisie : {Text1, Text2})
        PoseNombre(saisie, QStringLiteral("0"));
    DesigneTuiles();
    Text1->setFocus();
    Text1->selectAll();
}

/// Checks the tiles whose values stand in the boxes, whichever way they came there.
void JauTour::DesigneTuiles()
{
    const auto tuiles = findChildren<Tuile *>();
    for (Tuile *tuile : tuiles) {
        const bool estPlaquette = tuile->parentWidget() == Picture21;
        const QString saisi = (estPlaquette ? Text1 : Text2)->text();
        tuile->setChecked(!saisi.isEmpty() && Val(saisi) == Val(tuile->Valeur()));
    }
}

/// Enter goes from the first box to the second, and there validates. Escape does nothing, and Enter held down counts
/// once: either would otherwise leave tools without radius and quadrant, which the machine would use.
void JauTour::keyPressEvent(QKeyEvent *touche)
{
    if (touche->key() == Qt::Key_Escape)
        return;
    if (!EstEntree(*touche) || focusWidget() != Text1) {
        QDialog::keyPressEvent(touche);
        return;
    }
    if (RefuseVirgule(this))
        return;
    Text2->setFocus(Qt::TabFocusReason);
    RetientTouches(this);
}

/// Asks before the close box leaves tools without radius and quadrant.
void JauTour::reject()
{
    if (Confirme(Texte(FermerReste) + QString::number(Jauges.NbJauges - OutilCadran + 1) + Texte(FermerTexte),
                 Boite::Exclamation | Boite::SecondBouton, Texte(FermerTitre)))
        QDialog::reject();
}

void JauTour::Command1_Click()
{
    if (RefuseVirgule(this))
        return;
    JaugeOutil &jauge = Jauges.Jauge(OutilCadran);
    jauge.Rayon = static_cast<float>(Val(Text1->text()));
    jauge.Localisateur = EnEntier(Val(Text2->text()));
    // These quadrants lie on the other side of the spindle axis.
    if (jauge.Localisateur >= 5 && jauge.Localisateur <= 7)
        jauge.JaugeX = -jauge.JaugeX;
    ++OutilCadran;
    if (OutilCadran > Jauges.NbJauges) {
        JauTourFait = true;
        accept();
    } else {
        MontreMesure(QStringLiteral("  "));
        RetientTouches(this);
    }
}
