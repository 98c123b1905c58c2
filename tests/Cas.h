#pragma once

#include <QTest>

#include <vector>

/// Makes a row of a data test out of each case: one column "cas", named after the case's member nom.
template <typename Cas>
void Rangees(const std::vector<Cas> &tous)
{
    QTest::addColumn<Cas>("cas");
    for (const Cas &cas : tous)
        QTest::newRow(cas.nom) << cas;
}
