#pragma once

#include <QByteArray>
#include <QString>

// Text is QString inside the program and code page 1252 in files and on the line. Each of the 256 byte values has a
// character and comes back as the same byte. The five bytes that the code page leaves without a character (0x81, 0x8D,
// 0x8F, 0x90, 0x9D) stand for the control characters of the same number.

/// The text of octets, one character for each byte.
QString TexteDe1252(const QByteArray &octets);

/// The bytes of texte, one for each UTF-16 unit. A character that the code page lacks becomes "?".
QByteArray OctetsEn1252(const QString &texte);

/// True when the code page has the character.
bool EstEn1252(QChar caractere);

/// Name of an invisible character (control character, blank, DEL), as in manuals of controls; "" for a visible one.
/// code: 0 to 255, in the code page.
QString NomCaractere(int code);

/// texte with each control character replaced by its name, as in "G0<CR><LF>", since a label would not show it. A blank
/// stays a blank.
QString ControlesVisibles(const QString &texte);
