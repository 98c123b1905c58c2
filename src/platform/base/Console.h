#pragma once

/// Connects the program to the console that it was started from, which Windows does not do for a graphic program. When
/// standard output is a file or a pipe, it stays so. Each system has its own unit for this.
void RelieConsole();
