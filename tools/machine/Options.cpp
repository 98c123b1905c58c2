#include "machine/Options.h"

#include <QCommandLineParser>

#include <algorithm>

namespace {
// The options, in the order of the help: name, name of the value (none: a switch), default, text.
struct Description
{
    const char *Nom;
    const char *Valeur;
    const char *Defaut;
    const char *Texte;
};
constexpr Description Descriptions[] = {
    {"lien", "path", "", "Ties the line to this name, which the PC opens; an old link of that name is replaced."},
    {"reglage", "settings", "", "Line settings such as 9600,e,7,1 (speed, parity, data bits, stop bits)."},
    {"vitesse", "bit/s", "9600", "Line speed, where --reglage is not given; 0: the line takes no time."},
    {"bits", "count", "10", "Bits of one character, start, parity and stop included, where --reglage is not given."},
    {"debut", "codes", "", "Beginning-of-program chain as character codes, such as 37,13,10."},
    {"fin", "codes", "4", "End-of-transfer chain as character codes, such as 13,4."},
    {"sans-flux", nullptr, "", "Neither says nor obeys XON and XOFF."},
    {"tampon", "characters", "1024", "Depth of the receive buffer."},
    {"haut", "characters", "", "XOFF is said when so many wait (three quarters of the buffer)."},
    {"bas", "characters", "", "XON is said when no more than this wait (a quarter of the buffer)."},
    {"debit", "characters/s", "0", "What the machine's processor takes out of the buffer; 0: all at once."},
    {"retient", "n[,ms]", "", "Holds the PC once n characters have come, for so many ms or until r. May be repeated."},
    {"stockage", "folder", "", "Stores each received program there, without its chains, as 001.txt and so on."},
    {"envoie", "file", "", "The program that the machine sends at the key e."},
    {"pause", "ms", "0", "Silence behind each line that the machine sends."},
    {"coupe", "n", "", "The machine falls silent after n characters of what it sends."},
    {"sans-fin", nullptr, "", "The machine does not send the end-of-transfer chain."},
    {"banc", "file", "", "The tools of a presetting bench, which sends the next one at the key b."},
    {"cloche", "n", "", "The bench rings (character 7) before character n of each burst; 1: before the burst."},
    {"morceaux", "n,ms", "", "The bench sends its bursts in pieces of n characters, with so many ms between them."},
};

[[noreturn]] void Refuse(const char *option, const QString &valeur)
{
    throw OptionFausse(
        QStringLiteral("--%1: \"%2\" means nothing here").arg(QLatin1String(option), valeur).toStdString());
}

void DecritOptions(QCommandLineParser &lecteur)
{
    lecteur.setApplicationDescription(QStringLiteral(
        "A machine tool control, and a presetting bench, at the end of a serial line, on a pseudo-terminal."));
    lecteur.addHelpOption();
    for (const Description &option : Descriptions) {
        lecteur.addOption({QString::fromLatin1(option.Nom), QString::fromLatin1(option.Texte),
                           QString::fromLatin1(option.Valeur), QString::fromLatin1(option.Defaut)});
    }
}

/// Takes the values of the options, each in its form.
class Valeurs
{
public:
    explicit Valeurs(const QCommandLineParser &lecteur)
        : m_lecteur(lecteur)
    {
    }
    bool Mis(const char *option) const { return m_lecteur.isSet(QLatin1String(option)); }
    QString Texte(const char *option) const { return m_lecteur.value(QLatin1String(option)); }
    QStringList Textes(const char *option) const { return m_lecteur.values(QLatin1String(option)); }

