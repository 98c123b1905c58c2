#include "platform/base/PageCode1252.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

constexpr int DebutHauts = 0x80;

// Characters of the bytes 0x80 to 0x9F, from the published table of the code page. All other bytes are as in Latin 1.
constexpr std::array<char16_t, 32> Hauts{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                         0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                         0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                         0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// Names in manuals of controls, by code.
constexpr const char *Noms[] = {"NUL", "SOH", "STX", "ETX", "EOT", "ENQ", "ACK", "BEL", "BS",  "HT",  "LF",
                                "VT",  "FF",  "CR",  "SO",  "SI",  "DLE", "DC1", "DC2", "DC3", "DC4", "NAK",
                                "SYN", "ETB", "CAN", "EM",  "SUB", "ESC", "FS",  "GS",  "RS",  "US",  "SP"};

bool EstHaut(char16_t code)
{
    return code >= DebutHauts && code < DebutHauts + Hauts.size();
}

/// The byte of a character, or -1 when the code page lacks it.
int Octet(char16_t code)
{
    if (code < DebutHauts || (code > 0x9F && code <= 0xFF))
        return code;
    const auto place = std::find(Hauts.begin(), Hauts.end(), code);
    return place == Hauts.end() ? -1 : DebutHauts + static_cast<int>(place - Hauts.begin());
}

} // namespace

QString TexteDe1252(const QByteArray &octets)
{
    QString texte = QString::fromLatin1(octets);
    for (qsizetype i = 0; i < octets.size(); ++i) {
        const auto octet = static_cast<unsigned char>(octets[i]);
        if (EstHaut(octet))
            texte[i] = QChar(Hauts[octet - DebutHauts]);
    }
    return texte;
}

QByteArray OctetsEn1252(const QString &texte)
{
    QByteArray octets(texte.size(), Qt::Uninitialized);
    std::transform(texte.begin(), texte.end(), octets.begin(), [](QChar caractere) {
        const int octet = Octet(caractere.unicode());
        return static_cast<char>(octet < 0 ? '?' : octet);
    });
    return octets;
}

bool EstEn1252(QChar caractere)
{
    return Octet(caractere.unicode()) >= 0;
}

QString NomCaractere(int code)
{
    constexpr int suppression = 127;
    if (code < static_cast<int>(std::size(Noms)))
        return QLatin1String(Noms[code]);
    return code == suppression ? QStringLiteral("DEL") : QString();
}

QString ControlesVisibles(const QString &texte)
{
    QString visible;
    for (const QChar caractere : texte) {
        const QString nom = caractere == u' ' ? QString() : NomCaractere(caractere.unicode());
        visible += nom.isEmpty() ? QString(caractere) : u'<' + nom + u'>';
    }
    return visible;
}
