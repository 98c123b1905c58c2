#pragma once

/// Numbers of the failures of the serial control, as in the operator's texts. A port that the user has no permission to
/// open raises Erreur::AccesRefuse instead, whose message names the device.
namespace ErreurPort {
constexpr int DejaOuvert = 8000;   ///< changed, or opened again, while the port is open
constexpr int Inconnu = 8002;      ///< no such port, or no device behind it
constexpr int Occupe = 8005;       ///< held by another program
constexpr int PasUneLigne = 8006;  ///< the device is no serial line
constexpr int Vitesse = 8007;      ///< an invalid speed, or one that the device does not have
constexpr int BitsDonnees = 8008;  ///< a number of data bits other than 5 to 8, or one that the device does not have
constexpr int Indisponible = 8010; ///< the device is there and cannot be opened
constexpr int Reglage = 8015;      ///< any other invalid setting, or one that the device does not have
constexpr int Ferme = 8018;        ///< the port is closed
constexpr int Lecture = 8020;      ///< the device has gone
} // namespace ErreurPort
