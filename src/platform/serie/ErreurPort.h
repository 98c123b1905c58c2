#pragma once

/// Numbers of the failures of the serial control, as the operator's texts know them. A port that the user may not open
/// raises Erreur::AccesRefuse, which has no such text, so that he reads which device it is.
namespace ErreurPort {
constexpr int DejaOuvert = 8000;   ///< changed, or opened again, while the port is open
constexpr int Inconnu = 8002;      ///< no such port, or no device behind it
constexpr int Occupe = 8005;       ///< held by another program
constexpr int PasUneLigne = 8006;  ///< something else than a serial line
constexpr int Vitesse = 8007;      ///< a speed that is none, or that the device does not have
constexpr int BitsDonnees = 8008;  ///< other than 5 to 8 data bits, or a number that the device does not have
constexpr int Indisponible = 8010; ///< the device is there and cannot be opened
constexpr int Reglage = 8015;      ///< another setting that is none, or that the device does not have
constexpr int Ferme = 8018;        ///< the port is closed
constexpr int Lecture = 8020;      ///< the device has gone
} // namespace ErreurPort
