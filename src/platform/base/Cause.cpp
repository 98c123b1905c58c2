#include "platform/base/Cause.h"

#include <algorithm>

Cause CauseDe(int numero)
{
    const auto numeros = NumerosSysteme();
    const auto trouve = std::ranges::find(numeros, numero, &NumeroSysteme::numero);
    return trouve == numeros.end() ? Cause::Inconnue : trouve->cause;
}
