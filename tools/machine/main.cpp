#include "machine/Banc.h"
#include "machine/Chronique.h"
#include "machine/Lien.h"
#include "machine/Options.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <poll.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>

namespace {
Reveil *finDemandee = nullptr; // for the signal handler only

void PrendSignaux(Reveil &reveil)
{
    finDemandee = &reveil;
    for (const int fin : {SIGINT, SIGTERM, SIGHUP})
        std::signal(fin, [](int) { finDemandee->Sonne(); });
    // These signals are ignored: a closed output must not leave the link behind, and a machine in the background must
    // not be stopped because it reads the keyboard.
    for (const int sansEffet : {SIGPIPE, SIGTTIN, SIGTTOU})
        std::signal(sansEffet, SIG_IGN);
}

/// The operator of the machine, who types one letter and Enter.
class Pupitre
{
public:
    /// Raises ListeFausse.
    Pupitre(MachineSimulee &machine, const Options &options);

    /// Obeys the keyboard until the key q or a signal. Without a keyboard only a signal ends it.
    void Travaille(const Reveil &reveil);

private:
    bool Execute(const QByteArray &ordre);
    void Envoie();
    void Mesure();

    MachineSimulee &m_machine;
    const Options &m_options;
    std::optional<Banc> m_banc;
};

QByteArray Contenu(const QString &chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly))
        throw std::runtime_error((chemin + QStringLiteral(": ") + fichier.errorString()).toStdString());
    return fichier.readAll();
}

Pupitre::Pupitre(MachineSimulee &machine, const Options &options)
    : m_machine(machine)
    , m_options(options)
{
    if (!options.Banc.isEmpty())
        m_banc.emplace(Contenu(options.Banc));
}

void Pupitre::Travaille(const Reveil &reveil)
{
    Chronique::Dit(
        QStringLiteral("Keys, each with Enter: h hold (XOFF), r resume (XON), z reset, e send, b next tool of "
                       "the bench, q quit"));
    std::array<pollfd, 2> attentes{{{STDIN_FILENO, POLLIN, 0}, {reveil.Descripteur(), POLLIN, 0}}};
    QByteArray saisie;
    while (attentes[1].revents == 0) {
        if (poll(attentes.data(), attentes.size(), -1) <= 0 || attentes[0].revents == 0)
            continue;
        std::array<char, 256> octets{};
        const ssize_t lus = read(STDIN_FILENO, octets.data(), octets.size());
        if (lus <= 0) {
            attentes[0] = {-1, 0, 0};
            continue;
        }
        saisie.append(octets.data(), lus);
        for (qsizetype fin = saisie.indexOf('\n'); fin >= 0; fin = saisie.indexOf('\n')) {
            const QByteArray ordre = saisie.first(fin).trimmed();
            saisie.remove(0, fin + 1);
            if (!Execute(ordre))
                return;
        }
    }
}

bool Pupitre::Execute(const QByteArray &ordre)
{
    if (ordre == "q")
        return false;
    if (ordre == "h")
        m_machine.Retient();
    else if (ordre == "r")
        m_machine.Reprend();
    else if (ordre == "z")
        m_machine.RemetAZero();
    else if (ordre == "e")
        Envoie();
    else if (ordre == "b")
        Mesure();
    else if (!ordre.isEmpty())
        Chronique::Dit(QStringLiteral("No such key"));
    return true;
}

void Pupitre::Envoie()
{
    QFile fichier(m_options.AEnvoyer);
    if (!fichier.open(QIODevice::ReadOnly)) {
        Chronique::Dit(QStringLiteral("Nothing to send (--envoie): ") + fichier.errorString());
        return;
    }
    Envoi envoi = m_options.ModeleEnvoi;
    envoi.Texte = fichier.readAll();
    m_machine.Emet(envoi);
}

void Pupitre::Mesure()
{
    if (!m_banc) {
        Chronique::Dit(QStringLiteral("No tool to measure (--banc)"));
        return;
    }
    Envoi salve = m_options.ModeleSalve;
    salve.Texte = m_banc->Mesure();
    Chronique::Dit(QStringLiteral("Tool %1 of %2: %3")
                       .arg(m_banc->Numero())
                       .arg(m_banc->Nombre())
                       .arg(QString::fromLatin1(salve.Texte.simplified())));
    if (m_options.Cloche > 0)
        salve.Texte.insert(std::min<qsizetype>(m_options.Cloche - 1, salve.Texte.size()), '\a');
    m_machine.Emet(salve);
}

void Sert(const Options &options, const Reveil &fin)
{
    if (!options.Stockage.isEmpty() && !QDir().mkpath(options.Stockage))
        throw std::runtime_error("cannot make the folder of --stockage");
    Chronique chronique(options.Machine.Ligne, options.Stockage);
    MachineSimulee machine(options.Machine, &chronique);
    std::optional<Lien> lien;
    if (!options.Lien.isEmpty())
        lien.emplace(options.Lien, machine.Chemin());
    Chronique::Dit(QStringLiteral("Machine on %1").arg(options.Lien.isEmpty() ? machine.Chemin() : options.Lien));
    Pupitre(machine, options).Travaille(fin);
}
} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    try {
        const Options options = LitOptions(QCoreApplication::arguments());
        Reveil fin; // outlives the machine, since a second signal may come while that is being switched off
        PrendSignaux(fin);
        Sert(options, fin);
        return 0;
    } catch (const OptionFausse &erreur) {
        std::fprintf(stderr, "machine: %s\n", erreur.what());
        return 2;
    } catch (const std::exception &erreur) {
        std::fprintf(stderr, "machine: %s\n", erreur.what());
        return 1;
    }
}
