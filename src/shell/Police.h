#pragma once

/// Asks for font, effects and colour of the text in the pane and gives them to the whole text. They are not saved. When
/// the operator cancels, the whole text stays selected.
void Mnu_Police();
