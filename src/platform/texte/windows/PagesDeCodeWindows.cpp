#include "platform/texte/PagesDeCode.h"

#include <windows.h>

// Qt knows hardly any code page on Windows.
std::optional<QString> DecodePage(const QByteArray &octets, int page)
{
    if (octets.isEmpty())
        return QString();
    const auto nombre = static_cast<int>(octets.size());
    const auto convertit = [&](wchar_t *texte, int place) {
        return MultiByteToWideChar(static_cast<UINT>(page), 0, octets.constData(), nombre, texte, place);
    };
    const int longueur = convertit(nullptr, 0);
    if (longueur == 0)
        return {};
    std::wstring texte(static_cast<std::size_t>(longueur), L'\0');
    convertit(texte.data(), longueur);
    return QString::fromStdWString(texte);
}
