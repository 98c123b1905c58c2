#include "comconfig/VueProp.h"

#include "comconfig/CheminMontre.h"
#include "comconfig/PortsPC.h"
#include "donnees/ParamCom.h"
#include "donnees/Reglages.h"
#include "locale/Langue.h"
#include "platform/base/Nombres.h"
#include "platform/controles/FiltreTouches.h"
#include "platform/serie/MSComm.h"
#include "ui_Prop.h"

#include <algorithm>
#include <array>

namespace {

using C = ConfigurationCom;
using U = Ui_Prop;
using Boutons = std::array<QRadioButton * U::*, 5>; // unused places are nullptr

constexpr const char16_t *Vitesses[] = {u"110",   u"150",   u"300",    u"600",    u"1200",  u"2400",
                                        u"4800",  u"9600",  u"14400",  u"19200",  u"28800", u"38400",
                                        u"56000", u"57600", u"115200", u"128000", u"256000"};
constexpr const char16_t *BitsDonnees[] = {u"4", u"5", u"6", u"7", u"8"};
constexpr const char16_t *Parites[] = {u"Even", u"Odd", u"None", u"Mark", u"Space"};
constexpr const char16_t *BitsArret[] = {u"1", u"1.5", u"2"};

/// A drop-down list and the field that holds the text of its item. Of a parity the field holds only the first letter.
struct Liste
{
    QComboBox *U::*liste;
    QString C::*champ;
};

constexpr Liste Listes[] = {{&U::cboSpeed, &C::Vitesse},
                            {&U::cboPort, &C::NomPort},
                            {&U::cboDataBits, &C::BitsDonnees},
                            {&U::cboStopBits, &C::BitsArret}};

/// A box for a number, its caption and its field.
struct CaseNombre
{
    QLineEdit *U::*boite;
    QLabel *U::*legende;
    int C::*champ;
};

constexpr CaseNombre CasesNombre[] = {{&U::Text2, &U::Label9, &C::NbCarLecture},
                                      {&U::Text4, &U::Label11, &C::TailleTamponRecep},
                                      {&U::Text5, &U::Label14, &C::TailleTamponEmis},
                                      {&U::Text6, &U::Label15, &C::SeuilRecep},
                                      {&U::Text7, &U::Label16, &C::SeuilEmis}};
constexpr CaseNombre CaseTaille{&U::Text8, &U::Label18, &C::TailleRecep};

constexpr Texte3 TropGrand{u" ne convient pas (32767 au plus).", u" does not fit (32767 at most).",
                           u" no conviene (32767 como máximo)."};

constexpr Boutons FinReception{&U::Option1_0, &U::Option1_1, &U::Option1_2, &U::Option1_3};
constexpr Boutons Envoi{&U::OptionEnvoi_0, &U::OptionEnvoi_1};
constexpr Boutons Taille{&U::OptionTaille_0, &U::OptionTaille_1};

void MontreFinTrans(const Ui::Prop &dialogue, int index)
{
    dialogue.LabelFinTrans->setVisible(index == FinTransAutre);
    dialogue.Command20->setVisible(index == FinTransAutre);
}

void MontreFinLig(const Ui::Prop &dialogue, int index)
{
    dialogue.LabelFinLigne->setVisible(index == FinLigAutre);
    dialogue.Command21->setVisible(index == FinLigAutre);
}

/// Sets the number of characters for each read: one for a reception by characters, the usual number for the other two.
void AccordeLecture(const Ui::Prop &dialogue, int index)
{
    if (index == RecepCaracteres)
        dialogue.Text2->setText(QStringLiteral("1"));
    else if (dialogue.Text2->text() == QLatin1String("1"))
        dialogue.Text2->setText(QStringLiteral("512"));
}

void MontreTaille(const Ui::Prop &dialogue, int index)
{
    dialogue.Label18->setVisible(index == 1);
    dialogue.Text8->setVisible(index == 1);
    if (index == 0)
        dialogue.Text8->setText(QStringLiteral("0"));
}

/// A group of options: the field that takes the number of the selected one (none: it is not stored at once), and the
/// routine that updates the dependent controls.
struct GroupeOptions
{
    Boutons boutons;
    int C::*champ;
    void (*suite)(const Ui::Prop &dialogue, int index);
};

constexpr GroupeOptions Groupes[] = {
    {{&U::optFlow_0, &U::optFlow_1, &U::optFlow_2, &U::optFlow_3}, &C::ControleFlux, nullptr},
    {{&U::optEcho_0, &U::optEcho_1}, &C::Echo, nullptr},
    {{&U::OptFinTrans_0, &U::OptFinTrans_1, &U::OptFinTrans_2}, &C::TypeFinTrans, MontreFinTrans},
    {{&U::OptFinLig_0, &U::OptFinLig_1, &U::OptFinLig_2, &U::OptFinLig_3, &U::OptFinLig_4},
     &C::TypeFinLig,
     MontreFinLig},
    {{&U::OptionNul_0, &U::OptionNul_1}, &C::FiltreNul, nullptr},
    {{&U::OptionRTS_0, &U::OptionRTS_1}, &C::LigneRTS, nullptr},
    {{&U::OptionDRT_0, &U::OptionDRT_1}, &C::LigneDTR, nullptr},
    {{&U::OptionRCP_0, &U::OptionRCP_1, &U::OptionRCP_2}, &C::TypeRecep, AccordeLecture},
    {Taille, nullptr, MontreTaille}};

QRadioButton *Bouton(const Ui::Prop &dialogue, const Boutons &boutons, int index)
{
    const bool present =
        index >= 0 && index < static_cast<int>(boutons.size()) && boutons[static_cast<std::size_t>(index)] != nullptr;
    return present ? dialogue.*boutons[static_cast<std::size_t>(index)] : nullptr;
}

void Selectionne(const Ui::Prop &dialogue, const Boutons &boutons, int index)
{
    if (QRadioButton *const bouton = Bouton(dialogue, boutons, index))
        bouton->setChecked(true);
}

/// The number of the selected option in its group.
int Selection(const Ui::Prop &dialogue, const Boutons &boutons)
{
    int index = 0;
    while (!Bouton(dialogue, boutons, index)->isChecked())
        ++index;
    return index;
}

template <std::size_t N>
void Remplit(QComboBox *liste, const char16_t *const (&articles)[N])
{
    for (const char16_t *const article : articles)
        liste->addItem(QString::fromUtf16(article));
    liste->setCurrentIndex(-1); // nothing selected before the record is shown
}

void MontreArticle(QComboBox *liste, const QString &article)
{
    if (const int place = liste->findText(article, Qt::MatchExactly | Qt::MatchCaseSensitive); place >= 0)
        liste->setCurrentIndex(place);
}

void MontreParite(QComboBox *liste)
{
    for (int i = 0; i < liste->count(); ++i) {
        if (liste->itemText(i).left(1).toLower() == ParamCom.Parite)
            liste->setCurrentIndex(i);
    }
}

/// The number at the beginning of the box's text. Raises Depassement with a message for the operator.
int NombreSaisi(const Ui::Prop &dialogue, const CaseNombre &champ)
{
    const QString saisie = SansBlancs((dialogue.*champ.boite)->text());
    const auto fin = std::find_if_not(saisie.begin(), saisie.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
    const QString chiffres = saisie.left(fin - saisie.begin());
    try {
        return EnEntier(chiffres.toDouble());
    } catch (const Erreur &erreur) {
        throw Erreur(erreur.Numero(), (dialogue.*champ.legende)->text() + u'\r' + chiffres + Texte(TropGrand));
    }
}

/// Reads a box into its field, and shows in the box the number that was read.
void PrendNombre(const Ui::Prop &dialogue, const CaseNombre &champ)
{
    ParamCom.*champ.champ = NombreSaisi(dialogue, champ);
    (dialogue.*champ.boite)->setText(QString::number(ParamCom.*champ.champ));
}

} // namespace

void RemplitListes(const Ui::Prop &dialogue)
{
    for (int port = 1; port <= MSComm::PortMax; ++port)
        dialogue.cboPort->addItem(QStringLiteral("Com%1").arg(port));
    dialogue.cboPort->setCurrentIndex(-1);
    Remplit(dialogue.cboSpeed, Vitesses);
    Remplit(dialogue.cboDataBits, BitsDonnees);
    Remplit(dialogue.cboParity, Parites);
    Remplit(dialogue.cboStopBits, BitsArret);
}

void DecritPorts(const Ui::Prop &dialogue)
{
    for (int i = 0; i < dialogue.cboPort->count(); ++i)
        dialogue.cboPort->setItemData(i, DecritPort(i + 1), Qt::ToolTipRole);
    dialogue.cboPort->setToolTip(dialogue.cboPort->currentData(Qt::ToolTipRole).toString());
}

void BrancheOptions(const Ui::Prop &dialogue)
{
    for (const GroupeOptions &groupe : Groupes) {
        for (int i = 0; QRadioButton *const bouton = Bouton(dialogue, groupe.boutons, i); ++i) {
            const auto choisit = [&dialogue, &groupe, i](bool choisi) {
                if (choisi && groupe.champ != nullptr)
                    ParamCom.*groupe.champ = i;
                if (choisi && groupe.suite != nullptr)
                    groupe.suite(dialogue, i);
            };
            QObject::connect(bouton, &QRadioButton::toggled, bouton, choisit);
            // A click on the selected option counts too: the record may hold a value that no option shows.
            QObject::connect(bouton, &QRadioButton::clicked, bouton, choisit);
        }
        if (groupe.suite != nullptr)
            groupe.suite(dialogue, Selection(dialogue, groupe.boutons));
    }
}

void MontreChoixInitiaux(const Ui::Prop &dialogue)
{
    Selectionne(dialogue, FinReception, 0);
    Selectionne(dialogue, FinReception, ParamCom.FinLigRecep);
    Selectionne(dialogue, Envoi, ParamCom.TypeEnvoi);
}

void ParamDefaut(const Ui::Prop &dialogue)
{
    for (const Liste &liste : Listes)
        MontreArticle(dialogue.*liste.liste, ParamCom.*liste.champ);
    MontreParite(dialogue.cboParity);
    dialogue.LabelDebProg->MontreChaine(ParamCom.LibDebProg, CaracteresDe(ChaineDebut));
    dialogue.LabelFinTrans->MontreChaine(ParamCom.LibFinTrans, CaracteresDe(ChaineTransfert));
    dialogue.LabelFinLigne->MontreChaine(ParamCom.LibFinLig, CaracteresDe(ChaineLigne));
    for (const CaseNombre &champ : CasesNombre)
        MontreEnEntier(dialogue.*champ.boite, QString::number(ParamCom.*champ.champ));
    dialogue.Text3->setText(ParamCom.CarRemplace);
    for (const GroupeOptions &groupe : Groupes) {
        if (groupe.champ != nullptr)
            Selectionne(dialogue, groupe.boutons, ParamCom.*groupe.champ);
    }
    // Reading one character at a time belongs to reception by characters only, even in a record that says otherwise.
    if (ParamCom.TypeRecep == RecepLignes || ParamCom.TypeRecep == RecepFichier)
        AccordeLecture(dialogue, ParamCom.TypeRecep);
    const int fixe = ParamCom.TailleRecep != 0 ? 1 : 0;
    Selectionne(dialogue, Taille, fixe);
    MontreTaille(dialogue, fixe);
    dialogue.Text8->setText(QString::number(ParamCom.TailleRecep));
}

void MontreDossiers(const Ui::Prop &dialogue)
{
    MontreDossier(dialogue.Label8, ParamCom.DosRecep);
    MontreDossier(dialogue.Label17, ParamCom.DosRecep);
    MontreDossier(dialogue.Label10, Reglages.DosJauge);
    dialogue.Label12->setText(Reglages.EditeurCN);
}

std::optional<SaisieRefusee> NombreTropGrand(const Ui::Prop &dialogue, bool aSauver)
{
    QList<CaseNombre> cases(std::begin(CasesNombre), std::end(CasesNombre));
    if (aSauver)
        cases << CaseTaille;
    for (const CaseNombre &champ : std::as_const(cases)) {
        ErreurEnAttente refus;
        Tente(refus, [&] { NombreSaisi(dialogue, champ); });
        if (refus)
            return SaisieRefusee{dialogue.*champ.boite, refus->Description()};
    }
    return std::nullopt;
}

ErreurEnAttente PrendControles(const Ui::Prop &dialogue)
{
    if (dialogue.cboPort->currentIndex() >= 0)
        ParamCom.NumPort = dialogue.cboPort->currentIndex() + 1;
    for (const Liste &liste : Listes) {
        if ((dialogue.*liste.liste)->currentIndex() >= 0)
            ParamCom.*liste.champ = SansBlancs((dialogue.*liste.liste)->currentText());
    }
    if (dialogue.cboParity->currentIndex() >= 0)
        ParamCom.Parite = dialogue.cboParity->currentText().left(1).toLower();
    ParamCom.Commentaire = dialogue.Text1->text();
    ParamCom.CarRemplace = SansBlancs(dialogue.Text3->text());
    ParamCom.DosRecep = dialogue.Label17->text();
    ParamCom.FinLigRecep = Selection(dialogue, FinReception);
    ErreurEnAttente refus;
    for (const CaseNombre &champ : CasesNombre)
        Tente(refus, [&] { PrendNombre(dialogue, champ); });
    return refus;
}

void PrendTransferts(const Ui::Prop &dialogue)
{
    PrendNombre(dialogue, CaseTaille);
    ParamCom.TypeEnvoi = Selection(dialogue, Envoi) == EnvoiLignes ? EnvoiLignes : EnvoiFichier;
}
