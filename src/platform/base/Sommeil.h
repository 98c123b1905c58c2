#pragma once

#include <chrono>

class QAbstractEventDispatcher;

/// Waits until an event comes, at most auPlus, then runs the event loop once.
void Sommeille(QAbstractEventDispatcher &repartiteur, std::chrono::milliseconds auPlus);