    int Entier(const char *option, int minimum, int siAbsent = 0) const
    {
        if (Texte(option).isEmpty())
            return siAbsent;
        bool juste = false;
        const int nombre = Texte(option).toInt(&juste);
        if (!juste || nombre < minimum)
            Refuse(option, Texte(option));
        return nombre;
    }
    QByteArray Codes(const char *option) const
    {
        const std::optional<QByteArray> codes = LitCodes(Texte(option));
        if (!codes)
            Refuse(option, Texte(option));
        return *codes;
    }

private:
    const QCommandLineParser &m_lecteur;
};

ReglageLigne Ligne(const Valeurs &valeurs)
{
    if (valeurs.Mis("reglage")) {
        const std::optional<ReglageLigne> ligne = LitReglageLigne(valeurs.Texte("reglage"));
        if (!ligne)
            Refuse("reglage", valeurs.Texte("reglage"));
        return *ligne;
    }
    const double bits = valeurs.Texte("bits").toDouble();
    if (bits < 7 || bits > 12)
        Refuse("bits", valeurs.Texte("bits"));
    return {valeurs.Entier("vitesse", 0), int(bits * 2)};
}

Arret LitArret(const QString &texte)
{
    const QStringList champs = texte.split(u',');
    bool nombreJuste = false;
    bool dureeJuste = true;
    const Arret arret{champs[0].toLongLong(&nombreJuste), champs.size() > 1 ? champs[1].toInt(&dureeJuste) : -1};
    if (!nombreJuste || !dureeJuste || arret.Apres < 1 || champs.size() > 2)
        Refuse("retient", texte);
    return arret;
}

Envoi Salves(const Valeurs &valeurs)
{
    Envoi salve;
    salve.Salve = true;
    const QString texte = valeurs.Texte("morceaux");
    if (texte.isEmpty())
        return salve;
    const QStringList champs = texte.split(u',');
    salve.Morceau = champs[0].toInt();
    salve.PauseLigneMs = champs.size() == 2 ? champs[1].toInt() : 0;
    if (salve.Morceau < 1 || salve.PauseLigneMs < 1)
        Refuse("morceaux", texte);
    return salve;
}

ReglageTampon Tampon(const Valeurs &valeurs)
{
    ReglageTampon tampon;
    tampon.Profondeur = valeurs.Entier("tampon", 1);
    tampon.MarqueHaute = valeurs.Entier("haut", 1, std::max(1, tampon.Profondeur * 3 / 4));
    tampon.MarqueBasse = valeurs.Entier("bas", 0, tampon.Profondeur / 4);
    tampon.Debit = valeurs.Entier("debit", 0);
    if (tampon.MarqueHaute > tampon.Profondeur || tampon.MarqueBasse >= tampon.MarqueHaute)
        throw OptionFausse("the marks must stand in order: --bas below --haut, --haut no higher than --tampon");
    for (const QString &texte : valeurs.Textes("retient")) {
        if (!texte.isEmpty())
            tampon.Arrets.push_back(LitArret(texte));
    }
    std::sort(tampon.Arrets.begin(), tampon.Arrets.end(),
              [](const Arret &un, const Arret &autre) { return un.Apres < autre.Apres; });
    return tampon;
}
} // namespace

Options LitOptions(const QStringList &arguments)
{
    QCommandLineParser lecteur;
    DecritOptions(lecteur);
    lecteur.process(arguments);
    const Valeurs valeurs(lecteur);

    Options options;
    options.Machine = {Ligne(valeurs), Tampon(valeurs), valeurs.Codes("debut"), valeurs.Codes("fin"),
                       !valeurs.Mis("sans-flux")};
    options.Lien = valeurs.Texte("lien");
    options.Stockage = valeurs.Texte("stockage");
    options.AEnvoyer = valeurs.Texte("envoie");
    options.ModeleEnvoi.PauseLigneMs = valeurs.Entier("pause", 0);
    options.ModeleEnvoi.CoupeApres = valeurs.Entier("coupe", 0, -1);
    options.ModeleEnvoi.SansFin = valeurs.Mis("sans-fin");
    options.Banc = valeurs.Texte("banc");
    options.ModeleSalve = Salves(valeurs);
    options.Cloche = valeurs.Entier("cloche", 1);
    return options;
}

std::optional<QByteArray> LitCodes(const QString &texte)
{
    QByteArray caracteres;
    if (texte.isEmpty())
        return caracteres;
    for (const QString &champ : texte.split(u',')) {
        bool juste = false;
        const ushort code = champ.toUShort(&juste);
        if (!juste || code > 255)
            return std::nullopt;
        caracteres += char(code);
    }
    return caracteres;
}

std::optional<ReglageLigne> LitReglageLigne(const QString &texte)
{
    const QStringList champs = texte.split(u',');
    if (champs.size() != 4 || champs[1].size() != 1)
        return std::nullopt;
    bool vitesseJuste = false;
    const int vitesse = champs[0].toInt(&vitesseJuste);
    const qsizetype parite = QStringLiteral("neoms").indexOf(champs[1], 0, Qt::CaseInsensitive);
    const int donnees = champs[2].toInt();
    const qsizetype arret =
        QStringList{QStringLiteral("1"), QStringLiteral("1.5"), QStringLiteral("2")}.indexOf(champs[3]);
    if (!vitesseJuste || vitesse <= 0 || parite < 0 || donnees < 5 || donnees > 8 || arret < 0)
        return std::nullopt;
    constexpr int DepartDemiBits = 2;
    const int pariteDemiBits = parite == 0 ? 0 : 2;
    return ReglageLigne{vitesse, DepartDemiBits + 2 * donnees + pariteDemiBits + 2 + int(arret)};
}
