#include "Essais.h"
#include "platform/fichiers/FichierTexte.h"
#include "platform/texte/LecteurRtf.h"

namespace {

/// The body of a rich text, and what is read of it.
const std::tuple<const char *, const char *, const char *> Corps[] = {
    {"lines of the file are no lines", "N10\r\n X1\\par\r\nN20", "N10 X1\r\nN20"},
    {"what makes a line end", "a\\par b\\line c\\\nd\\page\\sect", "a\r\nb\r\nc\r\nd\r\n\r\n"},
    {"signs behind a backslash", "\\{\\}\\\\\\~\\_x\\-y\\:z", "{}\\\u00A0-xyz"},
    {"bytes of the code page", "\\'e9\\'80\xE9\\'81", "\u00E9\u20AC\u00E9\u0081"},
    {"no hexadecimal digits", "a\\'zzb", "azzb"},
    {"Unicode", "\\u8364?\\u-3913?\\u233\\'e9x", "\u20AC\uF0B7\u00E9x"},
    {"how many stand-ins", "\\uc0\\u233 a{\\uc2\\u233 ??b}\\u233 c", "\u00E9a\u00E9b\u00E9c"},
    {"a brace ends the stand-ins", "{\\uc3\\u233 ?}abc", "\u00E9abc"},
    {"a word is a stand-in", "\\u8211\\endash x", "\u2013x"},
    {"a line end is no stand-in", "\\u233\\par N20", "\u00E9\r\n20"},
    {"unknown words and destinations", "a\\xyz12 b{\\xyz c}{\\*\\xyz d{e}\\par}f{\\*{\\b g}}", "abcfg"},
    {"known destinations", "{\\pict 00ff}{\\header h\\par}{\\info{\\title t}}{\\footnote n}x", "x"},
    {"hidden text", "a{\\v b\\par}{\\deleted c}\\v d\\v0 e\\v f\\plain g", "aeg"},
    {"fields", "{\\field{\\*\\fldinst PAGE}{\\fldrslt 7}}{\\field{\\fldinst PAGE}{\\fldrslt 8}}", "78"},
    {"objects and doubles", "{\\object{\\*\\objdata 00}{\\result r}}{\\upr{a?b}{\\*\\ud{a\\u233\\'e9b}}}c",
     "ra\u00E9bc"},
    {"tables", "\\trowd a\\cell b\\cell\\row c\\cell\\row", "a\tb\r\nc\r\n"},
    {"binary", "a{\\pict\\bin4 }}{\\}b\\bin2 {{c", "abc"},
    {"fonts of other scripts", "{\\fonttbl{\\f1\\fcharset238 X;}{\\f2\\fcharset128 Y;}}\\f1\\'e8\\f2\\'88\\'9f",
     "\u010D\u4E9C"},
    {"other code pages", "\\ansicpg1251\\'cf\\ansicpg1252\\'cf\\mac\\'8e", "\u041F\u00CF\u00E9"},
    {"a brace too many", "a}b{c", "a"},
    {"binary without end", "a\\bin99999999999999999999 bc", "a"},
    {"binary of less than nothing", "a\\bin-5 b", "ab"},
    {"colours and fonts out of range",
     "{\\colortbl\\red-7\\red99999999;}\\cf99999999999\\cf-3\\f-99999999999\\fs-5\\deff-1 a", "a"},
    {"an unknown code page", "\\ansicpg99999 a\\'e9", "a\uFFFD"},
};

const std::tuple<const char *, QString> Fichiers[] = {
    {"libreoffice.rtf",
     QStringLiteral("O4512 (Pi\u00E8ce n\u00B0 5 \u2013 \u00ABarbre\u00BB \u20AC \u03A9 \U0001F527)\r\n"
                    "N10 G0 X1.\r\nN20 G1 {a} \\b Z-5M6\r\na\tb\r\nun\r\n\u010D\u0159lien\u00A0fin\r\n")},
    {"wordpad.rtf", QStringLiteral("%\r\nO1234 (Bride \u00E9paul\u00E9e)\r\nN10 T1 M6\r\n"
                                   "N20 G0\tX12.5 Y\u20133\u00A0mm \u20AC\r\nN30 G1 {Z-1} \\ F100 M8\r\n"
                                   "\u041F M30\r\n%\r\n")}};

QString TexteDe(const QList<MorceauRtf> &morceaux)
{
    QString texte;
    for (const MorceauRtf &morceau : morceaux)
        texte += morceau.texte;
    return texte;
}

} // namespace

class TestLecteurRtf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texte_data() { Rangees(Corps); }
    void texte()
    {
        const auto &[nom, corps, attendu] = Rangee(Corps);
        QCOMPARE(TexteDe(LitRtf("{\\rtf1\\ansi " + QByteArray(corps) + "}")), QString::fromUtf8(attendu));
    }

    void refuse()
    {
        for (const char *octets : {"", "%;O1", "{", "{\\rt", " {\\rtf1 a}", "{\\urtf1 a}", "\\rtf1"}) {
            const auto passe = Passe(QString::fromLatin1(octets));
            QCOMPARE(NumeroErreur([&] { (void)LitRtf(octets); }), Erreur::FormatRefuse);
        }
    }

    // Files as the office programs write them; and whatever cuts it short, what stands before the cut is read.
    void fichierEntierPuisCoupe_data() { Rangees(Fichiers); }
    void fichierEntierPuisCoupe()
    {
        const auto &[nom, entier] = Rangee(Fichiers);
        const QByteArray octets = LitOctets(QStringLiteral(DONNEES) + u'/' + QLatin1String(nom));
        QCOMPARE(TexteDe(LitRtf(octets)), entier);
        for (qsizetype taille = 5; taille < octets.size(); ++taille) {
            QString lu = TexteDe(LitRtf(octets.left(taille)));
            lu.chop(std::min<qsizetype>(2, lu.size())); // a cut inside a word or a pair leaves its beginning
            QVERIFY2(entier.startsWith(lu), qPrintable(QString::number(taille)));
        }
    }

    void groupesSansNombre()
    {
        const QByteArray profond = "{\\rtf1 a" + QByteArray("{").repeated(100000);
        QCOMPARE(TexteDe(LitRtf(profond + "b" + QByteArray("}").repeated(100000) + "c}")), QStringLiteral("abc"));
    }
};

QTEST_GUILESS_MAIN(TestLecteurRtf)
#include "TestLecteurRtf.moc"
