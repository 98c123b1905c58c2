#include "gauges/ParamMac.h"
#include "platform/Erreur.h"
#include "platform/FichierTexte.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Donnees = QString::fromUtf16(DONNEES);

/// Reads chemin; 0 or the number of the failure.
int Lit(const QString &chemin)
{
    try {
        LitMac(chemin);
        return 0;
    } catch (const Erreur &erreur) {
        return erreur.Numero();
    }
}

} // namespace

class TestParamMac : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { ParamMac = {}; }
    void EcritCommeLu();
    void Formes_data();
    void Formes();

private:
    /// The fields of the record, as its file holds them.
    QString Champs() const
    {
        EcritMac(m_copie);
        return LitFichierTexte(m_copie).replace(u"\r\n"_s, u" "_s).remove(u'"').trimmed();
    }

    QTemporaryDir m_dossier;
    const QString m_copie = m_dossier.filePath(u"copie.mac"_s);
};

// Every line reaches its own field and goes out as it came. A new configuration is that of the file of ordinary values.
void TestParamMac::EcritCommeLu()
{
    EcritMac(m_copie);
    QCOMPARE(LitOctets(m_copie), LitOctets(Donnees + u"/Neuve.mac"_s));
    QCOMPARE(Lit(Donnees + u"/Complete.mac"_s), 0);
    const ConfigurationMac &p = ParamMac;
    QCOMPARE(
        QList<double>({double(p.TypeMachine), double(p.TypeTourelle), p.DiffPoches, double(p.TypeJauge),
                       double(p.ModeX), p.JaugeMaxiX, p.JaugeMaxiZ, double(p.NbCorrecteurs), double(p.RazDynamique)}),
        QList<double>({1, 1, -.125, 1, 1, 100.3, 1234.5, 300, 1}));
    EcritMac(m_copie);
    QCOMPARE(LitOctets(m_copie), LitOctets(Donnees + u"/Complete.mac"_s));

    // A quote inside a text would shift the fields behind it; small and large numbers stay plain decimals.
    ParamMac.NumProgJauge = u"%\"1\""_s;
    ParamMac.DiffPoches = .000001;
    ParamMac.JaugeMaxiX = 1e20;
    EcritMac(m_copie);
    QCOMPARE(Lit(m_copie), 0);
    QCOMPARE(Champs(), u"1 1 .000001 1 1 100000000000000000000 1234.5 300 COR %'1' 1"_s);
    QVERIFY_EXCEPTION_THROWN(EcritMac(m_dossier.filePath(u"parti/x.mac"_s)), Erreur);
}

void TestParamMac::Formes_data()
{
    QTest::addColumn<QByteArray>("fichier");
    QTest::addColumn<int>("numero");
    QTest::addColumn<QString>("champs");

    const auto cas = [](const char *nom, const QByteArray &fichier, int numero, const QString &champs) {
        QTest::newRow(nom) << fichier << numero << champs;
    };
    cas("commas, blanks, lone LF, bare texts", "1,1, -.5 ,1,1\n50\n60,12\nJAU\n%1 \n1", 0,
        u"1 1 -.5 1 1 50 60 12 JAU %1  1"_s);
    cas("ten lines", "1\r\n1\r\n2\r\n1\r\n1\r\n50\r\n60\r\n12\r\n\"A\"\r\n\"%1\"\r\n", Erreur::FinDeFichier,
        u"1 1 2 1 1 50 60 12 A %1 0"_s);
    cas("999 correctors", "0\n0\n0\n0\n0\n1\n2\n999\nJ\n%\n0\n", 0, u"0 0 0 0 0 1 2 300 J % 0"_s);
    cas("negative correctors", "0\n0\n0\n0\n0\n1\n2\n-1\nJ\n%\n0\n", 0, u"0 0 0 0 0 1 2 0 J % 0"_s);
    cas("words for numbers", "1\r\ntour\r\n", Erreur::TypeIncompatible, u"1 0 0 0 0 100 200 32 JAU %7999 0"_s);
    cas("an unfinished number", "1\n1\n5mm\n", Erreur::TypeIncompatible, u"1 1 0 0 0 100 200 32 JAU %7999 0"_s);
    cas("an empty line", "1\n1\n\n1\n", Erreur::TypeIncompatible, u"1 1 0 0 0 100 200 32 JAU %7999 0"_s);
    cas("no number at all", "1\n1\ninf\n", Erreur::TypeIncompatible, u"1 1 0 0 0 100 200 32 JAU %7999 0"_s);
    cas("beyond 16 bits", "70000\n", Erreur::Depassement, u"0 0 0 0 0 100 200 32 JAU %7999 0"_s);
    cas("an open quote", "0\n0\n0\n0\n0\n1\n2\n3\n\"JAU\n%\n0\n", Erreur::FinDeFichier,
        u"0 0 0 0 0 1 2 3 JAU %7999 0"_s);
    cas("empty", "", Erreur::FinDeFichier, u"0 0 0 0 0 100 200 32 JAU %7999 0"_s);
    cas("no configuration", QByteArray(100'000, '1'), Erreur::MemoireInsuffisante,
        u"0 0 0 0 0 100 200 32 JAU %7999 0"_s);
}

// Whatever the file: the number of the failure, the fields ahead of it read, the others as they were.
void TestParamMac::Formes()
{
    QFETCH(const QByteArray, fichier);
    EcritFichierTexte(m_copie, QString::fromLatin1(fichier));
    QTEST(Lit(m_copie), "numero");
    QTEST(Champs(), "champs");
}

QTEST_GUILESS_MAIN(TestParamMac)
#include "TestParamMac.moc"
