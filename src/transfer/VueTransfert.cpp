#include "transfer/VueTransfert.h"

#include "donnees/ParamCom.h"
#include "locale/Legendes.h"
#include "platform/base/PageCode1252.h"
#include "platform/controles/Clavier.h"
#include "platform/controles/CouleurAlerte.h"
#include "platform/dialogues/Boites.h"
#include "ui_Em_Rc.h"

namespace {

constexpr Texte3 Fermer{u"&Fermer", u"&Close", u"&Cerrarse"};

void Echo(QLabel &label, const QString &donnees)
{
    // A program without the line ends of the configuration is one line, and laying it out would hold up its transfer.
    constexpr int place = 2000; // characters, more than the label has room for
    if (VueTransfert::AvecEcho())
        label.setText(ControlesVisibles(donnees.left(place)));
}

void Echo(QLabel &label, const Texte3 &texte, const QString &suite = {})
{
    if (VueTransfert::AvecEcho())
        PoseTexte(&label, texte, suite);
}

} // namespace

VueTransfert::VueTransfert(Ui::Em_Rc &dialogue)
    : m_dialogue(dialogue)
{
}

void VueTransfert::Consigne(const QString &texte)
{
    m_dialogue.Label1->setText(PourAffichage(texte));
}

void VueTransfert::Statut(const Texte3 &texte, const QString &suite)
{
    PoseTexte(m_dialogue.Label2, texte, suite);
}

void VueTransfert::EffaceStatut()
{
    m_dialogue.Label2->clear();
}

bool VueTransfert::AvecEcho()
{
    return ParamCom.Echo == 1;
}

void VueTransfert::MontreEcho()
{
    m_dialogue.Label3->setVisible(AvecEcho());
    m_dialogue.Label4->setVisible(AvecEcho());
}

void VueTransfert::EchoLigne(const QString &donnees)
{
    Echo(*m_dialogue.Label3, donnees);
}

void VueTransfert::EchoLigne(const Texte3 &texte, const QString &suite)
{
    Echo(*m_dialogue.Label3, texte, suite);
}

void VueTransfert::EchoCaractere(const QString &donnees)
{
    Echo(*m_dialogue.Label4, donnees);
}

void VueTransfert::EchoCaractere(const Texte3 &texte)
{
    Echo(*m_dialogue.Label4, texte);
}

void VueTransfert::Progression(int fait, int total, const QString &texte)
{
    m_dialogue.Progression->setRange(0, total);
    m_dialogue.Progression->setValue(fait);
    m_dialogue.Progression->setFormat(texte);
    m_dialogue.Progression->show();
}

void VueTransfert::CacheProgression()
{
    m_dialogue.Progression->hide();
}

void VueTransfert::Bilan(const QString &texte, bool alerte)
{
    QPalette palette;
    if (alerte)
        palette.setColor(QPalette::WindowText, CouleurAlerte());
    m_dialogue.Bilan->setPalette(palette);
    m_dialogue.Bilan->setText(texte);
    m_dialogue.BilanSigne->setVisible(alerte);
}

QString VueTransfert::CoupePourBilan(const QString &texte, const QString &voisin, Qt::TextElideMode ou) const
{
    const QFontMetrics police = m_dialogue.Bilan->fontMetrics();
    const int place = m_dialogue.Bilan->contentsRect().width() - police.horizontalAdvance(voisin);
    return police.elidedText(texte, ou, place);
}

void VueTransfert::DebuteEmission()
{
    m_dialogue.Frame2->hide();
    EffaceStatut();
    m_dialogue.Label3->clear();
    m_dialogue.Label3->setVisible(AvecEcho());
    m_dialogue.Label4->hide(); // a sending has no echo of single characters
}

void VueTransfert::PermetSuite(bool permis)
{
    // The focus of a button that is disabled passes to the next one, which cancels: a second stroke of the space bar
    // would throw the session away. It would pass there too when the dialog has no focus and comes back to the front.
    QWidget *const fenetre = m_dialogue.Frame4->window();
    fenetre->setFocus();
    m_dialogue.Command5->setEnabled(permis);
    m_dialogue.Command6->setEnabled(permis);
    if (!permis)
        return;
    m_dialogue.Command5->setFocus();
    RetientTouches(fenetre);
}

void VueTransfert::OffreFermer()
{
    PoseTexte(m_dialogue.Command1, Fermer);
}

void VueTransfert::OffreFermerBanc()
{
    PoseTexte(m_dialogue.Command4, Fermer);
}

QString VueTransfert::Titre() const
{
    return m_dialogue.Bilan->window()->windowTitle();
}
