#include "platform/base/Casse.h"

Qt::CaseSensitivity CasseDesChemins()
{
    return Qt::CaseInsensitive;
}
