#pragma once

class QKeyEvent;

/// Call it once, before the first key.
void GuetteRepetitions();

/// True when touche, which is just being handled, comes from a key held down. The system knows it better than
/// QKeyEvent::isAutoRepeat(): on Windows Qt takes each press for a repetition whose former release it has not seen, as
/// when that went to a dialog of the system.
bool EstRepetition(const QKeyEvent &touche);
