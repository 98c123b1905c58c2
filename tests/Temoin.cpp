#include "pilote/Operateur.h"

#include <QTest>

namespace {

void Echec(const QString &message, const Operateur::Lieu &ou)
{
    QTest::qFail(qPrintable(message), ou.file_name(), static_cast<int>(ou.line()));
}

} // namespace

/// What the operator finds wrong is a failure of the test that runs.
[[maybe_unused]] static const bool pose = [] {
    Operateur::temoin = {Echec, QTest::currentTestFailed};
    return true;
}();
