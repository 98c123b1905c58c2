#include "gauges/ParamMac.h"
#include "platform/Erreur.h"
#include "platform/FichierTexte.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestParamMac : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EcritCommeLu();
    void Formes();

private:
    /// Reads chemin; the number of the failure, 0 for none, and the fields of the record, as its file holds them.
    QString Lit(const QString &chemin) const
    {
        int numero = 0;
        try {
            LitMac(chemin);
        } catch (const Erreur &erreur) {
            numero = erreur.Numero();
        }
        EcritMac(m_copie);
        return QString::number(numero) + u": "_s + LitFichierTexte(m_copie).replace(u"\r\n"_s, u" "_s).remove(u'"');
    }

    QTemporaryDir m_dossier;
    const QString m_copie = m_dossier.filePath(u"copie.mac"_s);
};

// Every line goes out as it came. A new configuration is that of the file of ordinary values.
void TestParamMac::EcritCommeLu()
{
    const QString donnees = QString::fromUtf16(DONNEES);
    EcritMac(m_copie);
    QCOMPARE(LitOctets(m_copie), LitOctets(donnees + u"/Neuve.mac"_s));
    LitMac(donnees + u"/Complete.mac"_s);
    EcritMac(m_copie);
    QCOMPARE(LitOctets(m_copie), LitOctets(donnees + u"/Complete.mac"_s));

    // A quote inside a text would shift the fields behind it; small and large numbers stay plain decimals.
    ParamMac.NumProgJauge = u"%\"1\""_s;
    ParamMac.DiffPoches = .000001;
    ParamMac.JaugeMaxiX = 1e20;
    EcritMac(m_copie);
    QCOMPARE(Lit(m_copie), u"0: 1 1 .000001 1 1 100000000000000000000 1234.5 300 COR %'1' 1 "_s);
    QVERIFY_EXCEPTION_THROWN(EcritMac(m_dossier.filePath(u"parti/x.mac"_s)), Erreur);
}

// Whatever the file: the number of the failure, the fields ahead of it read, the others as they were.
void TestParamMac::Formes()
{
    for (const auto &[fichier, numero, champs] : {
             std::tuple{"1,1, -.5 ,1,1\n50\n60,12\nJAU\n%1 \n1"_ba, 0, "1 1 -.5 1 1 50 60 12 JAU %1  1 "},
             // ten lines
             {"1\r\n1\r\n2\r\n1\r\n1\r\n50\r\n60\r\n12\r\n\"A\"\r\n\"%1\"\r\n", Erreur::FinDeFichier,
              "1 1 2 1 1 50 60 12 A %1 0 "},
             {"0\n0\n0\n0\n0\n1\n2\n999\nJ\n%\n0\n", 0, "0 0 0 0 0 1 2 300 J % 0 "},
             {"0\n0\n0\n0\n0\n1\n2\n-1\nJ\n%\n0\n", 0, "0 0 0 0 0 1 2 0 J % 0 "},
             {"0\n0\n0\n0\n0\n1\n2\n3\n\"JAU\n%\n0\n", Erreur::FinDeFichier, "0 0 0 0 0 1 2 3 JAU %7999 0 "},
             {"1\r\ntour\r\n", Erreur::TypeIncompatible, "1 0 0 0 0 100 200 32 JAU %7999 0 "},
             {"1\n1\n5mm\n", Erreur::TypeIncompatible, "1 1 0 0 0 100 200 32 JAU %7999 0 "},
             {"1\n1\n\n1\n", Erreur::TypeIncompatible, "1 1 0 0 0 100 200 32 JAU %7999 0 "},
             {"1\n1\ninf\n", Erreur::TypeIncompatible, "1 1 0 0 0 100 200 32 JAU %7999 0 "},
             {"70000\n", Erreur::Depassement, "0 0 0 0 0 100 200 32 JAU %7999 0 "},
             {"", Erreur::FinDeFichier, "0 0 0 0 0 100 200 32 JAU %7999 0 "},
             {QByteArray(100'000, '1'), Erreur::MemoireInsuffisante, "0 0 0 0 0 100 200 32 JAU %7999 0 "},
         }) {
        ParamMac = {};
        EcritFichierTexte(m_copie, QString::fromLatin1(fichier));
        QCOMPARE(Lit(m_copie), QString::number(numero) + u": "_s + QLatin1String(champs));
    }
}

QTEST_GUILESS_MAIN(TestParamMac)
#include "TestParamMac.moc"
