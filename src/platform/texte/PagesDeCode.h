#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The text of octets in the code page that Windows knows by the number page, such as 1251; nothing when this system
/// has no converter for it. A byte that the code page lacks becomes the system's replacement character.
std::optional<QString> DecodePage(const QByteArray &octets, int page);
