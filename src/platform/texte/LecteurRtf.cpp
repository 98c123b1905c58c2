#include "platform/texte/LecteurRtf.h"

#include "platform/base/Erreur.h"
#include "platform/texte/CodagesRtf.h"

#include <QHash>

#include <algorithm>
#include <limits>
#include <new>
#include <utility>
#include <variant>
#include <vector>

namespace {

/// Where the text of a group goes: into the document, nowhere, or into one of the file's tables.
enum class Destination { Corps, Perdu, DoubleEcriture, Polices, Couleurs };

/// The look of the text in the file's terms: numbers of its font and colour tables, sizes in half points.
struct Style
{
    static constexpr int PoliceDuFichier = -1;
    static constexpr int TailleOrdinaire = 24;

    int police = PoliceDuFichier;
    int taille = TailleOrdinaire;
    int couleur = 0;
    int surlignage = 0;
    bool gras = false;
    bool italique = false;
    bool souligne = false;
    bool barre = false;
    bool cache = false; ///< hidden text, or text deleted under change tracking

    bool operator==(const Style &) const = default;
};

/// The state of the reader that a closing brace restores.
struct GroupeRtf
{
    Style style;
    Destination destination = Destination::Corps;
    int remplacements = 1; ///< number of substitute characters behind each \u, for readers without Unicode
};

struct Police
{
    QString nom;
    int page = 0; ///< code page; 0: that of the file
};

/// Reads the file in one pass. Groups are kept on a stack in memory instead of by recursion, so that their depth is not
/// limited.
class Lecteur
{
public:
    explicit Lecteur(const QByteArray &octets)
        : m_octets(octets)
    {
    }

    QList<MorceauRtf> Lit();

    // The handlers of control words. Their argument is the number behind the word, or Absente.
    static constexpr int Absente = std::numeric_limits<int>::min();
    void Rangee(int);
    void NonSouligne(int) { m_groupe.style.souligne = false; }
    void Ordinaire(int) { m_groupe.style = Style(); }
    void PoliceOrdinaire(int valeur) { m_policeOrdinaire = valeur; }
    void PageDeCode(int valeur);
    void PageMac(int) { m_page = 10000; }
    void PagePc(int) { m_page = 437; }
    void PagePca(int) { m_page = 850; }
    void Remplacements(int valeur) { m_groupe.remplacements = std::max(valeur, 0); }
    void Unicode(int valeur);

private:
    void OuvreGroupe();
    void FermeGroupe();
    void LitControle();
    void LitHexa();
    void LitMot();
    int LitValeur();
    void SauteBinaire(int taille);
    void AppliqueMot(const QByteArray &nom, int valeur, bool facultatif);
    void DecritPolice(const QByteArray &nom, int valeur);
    void DecritCouleur(const QByteArray &nom, int valeur);

    void Octet(char octet);
    void Caractere(QStringView texte);
    bool EstRemplacement();
    void VideOctets();
    int Page() const;
    void Ecrit(QStringView texte);
    AttributsRtf Attributs(const Style &style) const;

    QByteArray m_octets;
    qsizetype m_place = 0;
    GroupeRtf m_groupe;
    std::vector<GroupeRtf> m_pile;
    bool m_facultatif = false;    ///< a \* was just read: if the next word is unknown, its group is skipped
    int m_remplacements = 0;      ///< substitute characters of the last \u that are still to come
    QByteArray m_octetsEnAttente; ///< bytes of the body that are not decoded yet, since several can make one character

    int m_page = 0; ///< code page
    int m_policeOrdinaire = 0;
    QHash<int, Police> m_polices;
    int m_policeDecrite = 0;
    QList<QColor> m_couleurs;
    QColor m_couleurDecrite;

