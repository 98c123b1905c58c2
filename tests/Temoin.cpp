#include "pilote/Operateur.h"

#include <QTest>

namespace {

void Echec(const QString &message, const Operateur::Lieu &ou)
{
    QTest::qFail(qPrintable(message), ou.fichier, static_cast<int>(ou.ligne));
}

} // namespace

/// What the operator finds wrong is a failure of the test that runs.
[[maybe_unused]] static const bool pose = [] {
    Operateur::temoin = {Echec, QTest::currentTestFailed};
    return true;
}();
