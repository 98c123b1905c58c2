#pragma once

/// Asks for the font of the text in the pane, with its effects and colour, and gives it to the whole text. It is kept
/// in no file. Cancelling leaves the whole text selected.
void Mnu_Police();
