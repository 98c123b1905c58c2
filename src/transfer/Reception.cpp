#include "transfer/Reception.h"

#include "donnees/Lignes.h"
#include "donnees/ParamCom.h"
#include "donnees/Transfert.h"
#include "locale/Langue.h"
#include "platform/base/CedeLaMain.h"
#include "platform/base/Erreur.h"
#include "platform/base/Nombres.h"
#include "platform/serie/MSComm.h"
#include "shell/FrmPrinc.h"
#include "shell/SauvegardeAuto.h"
#include "transfer/Bilan.h"
#include "transfer/EtapesReception.h"
#include "transfer/FichierRecu.h"
#include "transfer/PortCom.h"
#include "transfer/RythmeAffichage.h"
#include "transfer/TextesReception.h"
#include "transfer/VueTransfert.h"

namespace {

constexpr Texte3 TropDeLignes{u"La réception dépasse 25000 lignes.", u"The reception exceeds 25000 lines.",
                              u"La recepción sobrepasa 25000 líneas."};

/// The status at a line end: the texts before and behind the number.
struct TexteLigne
{
    Texte3 avant;
    Texte3 apres;
    int suivante; ///< 1: the number is that of the next line
};

// The text of the reception by line has no blank of its own before the number.
constexpr TexteLigne FinLigneCar{
    {u"Fin de ligne ", u"End of line ", u"Final de línea "}, {u" détectée", u" detected", u" detectada"}, 0};
constexpr TexteLigne FinLigneLigne{
    {u"Fin de ligne", u"End of line", u"Final de línea"}, {u" détectée", u" detected", u" detectada"}, 1};

/// The table Lignes as a reception fills it: its counter, and the steps that both ways of filling it share.
class Remplissage
{
public:
    explicit Remplissage(VueTransfert &vue)
        : m_vue(vue)
    {
    }

    /// Puts Ligne, with fin behind it, into the table, and begins the next line.
    void Range(const QString &fin = QString());
    /// Raises IndiceHorsPlage when the table is full.
    void ExigePlace() const;
    void MontreFinLigne(const TexteLigne &texte);
    void MontreEcho(const QString &ligne, const QString &lu);
    /// True if the echo of a character can be left out: further characters wait, and the last echo has only just been
    /// drawn.
    bool EchoSuperflu();
    /// To be called at each turn of a wait, with what was read. Losses are shown when the line is silent: drawing takes
    /// time, in which further characters would gather behind the next line end and be lost too.
    void Guette(const QString &lu);

    /// Sends the machine its end-of-transfer string, closes the port, writes the file and opens it in the pane.
    void Termine();

    /// Same as NotePerte(), for Ligne. A forced end drops it even where whole lines stand in it.
    void NoteLignePerdue() const;
    /// Cuts as many characters from Ligne as a line end has. If an end of transfer that came together with a line has
    /// ended the wait, these are characters of that line, and count as lost.
    void RetireFinLigne();

    /// All that has been received: also an unfinished line, and what waits in an open port.
    QString Recu() const;

