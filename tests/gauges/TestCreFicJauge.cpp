#include "Operateur.h"
#include "Poste.h"

#include "gauges/CreFicJauge.h"
#include "gauges/Jauge.h"
#include "gauges/ParamMac.h"
#include "locale/Langue.h"
#include "platform/Erreur.h"
#include "platform/FichierTexte.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"
#include "transfer/Transfert.h"

#include <QDate>
#include <QTest>

#include <limits>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The columns of the table of calculated measures.
enum Colonne { Machine, VeutX, Poches, MaxiX, MaxiZ, Corr, X, Z, Mode, Rayon, Loc, FormeD, FormeE, Raz, RingX, RingZ };

/// Rows of one machine, in order: one gauge file.
QList<QList<QStringList>> Table()
{
    QList<QList<QStringList>> fichiers;
    QStringList precedente;
    const QStringList lignes =
        QString::fromUtf8(LitOctets(QString::fromUtf16(DONNEES) + u"/jauges_calculees.txt"_s)).trimmed().split(u'\n');
    for (const QString &ligne : lignes) {
        const QStringList colonnes = ligne.split(u';');
        if (colonnes.first(Corr) != precedente)
            fichiers.append(QList<QStringList>());
        precedente = colonnes.first(Corr);
        fichiers.last() << colonnes;
    }
    return fichiers;
}

QString Date()
{
    const QDate jour = QDate::currentDate();
    return u"%1-%2-%3"_s.arg(jour.month(), 2, 10, QChar(u'0')).arg(jour.day(), 2, 10, QChar(u'0')).arg(jour.year());
}

void Configure(const QStringList &ligne)
{
    ParamMac = {};
    ParamMac.TypeMachine = ligne[Machine] == u"mill" ? 1 : 0;
    ParamMac.ModeX = ligne[VeutX] == u"D" ? 1 : 0;
    ParamMac.DiffPoches = ligne[Poches].toDouble();
    ParamMac.JaugeMaxiX = ligne[MaxiX].toDouble();
    ParamMac.JaugeMaxiZ = ligne[MaxiZ].toDouble();
    NbJauges = 0;
}

void Mesure(const QStringList &ligne)
{
    Jauge[std::size_t(++NbJauges)] = {ligne[Corr].toInt(),    ligne[Z].toFloat(), ligne[X].toFloat(),
                                      ligne[Rayon].toFloat(), ligne[Loc].toInt(), ligne[Mode].front()};
}

} // namespace

class TestCreFicJauge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { VideJauges(); }
    void Calculees();
    void Langues();
    void Echec();
};

// Every form of file, to the byte, against measures that were calculated apart. The alarms come one by one, X first,
// and stop nothing.
void TestCreFicJauge::Calculees()
{
    const Poste poste(0);
    DossierRecep = poste.Dossier();
    NomFicRecep = u"OUTILS.JAU"_s;
    const QList<QList<QStringList>> table = Table();
    QVERIFY(std::accumulate(table.begin(), table.end(), 0, [](int n, const auto &f) { return n + f.size(); }) >= 60);
    for (const QList<QStringList> &fichier : table) {
        for (const auto &[type, raz] : {std::pair{0, 0}, {1, 0}, {1, 1}}) {
            Operateur operateur;
            Configure(fichier.first());
            ParamMac.TypeJauge = type;
            ParamMac.RazDynamique = raz;
            const bool tour = ParamMac.EstTour();
            QString attendu = type == 0 ? u"%\r\n"_s
                                        : u"%7999 (JAUGES OUTILS LE:"_s + Date() + u")\r\n"_s +
                                              (tour ? u"(JAUGE X     JAUGE Z    RAYON   LOCALISATEUR)\r\n"_s
                                                    : u"(JAUGE L     JAUGE R)\r\n"_s);
            for (const QStringList &ligne : fichier) {
                Mesure(ligne);
                attendu += ligne[type == 0 ? FormeD : FormeE] + u"\r\n"_s;
                if (type == 1 && raz == 0)
                    attendu += ligne[Raz] + u"\r\n"_s;
                for (const auto &[sonne, axe] : {std::pair{RingX, u'X'}, {RingZ, u'Z'}}) {
                    if (!ligne[sonne].isEmpty())
                        operateur.Repond(u"Alarme jauge en "_s + axe,
                                         u"Alarme Jauge en "_s + axe + u"!\rJauge en "_s + axe +
                                             u" du correcteur N°: \r"_s + ligne[sonne],
                                         Boite::Critique, QMessageBox::Ok);
                }
            }
            attendu += type == 0 ? QString() : u"\r\nM02\r\n"_s;
            FichierModifie = Vrai;
            CreFicJauge();
            QCOMPARE(QString::fromLatin1(poste.Lit("OUTILS.JAU")), attendu);
            QCOMPARE(frmPrinc->Text1->Text(), attendu);
            QCOMPARE(NomFichier + TitreFichier, poste.Chemin("OUTILS.JAU") + NomFicRecep);
            QCOMPARE(FichierModifie, 0);
        }
    }
}

// The alarm in the other languages; the words of its third line are the same.
void TestCreFicJauge::Langues()
{
    for (const auto &[langue, titre, texte] :
         {std::tuple{1, u"Alarm gauge tool in "_s, u"Alarm gauge tool in %1!\rMeasure in %1 of corrector N°: "_s},
          {2, u"Alarma mide instrumentos en "_s,
           u"Alarma mide instrumentos en %1!\rCapacidad en %1 del corrector N°: "_s}}) {
        const Poste poste(langue);
        DossierRecep = poste.Dossier();
        NomFicRecep = u"A.JAU"_s;
        ParamMac = {};
        ParamMac.JaugeMaxiX = .5;
        NbJauges = 1;
        Jauge[1] = {7, 201, 1, 0, 0, u'R'};
        Operateur operateur;
        operateur.Repond(titre + u'X', texte.arg(QChar(u'X')) + u"\r7 > à .5 mm"_s, Boite::Critique, QMessageBox::Ok);
        operateur.Repond(titre + u'Z', texte.arg(QChar(u'Z')) + u"\r7 > à 200 mm"_s, Boite::Critique, QMessageBox::Ok);
        CreFicJauge();
        QCOMPARE(poste.Lit("A.JAU"), "%\r\nD7 X1 Z201 R0 C0\r\n");
    }
}

// A folder that has gone and a measure beyond all numbers reach the caller; the file stays as it was.
void TestCreFicJauge::Echec()
{
    const Poste poste(0);
    ParamMac = {};
    ParamMac.JaugeMaxiX = std::numeric_limits<double>::max();
    ParamMac.TypeJauge = 1;
    NbJauges = 1;
    NomFicRecep = u"A.JAU"_s;
    DossierRecep = poste.Chemin("parti");
    QVERIFY_EXCEPTION_THROWN(CreFicJauge(), Erreur);
    DossierRecep = poste.Dossier();
    poste.Ecrit("A.JAU", "TN:");
    Jauge[1].JaugeX = 1e36F; // as micrometres more than single precision holds
    QVERIFY_EXCEPTION_THROWN(CreFicJauge(), Erreur);
    QCOMPARE(poste.Lit("A.JAU"), "TN:");
    QCOMPARE(NomFichier, QString());
}

QTEST_MAIN(TestCreFicJauge)
#include "TestCreFicJauge.moc"
