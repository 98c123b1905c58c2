#pragma once

#include <QFile>
#include <QTest>

/// The path of a file of tests/donnees.
inline QString Donnees(const QString &nom)
{
    return QString::fromUtf16(DONNEES) + u'/' + nom;
}

/// The rows of a table of tests/donnees, cut at the tabulators. A line that begins with "#" says what the columns are.
/// In a cell "\r", "\n", "\t", "\a" and "\0" stand for the characters, and
/// "@VERSION@" for the version of the program.
inline QList<QStringList> Table(const QString &nom)
{
    QFile fichier(Donnees(nom));
    if (!fichier.open(QIODevice::ReadOnly))
        qFatal("a table of the tests is missing");
    QList<QStringList> rangees;
    const QStringList lignes = QString::fromUtf8(fichier.readAll()).split(u'\n', Qt::SkipEmptyParts);
    for (const QString &ligne : lignes) {
        if (ligne.startsWith(u'#'))
            continue;
        QStringList cases = ligne.split(u'\t');
        for (const auto &[ecrit, signe] :
             {std::pair("\\r", '\r'), {"\\n", '\n'}, {"\\t", '\t'}, {"\\a", '\a'}, {"\\0", '\0'}})
            cases.replaceInStrings(QLatin1String(ecrit), QString(QChar::fromLatin1(signe)));
        cases.replaceInStrings(QStringLiteral("@VERSION@"), QStringLiteral(DORVANEL_VERSION));
        rangees << cases;
    }
    return rangees;
}

/// A row for each of that table, with its beginning for a name. The test has it by QFETCH(QStringList, cases).
inline void RangeesDe(const QString &table)
{
    QTest::addColumn<QStringList>("cases");
    int ligne = 0;
    for (const QStringList &cases : Table(table))
        QTest::addRow("%d: %s", ++ligne, qPrintable(cases.join(QLatin1String(" | ")).simplified().left(60))) << cases;
}
