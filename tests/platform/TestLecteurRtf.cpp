#include "platform/Erreur.h"
#include "platform/FichierTexte.h"
#include "platform/LecteurRtf.h"

#include <QTest>

namespace {

QString TexteDe(const QByteArray &octets)
{
    QString texte;
    for (const MorceauRtf &morceau : LitRtf(octets))
        texte += morceau.texte;
    return texte;
}

QList<MorceauRtf> LitDonnee(const char *nom)
{
    return LitRtf(LitOctets(QStringLiteral(DONNEES) + QLatin1Char('/') + QLatin1String(nom)));
}

/// The look of the stretch that holds texte.
AttributsRtf AspectDe(const QList<MorceauRtf> &morceaux, const QString &texte)
{
    for (const MorceauRtf &morceau : morceaux) {
        if (morceau.texte.contains(texte))
            return morceau.attributs;
    }
    return {};
}

} // namespace

class TestLecteurRtf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texte_data()
    {
        QTest::addColumn<QByteArray>("corps");
        QTest::addColumn<QString>("attendu");
        const auto cas = [](const char *nom, const QByteArray &corps, const QString &attendu) {
            QTest::newRow(nom) << corps << attendu;
        };
        cas("empty", "", {});
        cas("lines of the file are no lines", "N10\r\n X1\\par\r\nN20", QStringLiteral("N10 X1\r\nN20"));
        cas("line ends", "a\\par b\\line c\\\nd\\page\\sect", QStringLiteral("a\r\nb\r\nc\r\nd\r\n\r\n"));
        cas("tabs", "a\\tab b\tc\\\td", QStringLiteral("a\tb\tc\td"));
        cas("escapes", "\\{\\}\\\\\\~\\_x\\-y\\:z", QStringLiteral("{}\\\u00A0-xyz"));
        cas("a delimiter blank is part of the word", "\\b  a\\b0 b", QStringLiteral(" ab"));
        cas("named characters", "\\emdash\\endash\\bullet\\lquote\\rquote\\ldblquote\\rdblquote\\emspace",
            QStringLiteral("\u2014\u2013\u2022\u2018\u2019\u201C\u201D "));
        cas("bytes", "\\'e9\\'80\xE9\\'81", QStringLiteral("\u00E9\u20AC\u00E9\u0081"));
        cas("bad hexadecimal", "a\\'zzb", QStringLiteral("azzb"));
        cas("unicode", "\\u8364?\\u-3913?\\u233\\'e9x", QStringLiteral("\u20AC\uF0B7\u00E9x"));
        cas("unicode pair", "\\u-10179?\\u-8921?.", QStringLiteral("\U0001F527."));
        cas("no stand-in", "\\uc0\\u233 a{\\uc2\\u233 ??b}\\u233 c", QStringLiteral("\u00E9a\u00E9b\u00E9c"));
        cas("a brace ends the stand-ins", "{\\uc3\\u233 ?}abc", QStringLiteral("\u00E9abc"));
        cas("a word as stand-in", "\\u8211\\endash x", QStringLiteral("\u2013x"));
        cas("a line end is no stand-in", "\\u233\\par N20", QStringLiteral("\u00E9\r\n20"));
        cas("unknown words and groups", "a\\xyz12 b{\\xyz c}{\\*\\xyz d{e}\\par}f{\\*{\\b g}}",
            QStringLiteral("abcfg"));
        cas("what is not the body", "{\\pict 00ff}{\\header h\\par}{\\info{\\title t}}{\\footnote n}x",
            QStringLiteral("x"));
        cas("hidden and deleted", "a{\\v b\\par}{\\deleted c}\\v d\\v0 e\\v f\\plain g", QStringLiteral("aeg"));
        cas("field", "{\\field{\\*\\fldinst PAGE}{\\fldrslt 7}}{\\field{\\fldinst PAGE}{\\fldrslt 8}}",
            QStringLiteral("78"));
        cas("object", "{\\object{\\*\\objdata 00}{\\result r}}", QStringLiteral("r"));
        cas("two writings", "{\\upr{a?b}{\\*\\ud{a\\u233\\'e9b}}}c", QStringLiteral("a\u00E9bc"));
        cas("rows", "\\trowd a\\cell b\\cell\\row c\\cell\\row", QStringLiteral("a\tb\r\nc\r\n"));
        cas("binary", "a{\\pict\\bin4 }}{\\}b\\bin2 {{c", QStringLiteral("abc"));
        cas("code page of a font", "{\\fonttbl{\\f1\\fcharset238 X;}{\\f2\\fcharset128 Y;}}\\f1\\'e8\\f2\\'88\\'9f",
            QStringLiteral("\u010D\u4E9C"));
        cas("code page of the file", "\\ansicpg1251\\'cf\\ansicpg1252\\'cf\\mac\\'8e",
            QStringLiteral("\u041F\u00CF\u00E9"));
        cas("behind the end", "a}b{c", QStringLiteral("a"));
    }

    void texte()
    {
        QFETCH(QByteArray, corps);
        QFETCH(QString, attendu);
        QCOMPARE(TexteDe("{\\rtf1\\ansi " + corps + "}"), attendu);
    }

    void refuse_data()
    {
        QTest::addColumn<QByteArray>("octets");
        for (const char *octets : {"", "%;O1", "{", "{\\rt", " {\\rtf1 a}", "{\\urtf1 a}", "\\rtf1"})
            QTest::newRow(octets) << QByteArray(octets);
    }

    void refuse()
    {
        QFETCH(QByteArray, octets);
        try {
            (void)LitRtf(octets);
            QFAIL("accepted");
        } catch (const Erreur &erreur) {
            QCOMPARE(erreur.Numero(), Erreur::FormatRefuse);
        }
    }

    // Whatever cuts a file short, what stands before the cut is read.
    void coupe()
    {
        const QByteArray octets = LitOctets(QStringLiteral(DONNEES) + QStringLiteral("/libreoffice.rtf"));
        const QString entier = TexteDe(octets);
        for (qsizetype taille = 5; taille < octets.size(); ++taille) {
            QString lu = TexteDe(octets.left(taille));
            // A cut inside a word or a pair leaves its beginning.
            lu.chop(std::min<qsizetype>(2, lu.size()));
            QVERIFY2(entier.startsWith(lu), qPrintable(QString::number(taille)));
        }
    }

    void hostile()
    {
        const QByteArray profond = QByteArray("{").repeated(100000);
        QCOMPARE(TexteDe("{\\rtf1 a" + profond + "b"), QStringLiteral("ab"));
        QCOMPARE(TexteDe("{\\rtf1 a" + profond + QByteArray("}").repeated(100000) + "b}"), QStringLiteral("ab"));
        QCOMPARE(TexteDe("{\\rtf1 a\\bin99999999999999999999 bc}"), QStringLiteral("a"));
        QCOMPARE(TexteDe("{\\rtf1 a\\bin-5 b}"), QStringLiteral("ab"));
        QCOMPARE(TexteDe("{\\rtf1\\uc99999999999\\u99999999999 abc}").size(), 1);
        QCOMPARE(
            TexteDe("{\\rtf1{\\colortbl\\red-7\\red99999999;}\\cf99999999999\\cf-3\\f-99999999999\\fs-5\\deff-1 a}"),
            QStringLiteral("a"));
        QCOMPARE(TexteDe("{\\rtf1\\ansicpg99999 a\\'e9}"), QStringLiteral("a\uFFFD"));
        QCOMPARE(TexteDe("{\\rtf1 a\\"), QStringLiteral("a"));
        QCOMPARE(TexteDe("{\\rtf1 a\\'e"), QStringLiteral("a\u000E"));
    }

    void libreOffice()
    {
        const QList<MorceauRtf> morceaux = LitDonnee("libreoffice.rtf");
        QString texte;
        for (const MorceauRtf &morceau : morceaux)
            texte += morceau.texte;
        QCOMPARE(texte,
                 QStringLiteral("O4512 (Pi\u00E8ce n\u00B0 5 \u2013 \u00ABarbre\u00BB \u20AC \u03A9 \U0001F527)\r\n"
                                "N10 G0 X1.\r\nN20 G1 {a} \\b Z-5M6\r\na\tb\r\nun\r\n\u010D\u0159lien\u00A0fin\r\n"));
        const AttributsRtf titre = AspectDe(morceaux, QStringLiteral("O4512"));
        QVERIFY(titre.gras && !titre.italique);
        QCOMPARE(titre.police, QStringLiteral("Liberation Serif"));
        QCOMPARE(titre.taille, 12.0);
        QVERIFY(!titre.couleur.isValid());
        const AttributsRtf bloc = AspectDe(morceaux, QStringLiteral("N10"));
        QCOMPARE(bloc.police, QStringLiteral("Liberation Mono"));
        QCOMPARE(bloc.taille, 10.0);
        QCOMPARE(bloc.couleur, QColor(0, 0, 255));
        QCOMPARE(bloc.surlignage, QColor(255, 255, 0));
        QVERIFY(AspectDe(morceaux, QStringLiteral("Z-5")).souligne);
        QVERIFY(AspectDe(morceaux, QStringLiteral("M6")).barre);
        QVERIFY(AspectDe(morceaux, QStringLiteral("n\u00B0")).italique);
    }

    void wordPad()
    {
        const QList<MorceauRtf> morceaux = LitDonnee("wordpad.rtf");
        QString texte;
        for (const MorceauRtf &morceau : morceaux)
            texte += morceau.texte;
        QCOMPARE(texte, QStringLiteral("%\r\nO1234 (Bride \u00E9paul\u00E9e)\r\nN10 T1 M6\r\n"
                                       "N20 G0\tX12.5 Y\u20133\u00A0mm \u20AC\r\nN30 G1 {Z-1} \\ F100 M8\r\n"
                                       "\u041F M30\r\n%\r\n"));
        const AttributsRtf nom = AspectDe(morceaux, QStringLiteral("Bride"));
        QVERIFY(nom.gras);
        QCOMPARE(nom.couleur, QColor(255, 0, 0));
        const AttributsRtf reste = AspectDe(morceaux, QStringLiteral("paul"));
        QVERIFY(!reste.gras && !reste.couleur.isValid());
        QCOMPARE(reste.police, QStringLiteral("Courier New"));
        QCOMPARE(reste.taille, 11.0);
        QCOMPARE(AspectDe(morceaux, QStringLiteral("M30")).surlignage, QColor(0, 77, 187));
        QVERIFY(!AspectDe(morceaux, QStringLiteral("%")).surlignage.isValid());
    }
};

QTEST_GUILESS_MAIN(TestLecteurRtf)
#include "TestLecteurRtf.moc"
