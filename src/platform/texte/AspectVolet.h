#pragma once

#include "platform/texte/LecteurRtf.h"

#include <QFont>
#include <QTextCharFormat>

// The looks of the text pane.

/// The font of a text that brings none of its own. Looked for once: asking the system which fonts it has is a good part
/// of a pane's making.
const QFont &PoliceOrdinaire();

/// The look of a stretch of rich text.
QTextCharFormat FormatDe(const AttributsRtf &attributs);
