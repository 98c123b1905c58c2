#pragma once

/// Gives the event loop its turn: dispatches all waiting events of the program's thread and returns.
///
/// When nothing was waiting and nothing has moved since the last turn, it first sleeps until something happens, at most
/// 5 ms, so that a loop which polls for hours costs next to no processor. Handlers that run inside may yield
/// themselves.
void CedeLaMain();

/// Makes the next CedeLaMain() return without sleeping. Whatever moves characters calls it, so that a polling loop sees
/// them at once.
void SignaleMouvement();
