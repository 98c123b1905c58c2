#pragma once

#include "platform/base/Erreur.h"

#include <QScopeGuard>
#include <QTest>

using namespace Qt::Literals::StringLiterals; // as every test writes its texts

/// The number with which an operation fails, 0 when it succeeds.
template <typename Operation>
int NumeroErreur(Operation operation)
{
    try {
        operation();
    } catch (const Erreur &erreur) {
        return erreur.Numero();
    }
    return 0;
}

/// Every byte once, in order.
inline QByteArray TousLesOctets()
{
    QByteArray octets;
    for (int code = 0; code < 256; ++code)
        octets += static_cast<char>(code);
    return octets;
}

/// A row for each case of a table, whose first column names it.
template <typename Cas, std::size_t Nombre>
void Rangees(const Cas (&table)[Nombre])
{
    QTest::addColumn<int>("rang");
    for (int rang = 0; rang < int(Nombre); ++rang) {
        if constexpr (requires { table[rang].nom; })
            QTest::addRow("%s", table[rang].nom) << rang;
        else
            QTest::addRow("%s", std::get<0>(table[rang])) << rang;
    }
}

/// The case of the row that runs.
template <typename Cas, std::size_t Nombre>
const Cas &Rangee(const Cas (&table)[Nombre])
{
    QFETCH(int, rang);
    return table[rang];
}

/// Two rows: colonne is true in the first, false in the second.
inline void OuiEtNon(const char *colonne, const char *oui, const char *non)
{
    QTest::addColumn<bool>(colonne);
    QTest::newRow(oui) << true;
    QTest::newRow(non) << false;
}

/// Names the pass of a loop while the guard lives: a failure in it is followed by its name.
[[nodiscard]] inline auto Passe(const QString &nom)
{
    return qScopeGuard([nom] {
        if (QTest::currentTestFailed())
            qWarning("in the pass: %s", qPrintable(nom));
    });
}
