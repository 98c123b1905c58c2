#pragma once

/// Numbers of the events of the serial control, as the operator's texts know them. From PremiereFaute on they are
/// errors. The control raises no other ones; there are texts for some more.
namespace EvenementPort {
constexpr int Emission = 1;  ///< the queue has fallen below SThreshold
constexpr int Reception = 2; ///< RThreshold characters wait, and new ones have come
constexpr int Cts = 3;       ///< a line of that name has changed
constexpr int Dsr = 4;
constexpr int Cd = 5;
constexpr int Sonnerie = 6;

constexpr int PremiereFaute = 1001;
constexpr int Pause = 1001;   ///< break
constexpr int Cadrage = 1004; ///< framing
constexpr int Cadence = 1006; ///< overrun between chip and driver
constexpr int Perte = 1008;   ///< lost by the system
constexpr int Parite = 1009;
} // namespace EvenementPort
