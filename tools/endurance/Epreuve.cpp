#include "endurance/Epreuve.h"

#include "donnees/ParamCom.h"
#include "donnees/Transfert.h"
#include "platform/serie/MSComm.h"
#include "shell/FrmPrinc.h"

#include <QFile>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QThread>

namespace {

constexpr int Vitesse = 921600; // bits per second

qint64 Taille(const Charge &charge)
{
    return charge.pieces.isEmpty() ? charge.attendu.size() : charge.pieces.join().size();
}

bool Conclu(const EtatMachine &etat)
{
    return etat.Programmes == 1;
}

bool Repondu(const EtatMachine &etat)
{
    return etat.Envoi.Reponse == Retour::Juste;
}

} // namespace

Epreuve::Epreuve(const Poste &poste, quint32 graine)
    : m_poste(poste)
    , m_pilote(poste)
    , m_alea(graine)
{
}

Sort Epreuve::Tire()
{
    const int de = Hasard(7);
    return de == 0 ? Sort::Annule : de == 1 ? Sort::Debranche : Sort::Entier;
}

QByteArray Epreuve::Outil()
{
    return QByteArray::number(1 + Hasard(90)) + ' ' + QByteArray::number(10 + Hasard(900)) + ".5 " +
           QByteArray::number(1 + Hasard(99)) + " D";
}

/// A line of printable characters of the code page, without a blank at either end.
QByteArray Epreuve::Ligne()
{
    QByteArray ligne;
    for (int i = Hasard(60); i >= 0; --i)
        ligne += char(Hasard(2) == 0 ? 0x20 + Hasard(0x5F) : 0xA1 + Hasard(0x5F));
    return ligne.replace(' ', ligne.size() > 2 ? "_" : "-");
}

QByteArrayList Epreuve::Lignes(Genre genre)
{
    const bool banc = genre == Genre::Banc;
    QByteArrayList lignes;
    for (int i = Hasard(banc ? 3 : EstEmission(genre) || genre == Genre::Fichier ? 30 : 8); i >= 0; --i)
        lignes += banc ? Outil() : Ligne();
    return lignes;
}

/// A machine with a small buffer and a possibly slow processor, which holds the line now and then.
ReglageMachine Epreuve::Reglage()
{
    ReglageMachine reglage;
    reglage.Ligne.Vitesse = Vitesse;
    reglage.Tampon.Profondeur = 4096; // at that speed more than a thousand characters are under way when XOFF is sent
    reglage.Tampon.MarqueHaute = 64 + Hasard(128);
    reglage.Tampon.MarqueBasse = Hasard(64);
    reglage.Tampon.Debit = Hasard(3) == 0 ? 60'000 : 0;
    const int total = int(Taille(m_charge));
    for (int apres = Hasard(total + 1); apres > 0 && apres < total; apres += 1 + Hasard(total))
        reglage.Tampon.Arrets.push_back({apres, Hasard(10)});
    if (m_retenue) {
        std::erase_if(reglage.Tampon.Arrets, [this](const Arret &arret) { return arret.Apres >= m_apres; });
        reglage.Tampon.Arrets.push_back({m_apres, -1});
    }
    return reglage;
}

Sort Epreuve::Joue(Genre genre, Sort voulu)
{
    ++m_numero;
    m_genre = genre;
    m_voulu = voulu;
    m_charge = ChargeDe(genre, Lignes(genre));
    m_apres = 1 + Hasard(int(Taille(m_charge)));
    m_retenue = voulu != Sort::Entier && Hasard(2) == 0;
    m_agi = false;
    m_donnes = m_avant = 0;
    MachineSimulee machine(Reglage());
    const QScopedValueRollback presente(m_machine, &machine);
    m_poste.Relie(2, machine.Chemin());
    m_pilote.Regle(genre);
    ParamCom.Vitesse = QString::number(Vitesse);
    ParamCom.Echo = Hasard(2);
    QFile::remove(m_pilote.Chemin(genre));

    m_deroulement = m_pilote.Joue(genre, m_charge, [this](QDialog &transfert) { Pendant(transfert); });
    Exige(!frmPrinc->MSComm1->PortOpen() && !frmPrinc->PortOuvert && !TransfertEnCours(), "the port is still open");
    Exige(m_agi || m_deroulement.avis.isEmpty(), "something was told");
    return EstEmission(genre) ? JugeEmission() : JugeReception();
}

void Epreuve::Pendant(QDialog &transfert)
{
    if (Hasard(30) == 0)
        QThread::msleep(m_alea.bounded(10U)); // the PC is busy elsewhere
    if (m_voulu != Sort::Entier && !m_agi && frmPrinc->PortOuvert && Passes() >= m_apres)
        Agit(transfert);
    else if (!m_agi)
        m_pilote.Poursuit(transfert, [this](const QByteArray &piece) { Donne(piece); });
}

/// Characters that have crossed the line.
qint64 Epreuve::Passes() const
{
    const EtatMachine etat = m_machine->Etat();
    return EstEmission(m_genre) ? etat.Recus : m_avant + etat.Envoi.Emis;
}

void Epreuve::Donne(const QByteArray &piece)
{
    m_avant = m_donnes;
    m_donnes += piece.size();
    Envoi envoi{piece};
    envoi.Salve = m_genre == Genre::Banc;
    envoi.SansFin = true; // the last piece contains the end-of-transfer chain
    envoi.PauseLigneMs = m_genre == Genre::Fichier ? Hasard(2) : 0;
    if (m_retenue && m_apres < m_donnes)
        envoi.CoupeApres = m_apres - m_avant;
    m_machine->Emet(envoi);
}

void Epreuve::Agit(const QDialog &transfert)
{
    m_agi = true;
    if (m_voulu == Sort::Annule)
        Pilote::Annule(m_genre, transfert);
    else
        m_machine->Arrete();
}

/// A sending must be complete unless the operator was told otherwise. One unplugged after its last character cannot
/// know that.
Sort Epreuve::JugeEmission()
{
    const bool entier = m_deroulement.avis.isEmpty() && !(m_agi && m_voulu == Sort::Debranche);
    QByteArray recu;
    if (entier)
        m_machine->Attend(Conclu);
    for (const ProgrammeRecu &programme : m_machine->Programmes())
        recu += programme.Brut;
    recu += m_machine->Etat().EnCours;
    Exige(m_machine->Etat().Perdus == 0, "the machine was overrun");
    if (entier) {
        Exige(recu == m_charge.attendu, "the machine got something else");
        return Sort::Entier;
    }
    Exige(m_charge.attendu.startsWith(recu), "the machine got something else before the cut");
    return m_voulu;
}

Sort Epreuve::JugeReception()
{
    QFile fichier(m_pilote.Chemin(m_genre));
    const bool existe = fichier.open(QIODevice::ReadOnly);
    const QByteArray contenu = existe ? fichier.readAll() : QByteArray();
    const bool banc = m_genre == Genre::Banc;
    if (m_agi && (!existe || (banc && contenu != m_charge.attendu))) {
        const QByteArray brut = m_charge.pieces.join("\r\n") + "\r\n";
        Exige(brut.startsWith(contenu), "the bench gave something else before the cut");
        return m_voulu;
    }
    Exige(contenu == m_charge.attendu, "the file holds something else");
    Exige(m_agi || banc || m_machine->Attend(Repondu), "the end of transfer did not come back");
    return Sort::Entier;
}

void Epreuve::Exige(bool juste, const char *quoi)
{
    if (!juste)
        m_ecarts += QStringLiteral("transfer %1, kind %2: %3").arg(m_numero).arg(int(m_genre)).arg(QLatin1String(quoi));
}
