#pragma once

#include <QString>

class RichTextBox;

/// Part of volet.Text(), for a caller that must not take the time to read the whole text at once: nombre lines from the
/// line premiere on (counted from 0), each with its line end. "" when premiere lies behind the last line.
QString LignesDe(const RichTextBox &volet, int premiere, int nombre);
