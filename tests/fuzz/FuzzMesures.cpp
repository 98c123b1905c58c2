#include "fuzz/Fuzz.h"

#include "gauges/Filtrage.h"
#include "gauges/FiltreJauge.h"
#include "gauges/Jauge.h"
#include "gauges/Lignes.h"
#include "gauges/ParamMac.h"
#include "platform/Erreur.h"
#include "platform/PageCode1252.h"
#include "transfer/Transfert.h"

#include <QApplication>
#include <QDialog>
#include <QFileInfo>
#include <QTimer>

namespace {

/// Closes every question that comes, as an operator does who cancels.
void FermeBoites()
{
    static QTimer *const ferme = [] {
        auto *const timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, [] {
            if (auto *const boite = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
                boite->reject();
        });
        timer->start(0);
        return timer;
    }();
    Q_UNUSED(ferme);
}

} // namespace

// What a bench may send, up to the gauge file. The first two bytes choose the machine and the number of measures.
void Essaie(const QByteArray &octets)
{
    if (octets.size() < 2)
        return;
    FermeBoites();
    VideJauges();
    ParamMac = {};
    ParamMac.TypeMachine = 1; // a mill asks nothing at the dial
    ParamMac.TypeJauge = octets[0] & 1;
    ParamMac.ModeX = (octets[0] >> 1) & 1;
    NbJauges = 1 + static_cast<unsigned char>(octets[1]) % 8;
    DossierRecep = QFileInfo(Pose("JAUGES.JAU", {})).path();
    NomFicRecep = QStringLiteral("JAUGES.JAU");
    CalculeLigne(TexteDe1252(octets.mid(2)));
    try {
        FiltreJauge();
    } catch (const Erreur &) {
    }
    Filtrage();
    for (int ligne = 1; ligne <= LigneMaxi; ++ligne)
        for (const QChar caractere : Lignes.at(static_cast<std::size_t>(ligne)))
            EXIGE(caractere >= u' ');
    VideLignes();
}
