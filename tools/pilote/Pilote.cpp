#include "pilote/Pilote.h"

#include "donnees/Jauge.h"
#include "donnees/Lignes.h"
#include "donnees/ParamCom.h"
#include "donnees/Reglages.h"
#include "donnees/Transfert.h"
#include "machine/Banc.h"
#include "platform/serie/MSComm.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QApplication>
#include <QFileDialog>
#include <QPushButton>

namespace {

constexpr char FinTrans[] = "\x04";
constexpr int Patience = 120'000; // milliseconds before a transfer counts as hung

/// A tool "corrector Z X D" in the gauge file of a mill.
QByteArray LigneD(const QByteArray &outil)
{
    const QByteArrayList champs = outil.split(' ');
    return "D" + champs[0] + " L" + champs[1] + " R" + champs[2] + "\r\n";
}

Charge ChargeBanc(const QByteArrayList &outils)
{
    Charge charge{{}, {}, "%\r\n"};
    Banc banc(outils.join('\n'));
    for (const QByteArray &outil : outils) {
        charge.pieces += banc.Mesure();
        charge.attendu += LigneD(outil);
    }
    return charge;
}

/// A reception by lines takes each line as a piece, since it drops characters that already wait behind one.
Charge ChargeParLignes(const QByteArrayList &lignes)
{
    Charge charge;
    for (const QByteArray &ligne : lignes)
        charge.pieces += ligne + "\r\n";
    charge.attendu = charge.pieces.join() + "\r\n";
    charge.pieces += FinTrans;
    return charge;
}

} // namespace

Charge ChargeDe(Genre genre, const QByteArrayList &lignes)
{
    const QByteArray programme = lignes.join("\r\n");
    switch (genre) {
    case Genre::FichierEntier:
        return {programme, {}, programme + FinTrans};
    case Genre::LigneParLigne:
        return {programme, {}, programme + '\n' + FinTrans};
    case Genre::Caractere:
    case Genre::Ligne:
        return ChargeParLignes(lignes);
    case Genre::Fichier:
        return {{}, {programme + FinTrans}, programme + "\r\n"};
    case Genre::Banc:
        return ChargeBanc(lignes);
    }
    return {};
}

Pilote::Pilote(const Poste &poste)
    : m_poste(poste)
{
    poste.Charge({});
    poste.Ecrit("Fraiseuse.mac", "1\n0\n0\n0\n1\n1000\n1000\n300\ncor\nP\n0");
    Habitude("MsgBox", [this](QWidget &boite) { Lit(dynamic_cast<QMessageBox &>(boite)); });
    Habitude("CommonDialog", [this](QWidget &dialogue) { ChoisitFichier(dialogue); });
    Habitude("Rc_Fic", [this](const QWidget &dialogue) { Nomme(dialogue); });
    Habitude("Em_Rc", [this](QWidget &dialogue) { Transfere(dynamic_cast<QDialog &>(dialogue)); });
}

void Pilote::Regle(Genre genre) const
{
    ParamCom.TypeEnvoi = genre == Genre::FichierEntier ? EnvoiFichier : EnvoiLignes;
    ParamCom.TypeRecep = genre == Genre::Fichier     ? RecepFichier
                         : genre == Genre::Caractere ? RecepCaracteres
                                                     : RecepLignes;
    ParamCom.NbCarLecture = genre == Genre::Caractere ? 1 : 512;
    ParamCom.SeuilRecep = genre == Genre::Fichier ? 1 : 0;
    ParamCom.TypeFinLig = EstEmission(genre) ? FinLigLf : FinLigCrLf;
    ParamCom.TailleRecep = int(Banc::TailleSalve);
    ParamCom.DosRecep = Reglages.DosJauge = m_poste.Dossier();
    BatirChaines();
}

QString Pilote::Chemin(Genre genre) const
{
    return m_poste.Chemin(genre == Genre::Banc ? "PIECE.COR" : "PIECE.ISO");
}

