#pragma once

#include <QString>

class RichTextBox;

/// A part of volet.Text(), for who has not the time to read all of it at once: nombre lines from premiere on, which
/// counts from 0, each with its line end; "" behind the last one.
QString LignesDe(const RichTextBox &volet, int premiere, int nombre);
