// Measures the time from the start of the process until the main window is painted, compared with an empty window of
// Qt. Each start is a process of its own, which ends after its first painting.

#include "Mesure.h"

#include "donnees/Chemins.h"
#include "donnees/Reglages.h"
#include "locale/Langue.h"
#include "platform/controles/Polices.h"
#include "programme/Demarrage.h"
#include "programme/Menus.h"
#include "shell/Disposition.h"
#include "shell/FrmPrinc.h"

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>

namespace {

/// Ends the process when the window has been painted.
class FinALaPeinture : public QObject
{
public:
    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        if (evenement->type() == QEvent::Paint)
            QMetaObject::invokeMethod(
                qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
        return QObject::eventFilter(objet, evenement);
    }
};

int Ouvre(QWidget &fenetre)
{
    FinALaPeinture fin;
    fenetre.installEventFilter(&fin);
    fenetre.show();
    return QApplication::exec();
}

int OuvreProgramme(int nombre, char *arguments[])
{
    const std::future<void> polices = LitPolices();
    const QApplication application(nombre, arguments);
    FixeDossierApplication(QString::fromLocal8Bit(arguments[2]));
    AppliqueLangueSysteme();
    polices.wait();
    FrmPrinc fenetre;
    Branche();
    RemetDisposition(fenetre);
    Form_Load();
    return Ouvre(fenetre);
}

int OuvreFenetreVide(int nombre, char *arguments[])
{
    const QApplication application(nombre, arguments);
    QWidget fenetre;
    fenetre.resize(900, 640);
    return Ouvre(fenetre);
}

double Demarre(const QString &role, const QString &dossier)
{
    return SecondesDe([&] { QProcess::execute(QCoreApplication::applicationFilePath(), {role, dossier}); });
}

} // namespace

int main(int nombre, char *arguments[])
{
    if (nombre == 3)
        return qstrcmp(arguments[1], "programme") == 0 ? OuvreProgramme(nombre, arguments)
                                                       : OuvreFenetreVide(nombre, arguments);
    const QCoreApplication application(nombre, arguments);
    const QTemporaryDir dossier;
    FixeDossierApplication(dossier.path());
    SauveIni();
    // The two are started alternately, so that other load on the PC affects both alike.
    constexpr int fois = 61;
    QList<double> vides;
    const double rapport = Mediane(fois, [&] {
        const double programme = Demarre(QStringLiteral("programme"), dossier.path());
        vides << Demarre(QStringLiteral("vide"), dossier.path());
        return programme / vides.last();
    });
    const double vide = Mediane(vides);
    return Montre({QStringLiteral("from start to the main window, s / an empty window"), rapport * vide, vide,
                   QStringLiteral("bare Qt widget"), rapport, 1.5})
               ? 0
               : 1;
}
