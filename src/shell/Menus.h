#pragma once

/// Ties every menu entry and toolbar button to the command that serves it. Once, when the main window exists.
void BrancheMenus();
