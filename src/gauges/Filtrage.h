#pragma once

/// Makes the bursts in Lignes readable by columns: every control character (code below 32) becomes a blank, then the
/// blanks at both ends are removed. Sets LigneMaxi.
void Filtrage();
