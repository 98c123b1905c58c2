#include "endurance/Epreuve.h"
#include "endurance/Ressources.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QPixmapCache>
#include <QTextStream>

#include <array>
#include <numeric>

namespace {

#ifdef __SANITIZE_ADDRESS__
constexpr bool JugeMemoire = false; // the sanitizer keeps freed memory for a while, and reports leaks by itself
#else
constexpr bool JugeMemoire = true;
#endif
constexpr double CroissanceMax = 1.02; // the toolkit's fonts and tables still grow for a while
constexpr int ObjetsUniques = 2;       // made once by the toolkit, at any time; a leak would be one for each transfer
constexpr qsizetype Fenetre = 100;     // number of transfers at either end whose memory is compared

constexpr const char *Noms[] = {"whole file, sent", "line by line, sent", "received by character",
                                "received by line", "received by file",   "bench"};
constexpr Sort Sorts[] = {Sort::Entier, Sort::Annule, Sort::Debranche};

using Bilan = std::array<std::array<int, std::size(Sorts)>, std::size(Genres)>;

QTextStream &Sortie()
{
    static QTextStream sortie(stdout);
    return sortie;
}

template <typename... Colonnes>
void Ecrit(const char *nom, Colonnes... colonnes)
{
    Sortie() << QString::fromLatin1(nom).leftJustified(28);
    for (const QString &colonne : {QString(colonnes)...})
        Sortie() << colonne.rightJustified(12);
    Sortie() << Qt::endl;
}

void EcritBilan(const Bilan &bilan)
{
    const auto texte = [](int nombre) { return QString::number(nombre); };
    const auto titre = [](const char *mot) { return QString::fromLatin1(mot); };
    Ecrit("", titre("transfers"), titre("completed"), titre("cancelled"), titre("unplugged"));
    for (std::size_t i = 0; i < bilan.size(); ++i) {
        const auto &[entiers, annules, debranches] = bilan[i];
        Ecrit(Noms[i], texte(entiers + annules + debranches), texte(entiers), texte(annules), texte(debranches));
    }
}

/// Prints a row of the table of resources; false when the figure is not as it should be.
bool EcritCompte(const char *nom, qint64 avant, qint64 apres, bool juste)
{
    Ecrit(nom, QString::number(avant), QString::number(apres), QString::fromLatin1(juste ? "" : "WRONG"));
    return juste;
}

qint64 Moyenne(const qint64 *debut, qsizetype nombre)
{
    return std::accumulate(debut, debut + nombre, qint64(0)) / nombre;
}

/// serie: the memory after each transfer, in kB.
bool EcritMemoire(const char *nom, const QList<qint64> &serie)
{
    const qsizetype nombre = std::min(Fenetre, serie.size());
    const qint64 premiers = Moyenne(serie.constData(), nombre);
    const qint64 derniers = Moyenne(serie.constData() + serie.size() - nombre, nombre);
    return EcritCompte(nom, premiers, derniers, !JugeMemoire || double(derniers) <= double(premiers) * CroissanceMax);
}

bool EcritRessources(const Ressources &avant, const Ressources &apres, const QList<qint64> &tas,
                     const QList<qint64> &pages)
{
    Ecrit("", QStringLiteral("before"), QStringLiteral("after"));
    bool juste = EcritMemoire("heap in use of 100, kB", tas);
    juste = EcritMemoire("resident of 100, kB", pages) && juste;
    juste = EcritCompte("open descriptors", avant.descripteurs, apres.descripteurs,
                        apres.descripteurs == avant.descripteurs) &&
            juste;
    juste = EcritCompte("living objects", avant.objets, apres.objets, apres.objets <= avant.objets + ObjetsUniques) &&
            juste;
    return EcritCompte("top-level windows", avant.fenetres, apres.fenetres, apres.fenetres == avant.fenetres) && juste;
}

/// Plays nombre transfers of each kind, in turns: the first and the last hundred then contain all kinds.
bool Endure(const Poste &poste, int nombre, quint32 graine)
{
    // The toolkit would fill this cache for thousands of transfers. With a limit of 0 it keeps only the names of its
    // entries.
    QPixmapCache::setCacheLimit(0);
    Epreuve epreuve(poste, graine);
    // One transfer of each kind and ending first makes whatever is made once for the whole process.
    for (const Genre genre : Genres) {
        for (const Sort sort : Sorts)
            epreuve.Joue(genre, sort);
    }
    const Ressources avant = CompteRessources();
    Bilan bilan{};
    QList<qint64> tas;
    QList<qint64> pages;
    for (QList<qint64> *const serie : {&tas, &pages})
        serie->reserve(nombre * qsizetype(std::size(Genres))); // so that this list itself does not grow
    for (int i = 0; i < nombre; ++i) {
        for (const Genre genre : Genres) {
            ++bilan[std::size_t(genre)][std::size_t(epreuve.Joue(genre, epreuve.Tire()))];
            tas += Tas();
            pages += Pages();
        }
    }
    const Ressources apres = CompteRessources();
    EcritBilan(bilan);
    const bool juste = EcritRessources(avant, apres, tas, pages);
    for (const QString &ecart : epreuve.Ecarts())
        Sortie() << "WRONG: " << ecart << Qt::endl;
    return juste && epreuve.Ecarts().isEmpty();
}

/// Drops a warning that the platform without a display gives for each window.
void Dit(QtMsgType genre, const QMessageLogContext &contexte, const QString &message)
{
    if (!message.contains(QLatin1String("propagateSizeHints")))
        QTextStream(stderr) << qFormatLogMessage(genre, contexte, message) << Qt::endl;
}

} // namespace

int main(int nombre, char *arguments[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen"); // no display is needed
    qInstallMessageHandler(Dit);
    CompteObjets();
    const QApplication application(nombre, arguments);
    QCommandLineParser lecteur;
    lecteur.setApplicationDescription(QStringLiteral(
        "Plays transfers of each kind with the simulated machine, some cancelled or unplugged, and compares them.\n"
        "Ends with 0 only if every one that was whole is exact and nothing is left over."));
    lecteur.addHelpOption();
    const QCommandLineOption chaque(QStringLiteral("chaque"), QStringLiteral("Transfers of each kind."),
                                    QStringLiteral("number"), QStringLiteral("1000"));
    const QCommandLineOption graine(QStringLiteral("graine"), QStringLiteral("Random seed."), QStringLiteral("number"),
                                    QStringLiteral("1"));
    lecteur.addOptions({chaque, graine});
    lecteur.process(application);
    const Poste poste(0);
    Sortie() << "seed " << lecteur.value(graine) << Qt::endl;
    return Endure(poste, std::max(1, lecteur.value(chaque).toInt()), lecteur.value(graine).toUInt()) ? 0 : 1;
}
