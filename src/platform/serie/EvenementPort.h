#pragma once

/// Numbers of the events of the serial control, as in the operator's texts. Numbers from PremiereFaute on are errors.
namespace EvenementPort {
constexpr int Emission = 1;  ///< the queue has fallen below SThreshold
constexpr int Reception = 2; ///< at least RThreshold characters wait, and new ones have come
constexpr int Cts = 3;       ///< Cts, Dsr, Cd: that line has changed
constexpr int Dsr = 4;
constexpr int Cd = 5;
constexpr int Sonnerie = 6;

constexpr int PremiereFaute = 1001;
constexpr int Pause = 1001;   ///< break
constexpr int Cadrage = 1004; ///< framing
constexpr int Cadence = 1006; ///< overrun between chip and driver
constexpr int Perte = 1008;   ///< lost by the system
constexpr int Parite = 1009;

// The control raises none of the following. They complete the list that the operators know.
constexpr int FinDeFichier = 7;      ///< an end-of-file character has come
constexpr int DelaiCts = 1002;       ///< CTS stayed low too long
constexpr int DelaiDsr = 1003;       ///< DSR stayed low too long
constexpr int DelaiCd = 1007;        ///< CD stayed low too long
constexpr int EmissionPleine = 1010; ///< the transmit queue is full; never, since the control's queue grows as needed
constexpr int BlocControle = 1011;   ///< the driver's settings cannot be read; the opening raises ErreurPort instead
} // namespace EvenementPort
