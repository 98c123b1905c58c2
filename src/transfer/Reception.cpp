#include "transfer/Reception.h"

#include "comconfig/ParamCom.h"
#include "gauges/Lignes.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "platform/Boites.h"
#include "platform/CedeLaMain.h"
#include "platform/Erreur.h"
#include "platform/FichierTexte.h"
#include "platform/MSComm.h"
#include "platform/Nombres.h"
#include "platform/PageCode1252.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "transfer/EvenementsCom.h"
#include "transfer/FichierRecu.h"
#include "transfer/PortCom.h"
#include "transfer/Transfert.h"
#include "ui_Em_Rc.h"

namespace {

constexpr Texte3 CarParCar{u"Réception caractère par caractère", u"Receiving character by character",
                           u"Recepción carácter por carácter"};
constexpr Texte3 ParLigne{u"Réception par ligne", u"Receiving by line", u"Recepción por línea"};
constexpr Texte3 EnAttente{u"En attente de réception", u"On standby of receiving", u"En espera de recepción"};
constexpr Texte3 FinDetectee{u"Fin de transfert détectée !", u"End of transfer detected !",
                             u"Final de transferencia detectado !"};
constexpr Texte3 Reussi{u"Transfert réalisé avec succès !", u"Transfer carried out successfully !",
                        u"Transferencia realizada con éxito !"};
constexpr Texte3 Fermer{u"&Fermer", u"&Close", u"&Cerrarse"};
constexpr Texte3 TropDeLignes{u"La réception dépasse 25000 lignes.", u"The reception exceeds 25000 lines.",
                              u"La recepción sobrepasa 25000 líneas."};

/// The label of a line end: what stands before the number and behind it.
struct TexteLigne
{
    Texte3 avant;
    Texte3 apres;
};

// Reception by line has no blank of its own before the number.
constexpr TexteLigne FinLigneCar{{u"Fin de ligne ", u"End of line ", u"Final de línea "},
                                 {u" détectée", u" detected", u" detectada"}};
constexpr TexteLigne FinLigneLigne{{u"Fin de ligne", u"End of line", u"Final de línea"},
                                   {u" détectée", u" detected", u" detectada"}};

namespace Fichier {
constexpr Texte3 Attente3{u"En attente de réception...", u"On standby of receiving...", u"En espera de recepción..."};
constexpr Texte3 Attente4{u"Réception jusqu'à caractère de fin de transfert...",
                          u"Receiving until character of end of transfer...",
                          u"Recepción hasta carácter de final de transferencia..."};
constexpr Texte3 Termine3{u"Réception terminée...", u"Finished receiving...", u"Recepción terminada..."};
constexpr Texte3 Termine4{u"Caractère de fin de transfert détecté...", u"Character of end of detected transfer...",
                          u"Carácter de final de transferencia detectada..."};
constexpr Texte3 BoiteAnnulation{u"Bouton Annuler cliqué", u"Button Cancel Clicked", u"Botón cancelar pulsado"};
constexpr Texte3 Annule2{u"Transfert annulé !", u"Cancelled transfer !", u"Transferencia cancelada !"};
constexpr Texte3 Annule3{u"Réception annulée...", u"Cancelled receiving...", u"Recepción cancelada..."};
} // namespace Fichier

/// The line ends that the operator can choose for received lines.
const QString FinsRecep[] = {QString(), QStringLiteral("\n"), QStringLiteral("\r"), QStringLiteral("\r\n")};

MSComm &Controle()
{
    return *frmPrinc->MSComm1;
}

void MontreEcho(Ui::Em_Rc &dialogue)
{
    dialogue.Label3->setVisible(ParamCom.Echo == 1);
    dialogue.Label4->setVisible(ParamCom.Echo == 1);
}

void ChoisitFinLigne()
{
    ChaineFinLigRecep = FinsRecep[OptionFinLig];
}

/// A reception that fills Lignes: the table with its counter, and the steps that both kinds share.
class ReceptionLignes
{
public:
    explicit ReceptionLignes(Ui::Em_Rc &dialogue)
        : m_dialogue(dialogue)
    {
    }

