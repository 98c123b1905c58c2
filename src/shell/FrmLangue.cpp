#include "shell/FrmLangue.h"

#include "donnees/Reglages.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/base/Erreur.h"
#include "platform/controles/EntreeOptions.h"
#include "platform/controles/Icone.h"
#include "platform/dialogues/Boites.h"

namespace {

constexpr QSize Drapeau(36, 24); // pixels

/// Tells that the language changes at the next start: windows that show another language cannot go back to French, in
/// which they are made.
void AvertitRelance()
{
    if (LangIndex == 0)
        MsgBox(QStringLiteral("Relancer Dorvanel Pro pour prendre en compte les modifications de langue française."),
               Boite::Information, QStringLiteral("Avertissement"));
}

} // namespace

FrmLangue::FrmLangue(QWidget *parent)
    : QDialog(parent)
{
    setupUi(this);
    EntreAuChoix(this);
    const std::pair<QLabel *, const char *> drapeaux[] = {{Image1, "fr"}, {Image2, "en"}, {Image3, "es"}};
    for (const auto &[image, langue] : drapeaux)
        image->setPixmap(Icone(QStringLiteral(":/icones/Drapeau_%1").arg(QLatin1String(langue))).pixmap(Drapeau));
    QRadioButton *const options[] = {Option1, Option2, Option3};
    if (LangIndex >= 0 && LangIndex <= 2)
        options[LangIndex]->setChecked(true);
    connect(Command1, &QPushButton::clicked, this, &FrmLangue::Command1_Click);
}

void FrmLangue::Command1_Click()
{
    IniParDefaut();
    LangIndex = Option3->isChecked() ? 2 : Option2->isChecked() ? 1 : 0;
    Reglages.OptExplorateur = 1;
    AppliqueLangueSysteme(); // for the button of a box
    Q_EMIT LangueChoisie();
    Saute([] {
        SauveIni();
        AvertitRelance();
        MontreLangue();
    });
    AppliqueLangue();
    accept();
}

void Mnu_Lang(int langue)
{
    LangIndex = langue;
    MontreLangue();
    AppliqueLangue();
    Saute([] {
        SauveIni();
        AvertitRelance();
    });
}