    QString Ligne; ///< what has come of the line under way

private:
    VueTransfert &m_vue;
    int m_compteur = 1;        // the line under way
    RythmeAffichage m_rythme;  // of the echo
    RythmeAffichage m_silence; // since the last character
};

void Remplissage::Range(const QString &fin)
{
    Lignes(m_compteur) = Ligne + fin;
    Ligne.clear();
    ++m_compteur;
}

void Remplissage::ExigePlace() const
{
    if (m_compteur > CapaciteLignes)
        throw Erreur(Erreur::IndiceHorsPlage, Texte(TropDeLignes));
}

void Remplissage::MontreFinLigne(const TexteLigne &texte)
{
    m_vue.Statut(texte.avant, TexteNombre(m_compteur - 1 + texte.suivante) + Texte(texte.apres));
}

void Remplissage::MontreEcho(const QString &ligne, const QString &lu)
{
    m_vue.EchoLigne(ligne);
    m_vue.EchoCaractere(lu.right(ParamCom.ChaineFinLig.size()));
}

void Remplissage::Guette(const QString &lu)
{
    if (!lu.isEmpty())
        m_silence.Note();
    else if (m_silence.Permet())
        MontreNouvellesPertes(m_vue);
}

bool Remplissage::EchoSuperflu()
{
    if (!m_rythme.Permet() && Controle().PortOpen() && Controle().InBufferCount() > 0)
        return true;
    m_rythme.Note();
    return false;
}

void Remplissage::Termine()
{
    const QString reste = Controle().VideReception();
    NotePerte(Transfert.ForceRECEPT ? Perte::FinForcee : Perte::ApresFin, reste);
    NoteLignePerdue();
    Transfert.FinTransfert = true;
    Lignes.NbLignes = m_compteur;
    RendFinTransfert(m_vue);
    AcheveReception(m_vue);
    Ligne.clear();
    EcritFichierRecu(Recu());
    MontreBilan(m_vue, Issue::Recu, AlerteVide(Recu()));
    OuvreFichierRecu();
    if (Transfert.FinTransfert)
        m_vue.OffreFermer();
}

QString Remplissage::Recu() const
{
    QString texte;
    for (int i = 1; i < m_compteur; ++i)
        texte += Lignes(i) + QStringLiteral("\r\n");
    return texte + Ligne + ResteRecu();
}

void Remplissage::NoteLignePerdue() const
{
    const qsizetype fin = Transfert.ForceRECEPT ? Ligne.lastIndexOf(ParamCom.ChaineFinLig) : -1;
    const qsizetype entieres = fin < 0 ? 0 : fin + ParamCom.ChaineFinLig.size();
    NotePerte(Perte::FinForcee, Ligne.left(entieres));
    NotePerte(Perte::SansFin, Ligne.mid(entieres));
}

void Remplissage::RetireFinLigne()
{
    ChercheFinCollee(Ligne, m_compteur == 1);
    const QString coupe = Ligne.right(ParamCom.ChaineFinLig.size());
    Ligne.chop(coupe.size());
    if (coupe != ParamCom.ChaineFinLig)
        NotePerte(Perte::SansFin, coupe);
}

/// What a character that ends a line, or belongs to its end, does to the line.
enum class EffetFinLigne { Aucun, Avale, Termine };

/// The characters that end a line, as the character reception looks for them.
QString FinLigneCherchee()
{
    const bool plusieurs = ParamCom.TypeFinLig >= FinLigLfCr && ParamCom.TypeFinLig <= FinLigAutre;
    return plusieurs ? CaracteresFinLigne(static_cast<TypeFinLigne>(ParamCom.TypeFinLig)) : ParamCom.ChaineFinLig;
}

/// In a line end of several characters the last one ends the line, and the others are swallowed, in whatever order they
/// come.
EffetFinLigne Effet(const QString &car, const QString &fin)
{
    const bool unSeul = ParamCom.TypeFinLig == FinLigLf || ParamCom.TypeFinLig == FinLigCr;
    if (car.isEmpty() || (unSeul ? car != fin : !fin.contains(car)))
        return EffetFinLigne::Aucun;
    return fin.endsWith(car) ? EffetFinLigne::Termine : EffetFinLigne::Avale;
}

/// While it lives, Input() gives one character at a time, whatever NbCarLecture says: Effet() looks at single
/// characters.
class LectureParCaractere
{
public:
    LectureParCaractere() { Controle().setInputLen(1); }
    ~LectureParCaractere() { Controle().setInputLen(ParamCom.NbCarLecture); }
    LectureParCaractere(const LectureParCaractere &) = delete;
    LectureParCaractere &operator=(const LectureParCaractere &) = delete;
};

/// Waits for the next character. Returns an empty text when the operator has cancelled or forced the end.
QString AttendCaractere(Remplissage &table)
{
    QString car;
    do {
        CedeLaMain();
        if (Controle().PortOpen())
            car = Controle().Input();
        table.Guette(car);
    } while (car.isEmpty() && !Transfert.AnnuleRECEPT && !Transfert.ForceRECEPT);
    return car;
}

void EmplitParCaractere(Remplissage &table)
{
    const LectureParCaractere lecture;
    const QString fin = FinLigneCherchee();
    QString dernier;
    while (true) {
        QString car = AttendCaractere(table);
        if (Transfert.AnnuleRECEPT)
            return;
        frmPrinc->shpReceive->setFillColor(Lampe::Verte);
        const EffetFinLigne effet = Effet(car, fin);
        if (effet != EffetFinLigne::Aucun)
            car.clear();
        if (effet == EffetFinLigne::Termine) {
            table.Range();
            table.MontreFinLigne(FinLigneCar);
            table.ExigePlace();
            NotePerte(Perte::Jetes, Controle().VideReception());
        }
        const bool fini = car == ParamCom.ChaineFinTrans;
        if (!fini) {
            table.Ligne += car;
            dernier = car;
        }
        if (fini || Transfert.ForceRECEPT || !table.EchoSuperflu())
            table.MontreEcho(table.Ligne, dernier);
        if (fini || Transfert.ForceRECEPT)
            return table.Termine();
    }
}

/// Reads until the line under way ends with a line end or the end of transfer, or the operator ends the wait.
void AttendLigne(Remplissage &table)
{
    QString &recu = table.Ligne;
    do {
        CedeLaMain();
        if (!Controle().PortOpen())
            continue;
        const QString lu = Controle().Input();
        recu += lu;
        table.Guette(lu);
        frmPrinc->shpReceive->setFillColor(recu.isEmpty() ? Lampe::Rouge : Lampe::Verte);
    } while (!recu.endsWith(ParamCom.ChaineFinTrans) && !recu.endsWith(ParamCom.ChaineFinLig) &&
             !Transfert.AnnuleRECEPT && !Transfert.ForceRECEPT);
}

void EmplitParLigne(Remplissage &table)
{
    QString &recu = table.Ligne; // what was read since the last line
    while (true) {
        AttendLigne(table);
        if (Transfert.AnnuleRECEPT)
            return;
        if (Transfert.ForceRECEPT)
            return table.Termine();
        table.MontreEcho(recu, recu);
        // The end of transfer counts only when it stands alone in the buffer.
        if (recu == ParamCom.ChaineFinTrans) {
            recu.clear();
            return table.Termine();
        }
        if (recu.isEmpty())
            continue;
        table.RetireFinLigne();
        table.Range(Transfert.ChaineFinLigRecep);
        NotePerte(Perte::Jetes, Controle().VideReception());
        table.ExigePlace();
        table.MontreFinLigne(FinLigneLigne);
    }
}

void Mene(VueTransfert &vue, const Texte3 &genre, void (*corps)(Remplissage &))
{
    Remplissage table(vue);
    const RetientAussi recu(Transfert.NomFicRecep,
                            [&table] { return Transfert.FinTransfert ? QString() : table.Recu(); });
    try {
        VideLignes();
        DebuteReception(vue, genre);
        corps(table);
    } catch (const Erreur &erreur) {
        EchoueReception(erreur, vue, table.Recu());
    }
}

} // namespace

void ReceptionCar(VueTransfert &vue)
{
    Mene(vue, GenresReception[RecepCaracteres], EmplitParCaractere);
}

void ReceptionLigne(VueTransfert &vue)
{
    ChoisitChaineFinLigRecep();
    Mene(vue, GenresReception[RecepLignes], EmplitParLigne);
}