    /// genre: what Label4 says of the way of receiving.
    void Commence(const Texte3 &genre);

    /// Puts Ligne, with fin behind it, into the table and empties it. Raises IndiceHorsPlage beyond the table.
    void Range(const QString &fin = QString());
    void MontreFinLigne(const TexteLigne &texte);
    void MontreEcho(const QString &ligne, const QString &lu);
    void Suivante() { ++m_compteur; }

    /// The machine gets its end string back, the port closes, and the file is written and stands in the pane.
    void Termine();

    /// All that has been received, an unfinished line included.
    QString Recu() const;

    QString Ligne; ///< what has come of the line under way

private:
    Ui::Em_Rc &m_dialogue;
    int m_compteur = 1;
};

void ReceptionLignes::Commence(const Texte3 &genre)
{
    ForceRECEPT = 0;
    ::MontreEcho(m_dialogue);
    if (ParamCom.Echo == 1)
        PoseTexte(m_dialogue.Label4, genre);
    FinTransfert = 0;
    AnnuleRECEPT = 0;
    VideLignes();
    OuvrePortCOM();
    PoseTexte(m_dialogue.Label2, EnAttente);
}

void ReceptionLignes::Range(const QString &fin)
{
    if (m_compteur > CapaciteLignes)
        throw Erreur(Erreur::IndiceHorsPlage, Texte(TropDeLignes));
    Lignes[static_cast<std::size_t>(m_compteur)] = Ligne + fin;
    Ligne.clear();
}

void ReceptionLignes::MontreFinLigne(const TexteLigne &texte)
{
    PoseTexte(m_dialogue.Label2, texte.avant, TexteNombre(m_compteur) + Texte(texte.apres));
}

void ReceptionLignes::MontreEcho(const QString &ligne, const QString &lu)
{
    if (ParamCom.Echo != 1)
        return;
    m_dialogue.Label3->setText(ControlesVisibles(ligne));
    m_dialogue.Label4->setText(ControlesVisibles(lu.right(ParamCom.ChaineFinLig.size())));
}

void ReceptionLignes::Termine()
{
    Controle().ViderReception();
    FinTransfert = 1;
    NbLignes = m_compteur;
    if (Controle().PortOpen()) {
        frmPrinc->shpSend->setFillColor(Lampe::Verte);
        Controle().Output(ParamCom.ChaineFinTrans);
        PoseTexte(m_dialogue.Label2, FinDetectee);
    }
    Controle().ViderEmission();
    FermePortCOM(m_dialogue);
    frmPrinc->shpSend->setFillColor(Lampe::Rouge);
    frmPrinc->shpReceive->setFillColor(Lampe::Rouge);
    PoseTexte(m_dialogue.Label2, Reussi);

    Ligne.clear();
    EcritFichierTexte(CheminRecep(), Recu() + QStringLiteral("\r\n"));
    OuvreFichierRecu();
    if (FinTransfert == 1) {
        PoseTexte(m_dialogue.Label2, Reussi);
        m_dialogue.Command1->setText(Texte(Fermer));
    }
}

QString ReceptionLignes::Recu() const
{
    QString texte;
    for (int i = 1; i < m_compteur; ++i)
        texte += Lignes[static_cast<std::size_t>(i)] + QStringLiteral("\r\n");
    return texte + Ligne;
}

/// What a character that ends a line, or belongs to its end, does to the line.
enum class EffetFinLigne { Aucun, Avale, Termine };

EffetFinLigne Effet(const QString &car)
{
    // Of a line end of several characters the last one ends the line; the order on the line is not looked at.
    const QString fins[] = {ParamCom.ChaineFinLig, ParamCom.ChaineFinLig, QStringLiteral("\n\r"),
                            QStringLiteral("\r\n"), ChaineCarFinLig()};
    if (ParamCom.TypeFinLig < 0 || ParamCom.TypeFinLig >= static_cast<int>(std::size(fins)))
        return EffetFinLigne::Aucun;
    const QString &fin = fins[ParamCom.TypeFinLig];
    if (!fin.contains(car))
        return EffetFinLigne::Aucun;
    return fin.endsWith(car) ? EffetFinLigne::Termine : EffetFinLigne::Avale;
}

/// Reads of one character, whatever NbCarLecture says: the tests compare a read with single characters.
class LectureParCaractere
{
public:
    LectureParCaractere() { Controle().setInputLen(1); }
    ~LectureParCaractere() { Controle().setInputLen(ParamCom.NbCarLecture); }
    LectureParCaractere(const LectureParCaractere &) = delete;
    LectureParCaractere &operator=(const LectureParCaractere &) = delete;
};

/// Waits for the next character; an empty one when the operator has cancelled or forced the end.
QString AttendCaractere()
{
    QString car;
    do {
        CedeLaMain();
        if (Controle().PortOpen())
            car = Controle().Input();
    } while (car.isEmpty() && AnnuleRECEPT != 1 && ForceRECEPT != 1);
    return car;
}

void RecoitCaracteres(ReceptionLignes &reception)
{
    const LectureParCaractere lecture;
    while (true) {
        QString car = AttendCaractere();
        if (AnnuleRECEPT == 1)
            return;
        frmPrinc->shpReceive->setFillColor(Lampe::Verte);
        const EffetFinLigne effet = car.isEmpty() ? EffetFinLigne::Aucun : Effet(car);
        if (effet != EffetFinLigne::Aucun)
            car.clear();
        if (effet == EffetFinLigne::Termine) {
            reception.Range();
            reception.MontreFinLigne(FinLigneCar);
            reception.Suivante();
            Controle().ViderReception();
        }
        if (car == ParamCom.ChaineFinTrans)
            return reception.Termine();
        reception.Ligne += car;
        reception.MontreEcho(reception.Ligne, car);
        if (ForceRECEPT == 1)
            return reception.Termine();
    }
}

/// Reads until the buffer ends with a line end or the end of transfer, or the operator ends the wait.
void AttendLigne(QString &recu)
{
    do {
        CedeLaMain();
        if (!Controle().PortOpen())
            continue;
        recu += Controle().Input();
        frmPrinc->shpReceive->setFillColor(recu.isEmpty() ? Lampe::Rouge : Lampe::Verte);
    } while (!recu.endsWith(ParamCom.ChaineFinTrans) && !recu.endsWith(ParamCom.ChaineFinLig) && AnnuleRECEPT != 1 &&
             ForceRECEPT != 1);
}

void RecoitLignes(ReceptionLignes &reception)
{
    QString &recu = reception.Ligne;
    while (true) {
        AttendLigne(recu);
        if (AnnuleRECEPT == 1)
            return;
        if (ForceRECEPT == 1)
            return reception.Termine();
        reception.MontreEcho(recu, recu);
        // The end of transfer counts only when it stands alone in the buffer.
        if (recu == ParamCom.ChaineFinTrans)
            return reception.Termine();
        if (recu.isEmpty())
            continue;
        recu.chop(ParamCom.ChaineFinLig.size());
        reception.Range(ChaineFinLigRecep);
        Controle().ViderReception();
        reception.Suivante();
        reception.MontreFinLigne(FinLigneLigne);
    }
}

void Recoit(Ui::Em_Rc &dialogue, const Texte3 &genre, void (*corps)(ReceptionLignes &))
{
    ReceptionLignes reception(dialogue);
    try {
        reception.Commence(genre);
        corps(reception);
    } catch (const Erreur &erreur) {
        ErreurPortCOM(erreur, dialogue);
        SauveAilleurs(reception.Recu());
    }
}

// ---- Reception of a file until its end

void PrepareFichier(Ui::Em_Rc &dialogue)
{
    ForceRECEPT = 0;
    ChoisitFinLigne();
    frmPrinc->Text2->setText(QString());
    MontreEcho(dialogue);
    frmPrinc->Text2->setVisible(ParamCom.Echo == 1);
    if (ParamCom.Echo == 1) {
        PoseTexte(dialogue.Label3, Fichier::Attente3);
        PoseTexte(dialogue.Label4, Fichier::Attente4);
    }
    FinTransfert = 0;
    AnnuleRECEPT = 0;
    OuvrePortCOM();
    PoseTexte(dialogue.Label2, EnAttente);
}

void PrendCeQuiAttend()
{
    Saute([] {
        for (QString recu = Controle().Input(); !recu.isEmpty(); recu = Controle().Input())
            frmPrinc->Text2->Ajoute(recu);
    });
}

/// The events gather the text inside this wait's yield, perhaps for the whole of the reception.
void AttendFichier(Ui::Em_Rc &dialogue)
{
    const EcouteFichier ecoute(dialogue);
    do {
        CedeLaMain();
        if (ForceRECEPT == 1) {
            PrendCeQuiAttend(); // too little to raise an event
            Controle().ViderReception();
            FinTransfert = 1;
        } else if (Controle().PortOpen()) {
            Controle().OutBufferCount(); // raises when the device has gone
        }
    } while (FinTransfert != 1 && AnnuleRECEPT != 1);
}

void TermineFichier(Ui::Em_Rc &dialogue)
{
    if (Controle().PortOpen()) {
        frmPrinc->shpSend->setFillColor(Lampe::Verte);
        Controle().Output(ParamCom.ChaineFinTrans);
        PoseTexte(dialogue.Label2, FinDetectee);
    }
    if (ParamCom.Echo == 1) {
        PoseTexte(dialogue.Label3, Fichier::Termine3);
        PoseTexte(dialogue.Label4, Fichier::Termine4);
    }
    Controle().ViderEmission();
    FermePortCOM(dialogue);
    frmPrinc->Text2->hide();
    frmPrinc->shpSend->setFillColor(Lampe::Rouge);
    frmPrinc->shpReceive->setFillColor(Lampe::Rouge);
    PoseTexte(dialogue.Label2, Reussi);
    const QString texte = frmPrinc->Text2->Text();
    frmPrinc->Text1->setText(texte);
    EcritFichierTexte(CheminRecep(), texte + QStringLiteral("\r\n"));
    TitreFenetre(NomFicRecep);
    MontreDonnee(frmPrinc->Label2, NomFicRecep);
    FichierModifie = 0;
}

void AnnuleFichier(Ui::Em_Rc &dialogue)
{
    MsgBox(QStringLiteral("AnnuleRECEPT% = 1"), 0, Texte(Fichier::BoiteAnnulation));
    if (Controle().PortOpen())
        Controle().ViderEmission();
    FermePortCOM(dialogue);
    PoseTexte(dialogue.Label2, Fichier::Annule2);
    frmPrinc->Text2->setText(QString());
    frmPrinc->Text2->hide();
    if (ParamCom.Echo != 1)
        return;
    PoseTexte(dialogue.Label3, Fichier::Annule3);
    dialogue.Label4->setText(QStringLiteral("..."));
}

} // namespace

void ReceptionCar(Ui::Em_Rc &dialogue)
{
    Recoit(dialogue, CarParCar, RecoitCaracteres);
}

void ReceptionLigne(Ui::Em_Rc &dialogue)
{
    ChoisitFinLigne();
    Recoit(dialogue, ParLigne, RecoitLignes);
}

void ReceptionFichier(Ui::Em_Rc &dialogue)
{
    try {
        PrepareFichier(dialogue);
        AttendFichier(dialogue);
        if (AnnuleRECEPT == 1)
            AnnuleFichier(dialogue);
        else
            TermineFichier(dialogue);
    } catch (const Erreur &erreur) {
        PrendCeQuiAttend();
        ErreurPortCOM(erreur, dialogue);
        SauveAilleurs(frmPrinc->Text2->Text());
    }
}
