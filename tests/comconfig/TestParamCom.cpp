#include "comconfig/ParamCom.h"
#include "platform/Erreur.h"
#include "platform/FichierTexte.h"
#include "platform/PageCode1252.h"

#include <QTemporaryDir>
#include <QTest>

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
    void Guillemets();
    void LignesChangees_data();
    void LignesChangees();
    void LectureInterrompue();
    void PasDeFichier();
    void Chaines();

private:
    /// Reads the full file with some of its lines changed, added or cut.
    int LitModifie(const std::function<void(QStringList &)> &change)
    {
        QStringList lignes = LitFichierTexte(Complet).split(QStringLiteral("\r\n"));
        lignes.removeLast();
        change(lignes);
        const QString chemin = m_dossier.filePath(QStringLiteral("modifie.par"));
        EcritFichierTexte(chemin, lignes.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n"));
        return Lit(chemin);
    }

    QTemporaryDir m_dossier;
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
             QStringLiteral("Com3|Tour 2 axes, été €|19200|o|8|1.5|?|C:\\Programmes CN|%|CRCRLF|é FIN").split(u'|'));
    BatirChaines();
    QCOMPARE(ChaineDebProg(), QStringLiteral("%"));
    QCOMPARE(ParamCom.ChaineFinLig, QStringLiteral("\r\r\n"));
    QCOMPARE(OctetsEn1252(ParamCom.ChaineFinTrans), QByteArray("\xE9\xFF"));
}

void TestParamCom::EcritCommeLu()
{
    for (const QString &chemin : {Complet, Court}) {
        QCOMPARE(Lit(chemin), 0);
        const QString copie = m_dossier.filePath(QStringLiteral("copie.par"));
        EcrireFichierPar(copie);
        QCOMPARE(LitOctets(copie), LitOctets(chemin));
    }
}

// The format has no way to hold one inside a text: it would end the text and shift all fields behind it.
void TestParamCom::Guillemets()
{
    QCOMPARE(Lit(Complet), 0);
    ParamCom.Commentaire = QStringLiteral("Tour \"A\"");
    ParamCom.LibFinTrans = QStringLiteral("\"");
    ParamCom.CarFinTrans[1] = 34;
    const QString copie = m_dossier.filePath(QStringLiteral("copie.par"));
    EcrireFichierPar(copie);
    QCOMPARE(Lit(copie), 0);
    QCOMPARE(ParamCom.Commentaire, QStringLiteral("Tour 'A'"));
    QCOMPARE(ParamCom.LibFinTrans, QStringLiteral("'"));
    QCOMPARE(ParamCom.CarFinTrans[1], 34);
    QCOMPARE(ParamCom.TypeEnvoi, 1);
}

// One line of the full file changed (lines count from 1): the number of the failure, 0 for none.
void TestParamCom::LignesChangees_data()
{
    QTest::addColumn<int>("ligne");
    QTest::addColumn<QString>("contenu");
    QTest::addColumn<int>("numero");
    const auto ligne = [](const char *nom, int numero, const char *contenu, int erreur) {
        QTest::newRow(nom) << numero << QString::fromLatin1(contenu) << erreur;
    };
    ligne("echo in words", 8, "#TRUE#", 0);
    ligne("words on another line", 9, "#TRUE#", Erreur::TypeIncompatible);
    ligne("letters for a number", 12, "beaucoup", Erreur::TypeIncompatible);
    ligne("digits, then letters", 12, "512 caracteres", Erreur::TypeIncompatible);
    ligne("number beyond 16 bits", 14, "70000", Erreur::Depassement);
    ligne("text without quotes", 3, "Tour", Erreur::TypeIncompatible);
    ligne("quotes never closed", 26, "\"FIN", Erreur::FinDeFichier);
    ligne("code that is no character", 30, "256", Erreur::Depassement);
    ligne("negative code", 30, "-1", Erreur::Depassement);
    ligne("blanks around a number", 1, "   3 ", 0);
    ligne("letters for the last number", 37, "x", Erreur::TypeIncompatible);
}

void TestParamCom::LignesChangees()
{
    QFETCH(int, ligne);
    QFETCH(QString, contenu);
    QFETCH(int, numero);
    QCOMPARE(LitModifie([&](QStringList &lignes) { lignes[ligne - 1] = contenu; }), numero);
    QCOMPARE(ParamCom.Echo, ligne > 7 ? 1 : numero == 0 ? 1 : 0);
    QCOMPARE(ParamCom.TypeEnvoi, numero == 0 ? 1 : 0);
}

// A chain holds 100 codes. A file that ends early leaves what it brought and, behind that, what was there.
void TestParamCom::LectureInterrompue()
{
    const auto allonge = [](int nombre) {
        return [nombre](QStringList &lignes) {
            lignes[26] = QString::number(nombre);
            lignes[29] = QStringLiteral("65");
            for (int i = 1; i < nombre; ++i)
                lignes.insert(30, QStringLiteral("66"));
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
    QCOMPARE(LitModifie([](QStringList &lignes) { lignes = lignes.mid(0, 4) + QStringList{QStringLiteral("\"x")}; }),
             Erreur::FinDeFichier);
    QCOMPARE(ParamCom.Vitesse, QStringLiteral("19200"));
}

void TestParamCom::PasDeFichier()
{
    QCOMPARE(Lit(m_dossier.filePath(QStringLiteral("absent.par"))), Erreur::FichierIntrouvable);
    QCOMPARE(Lit(m_dossier.path()), Erreur::ErreurFichier);
    const QString chemin = m_dossier.filePath(QStringLiteral("x.par"));
    EcritFichierTexte(chemin, QString());
    QCOMPARE(Lit(chemin), Erreur::FinDeFichier);
    EcritFichierTexte(chemin, QString(2'000'000, u'1'));
    QCOMPARE(Lit(chemin), Erreur::MemoireInsuffisante);
    QVERIFY_EXCEPTION_THROWN(EcrireFichierPar(m_dossier.filePath(QStringLiteral("parti/x.par"))), Erreur);
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
        ParamCom.ChaineFinTrans = ParamCom.ChaineFinLig = QStringLiteral("?");
        BatirChaines();
        chaines << ParamCom.ChaineFinTrans + u'/' + ParamCom.ChaineFinLig;
    }
    QCOMPARE(chaines.join(u' '), QStringLiteral("\x13/\n \x04/\r AB/\n\r \x13/\r\n \x04/ab / ?/? ?/?"));
}

QTEST_GUILESS_MAIN(TestParamCom)
#include "TestParamCom.moc"
