#pragma once

#include "Essais.h"
#include "LigneScenario.h"
#include "pilote/Pilote.h"

#include "donnees/Reglages.h"
#include "donnees/Transfert.h"
#include "platform/controles/Lampe.h"
#include "shell/FrmPrinc.h"

constexpr char FinTrans[] = "\x04";

/// A workstation whose operator plays transfers of a kind with a machine on a scripted line.
class EssaiTransfert
{
public:
    explicit EssaiTransfert(Genre leGenre)
        : genre(leGenre)
        , charge(ChargeDe(leGenre, leGenre == Genre::Banc ? QByteArrayList{"1 101.5 12 D", "2 98.5 7 D"}
                                                          : QByteArrayList{"AB", "C"}))
        , pilote(poste)
    {
        frmPrinc->MSComm1->setFabrique([this](int) -> std::unique_ptr<LigneSerie> {
            if (refus != 0)
                throw Erreur(refus, QStringLiteral("refused"));
            return std::make_unique<LigneScenario>(ligne);
        });
        frmPrinc->UpdateTimer.setInterval(1);
        pilote.Regle(genre);
        pilote.Sauvegarde = poste.Chemin("sauve.txt");
        pilote.Pris = [this] { return Pris(); };
        poste.Ecrit("PIECE.ISO", "ANCIEN");
    }

    using Faute = std::function<bool(QDialog &transfert)>;

    /// A transfer. Once position characters have crossed the line, faute is called again and again until it says that
    /// it is over; the rest follows.
    Pilote::Deroulement Joue(qsizetype position = 0, const Faute &faute = {})
    {
        QFile::remove(pilote.Sauvegarde);
        m_position = position;
        m_faute = faute;
        m_passes = 0;
        m_reste.clear();
        return pilote.Joue(genre, charge, [this](QDialog &transfert) { Pendant(transfert); });
    }

    /// What is foretold to the operator from here on comes after the boxes that ask him before a reception.
    void PreditEnsuite()
    {
        pilote.Fait(
            "Em_Rc", [](QWidget &) {}, [] { return frmPrinc->PortOuvert; });
    }

    /// Lamps, port and pane as they have to be between two transfers, and the next transfer is whole.
    void VerifiePret()
    {
        QVERIFY(!frmPrinc->PortOuvert);
        QVERIFY(!frmPrinc->MSComm1->PortOpen());
        QVERIFY(!ligne->ouverte);
        QVERIFY(!TransfertEnCours());
        for (const Lampe *lampe : {frmPrinc->shpPortOpen, frmPrinc->shpSend, frmPrinc->shpReceive})
            QTRY_COMPARE(lampe->FillColor(), Lampe::Rouge);
        QVERIFY(frmPrinc->Text2->isHidden());
        refus = 0;
        ligne = std::make_shared<Scenario>();
        QCOMPARE(Joue().avis.size(), 0);
        QCOMPARE(EstEmission(genre) ? ligne->ecrits : Disque(), charge.attendu);
        QCOMPARE(ligne->ecrits.right(1), genre == Genre::Banc ? "" : FinTrans);
    }

    QByteArray Disque() const { return poste.Lit(genre == Genre::Banc ? "PIECE.COR" : "PIECE.ISO"); }
    /// What the folder of the automatic saving keeps under the name of the file received; it is emptied.
    QByteArrayList Gardes() const
    {
        QByteArrayList gardes;
        QDir dossier(poste.Chemin("Sauvegardes"));
        for (const QString &nom : dossier.entryList({u"PIECE_*.ISO"_s}))
            gardes << poste.Lit(u"Sauvegardes/"_s + nom);
        dossier.removeRecursively();
        return gardes;
    }
    /// What the machine sends in all.
    QByteArray Envoye() const { return charge.pieces.join(); }
    /// All that came is with the program.
    bool Pris() const
    {
        bool pris = false;
        Saute(
            [&] { pris = frmPrinc->PortOuvert && ligne->EnAttente() == 0 && frmPrinc->MSComm1->InBufferCount() == 0; });
        return pris;
    }

    const Genre genre;
    Charge charge;
    const Poste poste{0};
    Pilote pilote;
    std::shared_ptr<Scenario> ligne = std::make_shared<Scenario>();
    int refus = 0; ///< number with which the port is refused

private:
    void Pendant(QDialog &transfert)
    {
        const bool atteint =
            refus != 0 || (EstEmission(genre) ? frmPrinc->PortOuvert && ligne->ecrits.size() == m_position
                                              : Pris() && m_passes >= m_position);
        if (m_faute && atteint && m_faute(transfert)) {
            m_faute = nullptr;
            ligne->Envoie(m_reste);
        } else if (!m_faute || m_passes < m_position) {
            pilote.Poursuit(transfert, [this](const QByteArray &piece) { Envoie(piece); });
        }
    }
    void Envoie(const QByteArray &piece)
    {
        const qsizetype coupe = m_faute ? std::min(piece.size(), m_position - m_passes) : piece.size();
        ligne->Envoie(piece.left(coupe));
        m_reste = piece.mid(coupe);
        m_passes += coupe;
    }

    qsizetype m_position = 0;
    Faute m_faute;
    qsizetype m_passes = 0;
    QByteArray m_reste;
};

/// A row for each kind from premier to dernier, as Genre counts them.
inline void RangsGenres(int premier = 0, int dernier = 5)
{
    QTest::addColumn<int>("rang");
    const char *const noms[] = {"whole file", "line by line", "by character", "by line", "by file", "bench"};
    for (int rang = premier; rang <= dernier; ++rang)
        QTest::newRow(noms[rang]) << rang;
}
