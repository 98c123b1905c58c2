#include "gauges/ConfMac.h"

#include "donnees/ParamMac.h"
#include "gauges/ChoixMac.h"
#include "gauges/Virgule.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/base/Erreur.h"
#include "platform/base/Nombres.h"
#include "platform/controles/EntreeOptions.h"
#include "platform/controles/FiltreTouches.h"
#include "platform/controles/GardePlaces.h"
#include "platform/dialogues/Boites.h"
#include "shell/NomsPerdus.h"

namespace {

constexpr Texte3 PrefixeTitre{u"Configuration machine : ", u"Configuration machine : ", u"Configuración máquina : "};

constexpr Texte3 Extension{
    u"L'extension contient des signes interdits dans un nom de fichier :  %1\r"
    u"La changer avant de recevoir des mesures : le fichier de jauges risque de ne pas se créer.",
    u"The extension holds signs that a file name must not have:  %1\r"
    u"Change it before measures are received: the gauge file may not come about.",
    u"La extensión contiene signos prohibidos en un nombre de fichero:  %1\r"
    u"Cambiarla antes de recibir medidas: el fichero de correctores puede no crearse."};

/// The characters of nom that a file name cannot have on every system, each once.
QStringList SignesInterdits(const QString &nom)
{
    QStringList signes;
    for (const QChar signe : nom)
        if (QStringView(u"/\\:*?\"<>|").contains(signe) && !signes.contains(signe))
            signes << signe;
    return signes;
}

/// A pair of option buttons and the field that holds the one chosen.
struct Options
{
    QRadioButton *Ui::ConfMac::*boutons[2];
    int ConfigurationMac::*champ;
};

constexpr Options ToutesOptions[] = {
    {{&Ui::ConfMac::OptMac_0, &Ui::ConfMac::OptMac_1}, &ConfigurationMac::TypeMachine},
    {{&Ui::ConfMac::OptTour_0, &Ui::ConfMac::OptTour_1}, &ConfigurationMac::TypeTourelle},
    {{&Ui::ConfMac::OptJauge_0, &Ui::ConfMac::OptJauge_1}, &ConfigurationMac::TypeJauge},
    {{&Ui::ConfMac::OptionX_0, &Ui::ConfMac::OptionX_1}, &ConfigurationMac::ModeX},
    {{&Ui::ConfMac::OptionRAZ_0, &Ui::ConfMac::OptionRAZ_1}, &ConfigurationMac::RazDynamique},
};

/// A box that takes a number in mm, and its field.
struct Longueur
{
    QLineEdit *Ui::ConfMac::*saisie;
    double ConfigurationMac::*champ;
};

constexpr Longueur Longueurs[] = {{&Ui::ConfMac::Text4, &ConfigurationMac::DiffPoches},
                                  {&Ui::ConfMac::Text1, &ConfigurationMac::JaugeMaxiX},
                                  {&Ui::ConfMac::Text2, &ConfigurationMac::JaugeMaxiZ}};

} // namespace

ConfMac::ConfMac(QWidget *parent, const QString &chemin)
    : DialogueCentre(parent)
    , m_chemin(chemin)
{
    setupUi(this);
    AppliqueLegendes(this);
    EntreAuChoix(this);
    GardePlaces({Frame2, Label6, Text6, Frame7});
    for (const Longueur &longueur : Longueurs)
        LimiteNombre(this->*longueur.saisie, QStringLiteral("[-.0-9]*"), Texte(VirguleRefusee));
    LimiteTouches(Text3, QStringLiteral("[0-9]*"));
    for (QLineEdit *const saisie : {Text1, Text2, Text3, Text4})
        SelectionneAuClic(saisie);
    Form_Load();
    BrancheOptions();
    connect(Command1, &QPushButton::clicked, this, &ConfMac::reject);
    connect(Command2, &QPushButton::clicked, this, &ConfMac::Command2_Click);
}

void ConfMac::Form_Load()
{
    for (const Options &options : ToutesOptions) {
        const int choix = ParamMac.*options.champ;
        if (choix == 0 || choix == 1)
            (this->*options.boutons[choix])->setChecked(true);
    }
    MontreSelonChoix();
    MontreTextes();
    MontreNom();
}

void ConfMac::BrancheOptions()
{
    for (const Options &options : ToutesOptions) {
        for (const int choix : {0, 1})
            connect(this->*options.boutons[choix], &QRadioButton::clicked, this, [=, this] {
                ParamMac.*options.champ = choix;
                MontreSelonChoix();
            });
    }
}

void ConfMac::MontreSelonChoix()
{
    Frame2->setVisible(ParamMac.EstTour());
    for (QWidget *controle : std::initializer_list<QWidget *>{Label6, Text6, Frame7})
        controle->setVisible(ParamMac.EnParametresE());
}

void ConfMac::MontreTextes()
{
    for (const Longueur &longueur : Longueurs)
        MontreEnEntier(this->*longueur.saisie, TexteDouble(ParamMac.*longueur.champ));
    MontreEnEntier(Text3, QString::number(ParamMac.NbCorrecteurs));
    MontreEnEntier(Text5, ParamMac.ExtJauge);
    MontreEnEntier(Text6, ParamMac.NumProgJauge);
}

void ConfMac::PrendTextes()
{
    for (const Longueur &longueur : Longueurs)
        ParamMac.*longueur.champ = Val((this->*longueur.saisie)->text());
    ParamMac.NbCorrecteurs = CorrecteursTenus(EnEntier(Val(Text3->text())));
    ParamMac.ExtJauge = SansBlancs(Text5->text()).toUpper();
    ParamMac.NumProgJauge = SansBlancs(Text6->text());
}

void ConfMac::MontreNom()
{
    if (!m_chemin.isEmpty())
        PoseTexte(this, PrefixeTitre, ParamMac.NomMac);
}

/// Warns of an extension that file names cannot have. The box takes any character, and the fault would otherwise be
/// seen only when the gauges are written.
void ConfMac::AnnonceExtension()
{
    if (const QStringList signes = SignesInterdits(ParamMac.ExtJauge); !signes.isEmpty())
        MsgBox(Texte(Extension).arg(signes.join(u' ')), Boite::Exclamation, windowTitle());
}

void ConfMac::Command2_Click()
{
    if (RefuseVirgule(this))
        return;
    PrendTextes();
    MontreTextes(); // the values as they are held now
    try {
        const QString saisie = ParamMac.ExtJauge + ParamMac.NumProgJauge;
        DemandeNomMac(m_chemin);
        EcritMac(ParamMac.NomCompletMac);
        LitMac(ParamMac.NomCompletMac); // shows what the file holds: a double quote has become an apostrophe
        MontreTextes();
        m_chemin = ParamMac.NomCompletMac;
        MontreNom();
        AnnonceSaisiePerdue(saisie, windowTitle());
        AnnonceExtension();
    } catch (const Erreur &) {
        // Cancelled or not written: the dialog stays open and keeps the name of its former file.
    }
}
