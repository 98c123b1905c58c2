#include "Donnees.h"
#include "Essais.h"

#include "donnees/ParamCom.h"
#include "platform/base/PageCode1252.h"
#include "platform/fichiers/FichierTexte.h"

#include <QTemporaryDir>

class TestParamCom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ParamCom = {}; }

    // Every line reaches its own field.
    void Champs()
    {
        QCOMPARE(Lit(m_complet), 0);
        const ConfigurationCom &p = ParamCom;
        QCOMPARE((QList<int>{p.NumPort,     p.Echo,          p.ControleFlux,      p.TypeFinTrans,
                             p.TypeFinLig,  p.NbCarLecture,  p.TailleTamponRecep, p.TailleTamponEmis,
                             p.SeuilRecep,  p.SeuilEmis,     p.FiltreNul,         p.LigneRTS,
                             p.LigneDTR,    p.TypeRecep,     p.TailleRecep,       p.NbCarDebProg,
                             p.NbCarFinLig, p.NbCarFinTrans, p.FinLigRecep,       p.TypeEnvoi}),
                 (QList<int>{3, 1, 1, 2, 4, 100, 2048, 256, 128, 5, 1, 0, 1, 2, 70, 1, 3, 2, 3, 1}));
        QCOMPARE((QStringList{p.NomPort, p.Commentaire, p.Vitesse, p.Parite, p.BitsDonnees, p.BitsArret, p.CarRemplace,
                              p.DosRecep, p.LibDebProg, p.LibFinLig, p.LibFinTrans}),
                 u"Com3|Tour 2 axes, été €|19200|o|8|1.5|?|C:\\Programmes CN|%|CRCRLF|é FIN"_s.split(u'|'));
        BatirChaines();
        QCOMPARE((QStringList{CaracteresDe(ChaineDebut), ParamCom.ChaineFinLig}), (QStringList{u"%"_s, u"\r\r\n"_s}));
        QCOMPARE(OctetsEn1252(ParamCom.ChaineFinTrans), QByteArray("\xE9\xFF"));
    }

    // Byte for byte, a comment of any length. A quote inside a text changes: it would end the text and shift all fields
    // behind it.
    void EcritCommeLu()
    {
        for (const QString &chemin : {Donnees(u"Court.par"_s), m_complet}) {
            const auto passe = Passe(chemin);
            QCOMPARE(Lit(chemin), 0);
            EcrireFichierPar(m_copie);
            QCOMPARE(LitOctets(m_copie), LitOctets(chemin));
        }
        const QString long_(2'000'000, u'x');
        ParamCom.Commentaire = u"Tour \"A\""_s + long_;
        ParamCom.LibFinTrans = u"\""_s;
        ParamCom.CarFinTrans[1] = 34;
        EcrireFichierPar(m_copie);
        QCOMPARE(Lit(m_copie), 0);
        QCOMPARE((QStringList{ParamCom.Commentaire, ParamCom.LibFinTrans}),
                 (QStringList{u"Tour 'A'"_s + long_, u"'"_s}));
        QCOMPARE(ParamCom.CarFinTrans[1], 34);
        QCOMPARE(ParamCom.TypeEnvoi, 1);
        QCOMPARE(Lit(m_dossier.filePath(u"absent.par"_s)), Erreur::FichierIntrouvable);
        QVERIFY_EXCEPTION_THROWN(EcrireFichierPar(m_dossier.filePath(u"parti/x.par"_s)), Erreur);
    }

    // One line of the full file changed, or missing. What stands behind the failure keeps its former value.
    void LignesChangees_data() { RangeesDe(u"lignes_par.tsv"_s); }
    void LignesChangees()
    {
        QFETCH(QStringList, cases);
        ParamCom.FinLigRecep = ParamCom.TypeEnvoi = 7;
        const int ligne = cases[0].toInt(); // from 1
        const int numero = cases[2].toInt();
        QStringList lignes = Lignes();
        lignes[ligne - 1] = cases[1];
        QCOMPARE(LitLignes(lignes), numero);
        QCOMPARE(ParamCom.Echo, ligne > 7 || numero == 0 ? 1 : 0);
        QCOMPARE(ParamCom.FinLigRecep, ligne > 36 || numero == 0 ? 3 : 7);
        QCOMPARE(ParamCom.TypeEnvoi, numero == 0 ? 1 : 7);
        QCOMPARE(EtatConf.fiche, numero == 0 ? EtatConfiguration::Entiere : EtatConfiguration::Incomplete);
    }

    // A chain holds 100 codes. Whatever count a file gives, the record it leaves can be saved and is whole again.
    void Comptes()
    {
        for (const auto &[compte, numero, tenus] :
             {std::tuple{100, 0, 100}, {101, int(Erreur::IndiceHorsPlage), 100}, {-3, 0, 0}}) {
            const auto passe = Passe(QString::number(compte));
            ParamCom = {};
            QStringList lignes = Lignes();
            lignes[26] = QString::number(compte);
            lignes.remove(29);
            for (int code = 1; code <= compte; ++code)
                lignes.insert(29, QString::number(code)); // the last one comes first
            QCOMPARE(LitLignes(lignes), numero);
            EcrireFichierPar(m_copie);
            QCOMPARE(Lit(m_copie), 0);
            QCOMPARE(CaracteresDe(ChaineDebut).size(), tenus);
            QVERIFY(compte < 0 || ParamCom.CarDebProg[100] == compte - 99);
        }
    }

    // Types of end of transfer and end of line, how many codes the chains of the operator's own hold, and which ends
    // XON/XOFF takes away.
    void Chaines()
    {
        ParamCom.CarFinTrans = {0, 'A', 'B', 'C'};
        ParamCom.CarFinLig = {0, 'a', 'b', 'c'};
        QStringList chaines;
        for (const auto &[trans, ligne, nombre] :
             {std::tuple{0, 0, 0}, {1, 1, 0}, {2, 2, 2}, {0, 3, 2}, {1, 4, 2}, {2, 4, 0}, {3, 5, 2}, {-1, -1, 2}}) {
            ParamCom.TypeFinTrans = trans;
            ParamCom.TypeFinLig = ligne;
            ParamCom.NbCarFinTrans = ParamCom.NbCarFinLig = nombre;
            ParamCom.ChaineFinTrans = ParamCom.ChaineFinLig = u"?"_s;
            BatirChaines();
            chaines << ParamCom.ChaineFinTrans + u'/' + ParamCom.ChaineFinLig;
        }
        QCOMPARE(chaines.join(u' '), u"\x13/\n \x04/\r AB/\n\r \x13/\r\n \x04/ab / ?/? ?/?"_s);
        ParamCom.CarFinTrans[2] = 17; // XON
        QString perdues;
        for (ParamCom.ControleFlux = 0; ParamCom.ControleFlux < 4; ++ParamCom.ControleFlux) {
            for (ParamCom.TypeFinTrans = 0; ParamCom.TypeFinTrans < 4; ++ParamCom.TypeFinTrans)
                perdues += FinTransfertPerdue() ? u'1' : u'0';
        }
        QCOMPARE(perdues, u"0000"_s + u"1010"_s + u"0000"_s + u"1010"_s);
    }

private:
    static int Lit(const QString &chemin)
    {
        return NumeroErreur([&chemin] { LireFichierPar(chemin); });
    }
    QStringList Lignes() const { return LitFichierTexte(m_complet).split(u"\r\n"_s, Qt::SkipEmptyParts); }
    int LitLignes(const QStringList &lignes) const
    {
        EcritFichierTexte(m_copie, lignes.join(u"\r\n"_s));
        return Lit(m_copie);
    }

    const QString m_complet = Donnees(u"Complet.par"_s);
    QTemporaryDir m_dossier;
    const QString m_copie = m_dossier.filePath(u"copie.par"_s);
};

QTEST_GUILESS_MAIN(TestParamCom)
#include "TestParamCom.moc"