Pilote::Deroulement Pilote::Joue(Genre genre, const Charge &charge, const std::function<void(QDialog &)> &pendant)
{
    m_genre = genre;
    m_pendant = pendant;
    m_charge = charge;
    m_donnees = 0;
    m_deroulement = {};
    m_nomme = m_commence = false;
    if (EstEmission(genre))
        OuvreDocument(m_poste.Ecrit("PIECE.iso", charge.texte));
    m_depuis.start();
    Menu(EstEmission(genre) ? "Mnu_EmisProgCN" : genre == Genre::Banc ? "Mnu_RecepBanc" : "Mnu_RecepProg");
    return m_deroulement;
}

/// True when the program has processed the pieces sent so far.
bool Pilote::Pret(const QDialog &transfert) const
{
    if (!frmPrinc->PortOuvert || m_donnees == 0)
        return frmPrinc->PortOuvert;
    if (m_genre == Genre::Banc)
        return Jauges.NbJauges == m_donnees && transfert.findChild<QWidget *>(QStringLiteral("Command5"))->isEnabled();
    return Pris ? Pris() : !Lignes(static_cast<int>(m_donnees)).isEmpty();
}

void Pilote::Poursuit(const QDialog &transfert, const std::function<void(const QByteArray &)> &envoie)
{
    if (!Pret(transfert))
        return;
    const bool fini = m_donnees == m_charge.pieces.size();
    if (m_genre == Genre::Banc && m_donnees > 0)
        Presse(transfert, fini ? "Command6" : "Command5");
    if (!fini)
        envoie(m_charge.pieces[m_donnees++]);
}

void Pilote::Annule(Genre genre, const QWidget &transfert)
{
    Presse(transfert, genre == Genre::Banc ? "Command4" : "Command1");
}

/// The only box with an exclamation mark is the one that offers to save what was received.
void Pilote::Lit(QMessageBox &boite)
{
    if (boite.icon() != QMessageBox::Question)
        m_deroulement.avis += {boite.windowTitle(), boite.text()};
    const bool oui = boite.icon() == QMessageBox::Question || !Sauvegarde.isEmpty();
    QAbstractButton *bouton = boite.button(oui ? QMessageBox::Yes : QMessageBox::No);
    (bouton ? bouton : boite.button(QMessageBox::Ok))->click();
}

void Pilote::ChoisitFichier(QWidget &dialogue) const
{
    const QString chemin = m_commence ? Sauvegarde : m_poste.Chemin("Fraiseuse.mac");
    dynamic_cast<QFileDialog &>(dialogue).selectFile(chemin); // otherwise the offered file stays selected in the list
    Choisit(dialogue, chemin);
}

/// When the dialog is still open after a transfer, it offers another try.
void Pilote::Nomme(const QWidget &dialogue)
{
    if (m_nomme) {
        Presse(dialogue, "Command1");
        return;
    }
    m_nomme = true;
    Saisit(dialogue, "Text1", "piece");
    Presse(dialogue, "Command2");
}

void Pilote::Transfere(QDialog &dialogue)
{
    if (m_depuis.hasExpired(Patience))
        temoin.echec(QStringLiteral("the transfer hangs"), Lieu::Ici());
    m_commence = m_commence || TransfertEnCours();
    if (TransfertEnCours()) {
        m_pendant(dialogue);
    } else if (m_commence) {
        m_deroulement.statut = Lu("Label2");
        m_deroulement.bilan = Lu("Bilan");
        const auto *const force = dialogue.findChild<QWidget *>(QStringLiteral("Command7"));
        if (force->isVisible() && force->isEnabled())
            temoin.echec(QStringLiteral("an end can be forced that has come"), Lieu::Ici());
        Annule(m_genre, dialogue);
    } else if (EstEmission(m_genre)) {
        m_commence = true;
        Presse(dialogue, "Command2");
    }
}
