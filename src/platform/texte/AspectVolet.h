#pragma once

#include "platform/texte/LecteurRtf.h"

#include <QFont>
#include <QTextCharFormat>

// Fonts and character formats of the text pane.

/// The font of a text without a font of its own. It is determined once, since asking the system for its fonts takes a
/// good part of the time in which a pane is made.
const QFont &PoliceOrdinaire();

/// The character format for a stretch of rich text.
QTextCharFormat FormatDe(const AttributsRtf &attributs);
