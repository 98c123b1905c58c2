#include "Donnees.h"
#include "Etabli.h"

#include "donnees/Jauge.h"
#include "donnees/ParamMac.h"
#include "donnees/Transfert.h"
#include "gauges/CreFicJauge.h"

#include <QDate>

namespace {

/// The columns of the table of calculated measures.
enum Colonne { Machine, VeutX, Poches, MaxiX, MaxiZ, Corr, X, Z, Mode, Rayon, Loc, FormeD, FormeE, Raz, RingX, RingZ };

/// A form of the file, in a language, and its alarms.
struct Forme
{
    const char *nom;
    int langue, typeJauge, razDynamique;
    QString titre, texte;
};
const Forme Formes[] = {
    {"D, French", 0, 0, 0, u"Alarme jauge en %1"_s, u"Alarme Jauge en %1!\rJauge en %1 du correcteur N°: \r"_s},
    {"E, English", 1, 1, 0, u"Alarm gauge tool in %1"_s,
     u"Alarm gauge tool in %1!\rMeasure in %1 of corrector N°: \r"_s},
    {"E without resets, Spanish", 2, 1, 1, u"Alarma mide instrumentos en %1"_s,
     u"Alarma mide instrumentos en %1!\rCapacidad en %1 del corrector N°: \r"_s}};

/// The machine of a row, and its file empty.
void Configure(const QStringList &ligne, const Forme &forme)
{
    ParamMac = {};
    ParamMac.TypeMachine = ligne[Machine] == u"mill" ? 1 : 0;
    ParamMac.ModeX = ligne[VeutX] == u"D" ? 1 : 0;
    ParamMac.DiffPoches = ligne[Poches].toDouble();
    ParamMac.JaugeMaxiX = ligne[MaxiX].toDouble();
    ParamMac.JaugeMaxiZ = ligne[MaxiZ].toDouble();
    ParamMac.TypeJauge = forme.typeJauge;
    ParamMac.RazDynamique = forme.razDynamique;
    Jauges.NbJauges = 0;
}

/// What stands ahead of the measures.
QStringList Entete()
{
    if (!ParamMac.EnParametresE())
        return {u"%"_s};
    return {u"%7999 (JAUGES OUTILS LE:"_s + QDate::currentDate().toString(u"MM-dd-yyyy"_s) + u')',
            ParamMac.EstTour() ? u"(JAUGE X     JAUGE Z    RAYON   LOCALISATEUR)"_s : u"(JAUGE L     JAUGE R)"_s};
}

void Mesure(const QStringList &ligne)
{
    Jauges.Jauge(++Jauges.NbJauges) = {ligne[Corr].toInt(),    ligne[Z].toFloat(), ligne[X].toFloat(),
                                       ligne[Rayon].toFloat(), ligne[Loc].toInt(), ligne[Mode].front()};
}

} // namespace

class TestCreFicJauge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Every form of file, to the byte, against measures that were calculated apart. The alarms come one by one, X
    // first, and stop nothing.
    void Calculees_data() { Rangees(Formes); }
    void Calculees()
    {
        const QList<QStringList> table = Table(u"jauges_calculees.tsv"_s);
        QVERIFY(table.size() >= 60);
        const Forme &forme = Rangee(Formes);
        const Poste poste(forme.langue);
        Transfert.DossierRecep = poste.Dossier();
        Transfert.NomFicRecep = u"OUTILS.JAU"_s;
        for (qsizetype i = 0; i < table.size();) { // the rows of one machine after another: one gauge file
            Operateur operateur;
            const QStringList machine = table[i].first(Corr);
            const auto passe = Passe(machine.join(u' '));
            Configure(machine, forme);
            QStringList attendu = Entete();
            for (; i < table.size() && table[i].first(Corr) == machine; ++i) {
                const QStringList &ligne = table[i];
                Mesure(ligne);
                attendu << ligne[forme.typeJauge == 1 ? FormeE : FormeD];
                if (forme.typeJauge == 1 && forme.razDynamique == 0)
                    attendu << ligne[Raz];
                for (const auto &[sonne, axe] : {std::pair{RingX, u"X"_s}, {RingZ, u"Z"_s}}) {
                    if (!ligne[sonne].isEmpty())
                        operateur.Repond(forme.titre.arg(axe), forme.texte.arg(axe) + ligne[sonne], Boite::Critique,
                                         QMessageBox::Ok);
                }
            }
            attendu << (forme.typeJauge == 1 ? QStringList{QString(), u"M02"_s} : QStringList()) << QString();
            Document.FichierModifie = true;
            CreFicJauge();
            QCOMPARE(QString::fromLatin1(poste.Lit("OUTILS.JAU")), attendu.join(u"\r\n"_s));
            QCOMPARE(frmPrinc->Text1->Text(), attendu.join(u"\r\n"_s));
            QCOMPARE((QStringList{Document.NomFichier, Document.TitreFichier}),
                     (QStringList{poste.Chemin("OUTILS.JAU"), Transfert.NomFicRecep}));
            QVERIFY(!Document.FichierModifie);
        }
    }
};

QTEST_MAIN(TestCreFicJauge)
#include "TestCreFicJauge.moc"
