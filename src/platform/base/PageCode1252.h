#pragma once

#include <QByteArray>
#include <QString>

// Text is QString inside the program and code page 1252 on files and on the line. The mapping is total in both
// directions: the five bytes to which the code page gives no character (0x81, 0x8D, 0x8F, 0x90, 0x9D) stand for the
// control character of the same number, so that each of the 256 byte values survives the round trip.

/// The text of octets, one character a byte.
QString TexteDe1252(const QByteArray &octets);

/// The bytes of texte, one a UTF-16 unit; a character that the code page does not have becomes "?".
QByteArray OctetsEn1252(const QString &texte);

/// True when the code page has the character.
bool EstEn1252(QChar caractere);

/// Name of a character that shows nothing by itself, as manuals of controls give it; "" for the others. code: of the
/// code page.
QString NomCaractere(int code);

/// texte with the names of its control characters in their place, as in "G0<CR><LF>": a label would show them as
/// nothing. A blank stays one.
QString ControlesVisibles(const QString &texte);
