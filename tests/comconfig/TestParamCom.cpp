#include "comconfig/ParamCom.h"
#include "platform/Erreur.h"
#include "platform/FichierTexte.h"
#include "platform/PageCode1252.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Complet = QString::fromUtf16(DONNEES) + QStringLiteral("/Complet.par");
const QString Court = QString::fromUtf16(DONNEES) + QStringLiteral("/Court.par");

/// Reads chemin; 0 or the number of the failure.
int Lit(const QString &chemin)
{
    try {
        LireFichierPar(chemin);
        return 0;
    } catch (const Erreur &erreur) {
        return erreur.Numero();
    }
}

} // namespace

class TestParamCom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ParamCom = {}; }
    void Champs();
    void EcritCommeLu();
    void LignesChangees();
    void LectureInterrompue();
    void PasDeFichier();
    void Chaines();

private:
    /// Reads the full file with some of its lines changed, added or cut.
    int LitModifie(const std::function<void(QStringList &)> &change)
    {
        QStringList lignes = LitFichierTexte(Complet).split(u"\r\n"_s);
        lignes.removeLast();
        change(lignes);
        EcritFichierTexte(m_copie, lignes.join(u"\r\n"_s) + u"\r\n"_s);
        return Lit(m_copie);
    }

    QTemporaryDir m_dossier;
    const QString m_copie = m_dossier.filePath(u"copie.par"_s);
};

// Every line reaches its own field.
void TestParamCom::Champs()
{
    QCOMPARE(Lit(Complet), 0);
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
    QCOMPARE(ChaineDebProg(), u"%"_s);
    QCOMPARE(ParamCom.ChaineFinLig, u"\r\r\n"_s);
    QCOMPARE(OctetsEn1252(ParamCom.ChaineFinTrans), QByteArray("\xE9\xFF"));
}

// Byte for byte. A quote inside a text changes: it would end the text and shift all fields behind it.
void TestParamCom::EcritCommeLu()
{
    for (const QString &chemin : {Court, Complet}) {
        QCOMPARE(Lit(chemin), 0);
        EcrireFichierPar(m_copie);
        QCOMPARE(LitOctets(m_copie), LitOctets(chemin));
    }
    ParamCom.Commentaire = u"Tour \"A\""_s;
    ParamCom.LibFinTrans = u"\""_s;
    ParamCom.CarFinTrans[1] = 34;
    EcrireFichierPar(m_copie);
    QCOMPARE(Lit(m_copie), 0);
    QCOMPARE(ParamCom.Commentaire + ParamCom.LibFinTrans, u"Tour 'A''"_s);
    QCOMPARE(ParamCom.CarFinTrans[1], 34);
    QCOMPARE(ParamCom.TypeEnvoi, 1);
}

// One line of the full file changed (lines count from 1): the number of the failure, 0 for none.
void TestParamCom::LignesChangees()
{
    for (const auto &[ligne, contenu, numero] : {std::tuple{8, u"#TRUE#"_s, 0},
                                                 {9, u"#TRUE#"_s, int(Erreur::TypeIncompatible)},
                                                 {12, u"512 caracteres"_s, Erreur::TypeIncompatible},
                                                 {14, u"70000"_s, Erreur::Depassement},
                                                 {3, u"Tour"_s, Erreur::TypeIncompatible},
                                                 {26, u"\"FIN"_s, Erreur::FinDeFichier},
                                                 {30, u"256"_s, Erreur::Depassement},
                                                 {30, u"-1"_s, Erreur::Depassement},
                                                 {1, u"   3 "_s, 0},
                                                 {37, u"x"_s, Erreur::TypeIncompatible}}) {
        ParamCom = {};
        QCOMPARE(LitModifie([&](QStringList &lignes) { lignes[ligne - 1] = contenu; }), numero);
        QCOMPARE(ParamCom.Echo, ligne > 7 || numero == 0 ? 1 : 0);
        QCOMPARE(ParamCom.TypeEnvoi, numero == 0 ? 1 : 0);
    }
}

// A chain holds 100 codes. A file that ends early leaves what it brought and, behind that, what was there.
void TestParamCom::LectureInterrompue()
{
    const auto allonge = [](int nombre) {
        return [nombre](QStringList &lignes) {
            lignes[26] = QString::number(nombre);
            lignes[29] = u"65"_s;
            for (int i = 1; i < nombre; ++i)
                lignes.insert(30, u"66"_s);
        };
    };
    QCOMPARE(LitModifie(allonge(100)), 0);
    QCOMPARE(ChaineDebProg(), u'A' + QString(99, u'B'));
    QCOMPARE(ParamCom.CarFinLig[3], 10);

    ParamCom = {};
    QCOMPARE(LitModifie(allonge(101)), Erreur::IndiceHorsPlage);
    QCOMPARE(ChaineDebProg().size(), 100);
    QCOMPARE(ParamCom.CarFinLig[1], 0);

    ParamCom.TypeEnvoi = 7;
    ParamCom.FinLigRecep = 8;
    QCOMPARE(LitModifie([](QStringList &lignes) { lignes.removeLast(); }), Erreur::FinDeFichier);
    QCOMPARE(ParamCom.TypeEnvoi, 7);
    QCOMPARE(ParamCom.FinLigRecep, 3);
}

void TestParamCom::PasDeFichier()
{
    QCOMPARE(Lit(m_dossier.filePath(u"absent.par"_s)), Erreur::FichierIntrouvable);
    QCOMPARE(Lit(m_dossier.path()), Erreur::ErreurFichier);
    EcritFichierTexte(m_copie, QString());
    QCOMPARE(Lit(m_copie), Erreur::FinDeFichier);
    EcritFichierTexte(m_copie, QString(2'000'000, u'1'));
    QCOMPARE(Lit(m_copie), Erreur::MemoireInsuffisante);
    QVERIFY_EXCEPTION_THROWN(EcrireFichierPar(m_dossier.filePath(u"parti/x.par"_s)), Erreur);
}

// Types of end of transfer and end of line, and how many codes the chains of the operator's own hold.
void TestParamCom::Chaines()
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
}

QTEST_GUILESS_MAIN(TestParamCom)
#include "TestParamCom.moc"