    QList<MorceauRtf> m_morceaux;
    Style m_styleMorceau;
};

struct FinLigne
{
};

/// What a control word does: insert a text, end a line, redirect the group's text, switch or set a part of the look, or
/// call a handler.
using Effet =
    std::variant<const char16_t *, FinLigne, Destination, bool Style::*, int Style::*, void (Lecteur::*)(int)>;

// The control words of the published format that the reader needs. All others are ignored.
const QHash<QByteArray, Effet> &Mots()
{
    static const QHash<QByteArray, Effet> mots = [] {
        QHash<QByteArray, Effet> table{
            {"tab", u"\t"},
            {"cell", u"\t"},
            {"nestcell", u"\t"},
            {"emdash", u"\u2014"},
            {"endash", u"\u2013"},
            {"bullet", u"\u2022"},
            {"lquote", u"\u2018"},
            {"rquote", u"\u2019"},
            {"ldblquote", u"\u201C"},
            {"rdblquote", u"\u201D"},
            {"emspace", u" "},
            {"enspace", u" "},
            {"qmspace", u" "},
            {"fonttbl", Destination::Polices},
            {"colortbl", Destination::Couleurs},
            {"upr", Destination::DoubleEcriture},
            {"b", &Style::gras},
            {"i", &Style::italique},
            {"strike", &Style::barre},
            {"striked", &Style::barre},
            {"v", &Style::cache},
            {"deleted", &Style::cache},
            {"f", &Style::police},
            {"fs", &Style::taille},
            {"cf", &Style::couleur},
            {"highlight", &Style::surlignage},
            {"cb", &Style::surlignage},
            {"chcbpat", &Style::surlignage},
            {"row", &Lecteur::Rangee},
            {"nestrow", &Lecteur::Rangee},
            {"ulnone", &Lecteur::NonSouligne},
            {"plain", &Lecteur::Ordinaire},
            {"deff", &Lecteur::PoliceOrdinaire},
            {"ansicpg", &Lecteur::PageDeCode},
            {"mac", &Lecteur::PageMac},
            {"pc", &Lecteur::PagePc},
            {"pca", &Lecteur::PagePca},
            {"uc", &Lecteur::Remplacements},
            {"u", &Lecteur::Unicode},
        };
        for (const char *mot : {"par", "line", "sect", "page", "column"})
            table.insert(mot, FinLigne());
        for (const char *mot : {"ul", "uld", "uldash", "uldb", "ulth", "ulw", "ulwave"})
            table.insert(mot, &Style::souligne);
        for (const char *mot : {"annotation", "atnauthor", "atnid",   "bkmkend",      "bkmkstart",  "filetbl",
                                "fldinst",    "footer",    "footerf", "footerl",      "footerr",    "footnote",
                                "header",     "headerf",   "headerl", "headerr",      "info",       "listoverridetable",
                                "listtable",  "listtext",  "mmathPr", "nonesttables", "nonshppict", "objclass",
                                "objdata",    "objname",   "pict",    "pntext",       "pntxta",     "pntxtb",
                                "revtbl",     "rxe",       "tc",      "tcn",          "txe",        "stylesheet",
                                "template",   "xe"})
            table.insert(mot, Destination::Perdu);
        return table;
    }();
    return mots;
}

bool EstLettre(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool EstChiffre(char c)
{
    return c >= '0' && c <= '9';
}

QList<MorceauRtf> Lecteur::Lit()
{
    if (!m_octets.startsWith("{\\rtf"))
        throw Erreur(Erreur::FormatRefuse, QStringLiteral("No rich text."));
    do {
        const char c = m_octets[m_place++];
        if (c == '{')
            OuvreGroupe();
        else if (c == '}')
            FermeGroupe();
        else if (c == '\\')
            LitControle();
        else if (static_cast<unsigned char>(c) >= ' ' || c == '\t')
            Octet(c); // line ends of the file itself mean nothing
    } while (!m_pile.empty() && m_place < m_octets.size());
    VideOctets();
    return std::move(m_morceaux);
}

void Lecteur::OuvreGroupe()
{
    VideOctets();
    m_remplacements = 0;
    m_facultatif = false;
    m_pile.push_back(m_groupe);
}

void Lecteur::FermeGroupe()
{
    VideOctets();
    m_remplacements = 0;
    m_groupe = m_pile.back();
    m_pile.pop_back();
}

void Lecteur::LitControle()
{
    if (m_place >= m_octets.size())
        return;
    if (EstLettre(m_octets[m_place])) {
        LitMot();
        return;
    }
    switch (const char c = m_octets[m_place++]) {
    case '\'':
        LitHexa();
        break;
    case '*':
        m_facultatif = true;
        break;
    case '\\':
    case '{':
    case '}':
    case '\t':
        Octet(c);
        break;
    case '~':
        Caractere(u"\u00A0");
        break;
    case '_':
        Caractere(u"-");
        break;
    case '\r':
    case '\n':
        AppliqueMot("par", Absente, false);
        break;
    default: // optional hyphens and index marks are invisible
        break;
    }
}

void Lecteur::LitHexa()
{
    bool valide = false;
    const int code = m_octets.mid(m_place, 2).toInt(&valide, 16);
    if (!valide)
        return;
    m_place = std::min(m_place + 2, m_octets.size());
    Octet(static_cast<char>(code));
}

void Lecteur::LitMot()
{
    const qsizetype debut = m_place;
    while (m_place < m_octets.size() && EstLettre(m_octets[m_place]))
        ++m_place;
    const QByteArray nom = m_octets.mid(debut, m_place - debut);
    const int valeur = LitValeur();
    if (m_place < m_octets.size() && m_octets[m_place] == ' ')
        ++m_place;

    const bool facultatif = std::exchange(m_facultatif, false);
    if (nom == "bin")
        SauteBinaire(valeur);
    else
        AppliqueMot(nom, valeur, facultatif);
}

int Lecteur::LitValeur()
{
    qsizetype place = m_place;
    const bool negative = place < m_octets.size() && m_octets[place] == '-';
    place += negative ? 1 : 0;
    if (place >= m_octets.size() || !EstChiffre(m_octets[place]))
        return Absente;
    qint64 valeur = 0;
    for (; place < m_octets.size() && EstChiffre(m_octets[place]); ++place)
        valeur = std::min<qint64>(valeur * 10 + (m_octets[place] - '0'), std::numeric_limits<int>::max());
    m_place = place;
    return static_cast<int>(negative ? -valeur : valeur);
}

void Lecteur::SauteBinaire(int taille)
{
    m_place += std::clamp<qsizetype>(taille, 0, m_octets.size() - m_place);
    EstRemplacement();
}

void Lecteur::AppliqueMot(const QByteArray &nom, int valeur, bool facultatif)
{
    const Destination destination = m_groupe.destination;
    if (destination == Destination::DoubleEcriture && nom == "ud") {
        m_groupe.destination = Destination::Corps;
        return;
    }
    const auto mot = Mots().constFind(nom);
    const bool connu = mot != Mots().constEnd();
    if (facultatif && !connu) {
        VideOctets();
        m_groupe.destination = Destination::Perdu;
    } else if (destination == Destination::Polices) {
        DecritPolice(nom, valeur);
    } else if (destination == Destination::Couleurs) {
        DecritCouleur(nom, valeur);
    } else if (connu && destination == Destination::Corps) {
        if (const auto *const texte = std::get_if<const char16_t *>(&*mot)) {
            Caractere(*texte);
            return;
        }
        VideOctets();
        if (std::holds_alternative<FinLigne>(*mot))
            Ecrit(u"\r\n");
        else if (const auto *const ailleurs = std::get_if<Destination>(&*mot))
            m_groupe.destination = *ailleurs;
        else if (const auto *const aspect = std::get_if<bool Style::*>(&*mot))
            m_groupe.style.*(*aspect) = valeur != 0;
        else if (const auto *const nombre = std::get_if<int Style::*>(&*mot))
            m_groupe.style.*(*nombre) = valeur == Absente ? Style().*(*nombre) : valeur;
        else
            (this->*std::get<void (Lecteur::*)(int)>(*mot))(valeur);
    }
}

void Lecteur::DecritPolice(const QByteArray &nom, int valeur)
{
    if (nom == "f") {
        m_policeDecrite = valeur;
        m_polices.insert(valeur, {});
    } else if (nom == "fcharset")
        m_polices[m_policeDecrite].page = PageDeJeu(valeur);
    else if (nom == "cpg")
        m_polices[m_policeDecrite].page = std::max(valeur, 0);
}

void Lecteur::DecritCouleur(const QByteArray &nom, int valeur)
{
    const int part = std::clamp(valeur, 0, 255);
    if (nom == "red")
        m_couleurDecrite.setRed(part);
    else if (nom == "green")
        m_couleurDecrite.setGreen(part);
    else if (nom == "blue")
        m_couleurDecrite.setBlue(part);
}

void Lecteur::Rangee(int)
{
    constexpr QChar Tabulation = u'\t';
    // Each cell ends with a tab. The tab behind the last cell of a row is removed.
    if (!m_morceaux.isEmpty() && m_morceaux.last().texte.endsWith(Tabulation))
        m_morceaux.last().texte.chop(1);
    Ecrit(u"\r\n");
}

void Lecteur::PageDeCode(int valeur)
{
    m_page = valeur;
}

void Lecteur::Unicode(int valeur)
{
    // The file writes codes above 32767 as negative numbers, and a character beyond 16 bits as two codes.
    const QChar caractere(static_cast<char16_t>(valeur));
    Ecrit({&caractere, 1});
    m_remplacements = m_groupe.remplacements;
}

/// Takes a byte of text, for the body or for the table that the group describes.
void Lecteur::Octet(char octet)
{
    if (m_groupe.destination == Destination::Corps) {
        if (!EstRemplacement())
            m_octetsEnAttente += octet;
    } else if (m_groupe.destination == Destination::Polices) {
        if (octet != ';')
            m_polices[m_policeDecrite].nom += QLatin1Char(octet);
    } else if (m_groupe.destination == Destination::Couleurs && octet == ';') {
        m_couleurs += std::exchange(m_couleurDecrite, QColor());
    }
}

/// Takes a character of the body that needs no decoding.
void Lecteur::Caractere(QStringView texte)
{
    if (EstRemplacement())
        return;
    VideOctets();
    Ecrit(texte);
}

/// True when the character just read is only a substitute for the last \u. Control words that end a line or change the
/// look never count as substitutes, even when the file says so: a lost line end would join two blocks of a program.
bool Lecteur::EstRemplacement()
{
    if (m_remplacements == 0)
        return false;
    --m_remplacements;
    return true;
}

void Lecteur::VideOctets()
{
    if (m_octetsEnAttente.isEmpty())
        return;
    const QByteArray octets = std::exchange(m_octetsEnAttente, QByteArray());
    Ecrit(TexteDePage(octets, Page()));
}

int Lecteur::Page() const
{
    const int police = m_groupe.style.police == Style::PoliceDuFichier ? m_policeOrdinaire : m_groupe.style.police;
    const int page = m_polices.value(police).page;
    return page == 0 ? m_page : page;
}

void Lecteur::Ecrit(QStringView texte)
{
    const Style &style = m_groupe.style;
    if (m_groupe.destination != Destination::Corps || style.cache)
        return;
    if (m_morceaux.isEmpty() || m_styleMorceau != style) {
        m_morceaux.append({QString(), Attributs(style)});
        m_styleMorceau = style;
    }
    m_morceaux.last().texte += texte;
}

AttributsRtf Lecteur::Attributs(const Style &style) const
{
    constexpr int TailleMin = 2;
    constexpr int TailleMax = 2 * 1638; // what word processors allow
    AttributsRtf attributs;
    attributs.police = m_polices.value(style.police == Style::PoliceDuFichier ? m_policeOrdinaire : style.police).nom;
    attributs.taille = std::clamp(style.taille, TailleMin, TailleMax) / 2.0;
    attributs.gras = style.gras;
    attributs.italique = style.italique;
    attributs.souligne = style.souligne;
    attributs.barre = style.barre;
    attributs.couleur = m_couleurs.value(style.couleur);
    attributs.surlignage = m_couleurs.value(style.surlignage);
    return attributs;
}

} // namespace

QList<MorceauRtf> LitRtf(const QByteArray &octets)
try {
    return Lecteur(octets).Lit();
} catch (const std::bad_alloc &) {
    throw Erreur(Erreur::MemoireInsuffisante, QStringLiteral("Out of memory"));
}
