#pragma once

/// Begins a new program, after the operator was asked whether to save a changed one. A text that he wanted to save and
/// that was not is kept in "Sauvegardes", and he is told where.
void Mnu_Nouveau();
