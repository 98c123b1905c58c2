#pragma once

#include <QChar>

#include <array>

/// The measure of one tool.
struct JaugeOutil
{
    int NumCorr = 0;         ///< corrector number, entered on the bench; 16 bits
    float JaugeZ = 0;        ///< length, mm: Z on a lathe, L on a mill
    float JaugeX = 0;        ///< mm: X on a lathe, radius or diameter of the tool on a mill
    float Rayon = 0;         ///< radius of the tool's nose, mm; lathe only
    int Localisateur = 0;    ///< quadrant in which the nose cuts, 0 to 8; lathe only
    QChar ModeMesure = u' '; ///< 'R': the bench gave JaugeX as a radius, 'D': as a diameter
    int NonLuesAvant = 0;    ///< bursts of the session ahead of it that hold no measure
};

constexpr int CapaciteJauges = 300; ///< measures that one reception can hold, and the highest corrector number

/// The measures of the last bench reception, the first at 1, entry 0 unused.
extern std::array<JaugeOutil, CapaciteJauges + 1> Jauge;

// The bench reception under way.
extern int NbJauges;      ///< number of the tool being taken, from 1; at the end the number of measures
extern int LigneJauge;    ///< next free entry of Lignes, from 1
extern int JaugeRecue;    ///< 1: a measure has just been stored
extern int JaugeSuivante; ///< 1: the operator asks for the next tool
extern int FinJauges;     ///< 1: the operator has ended the reception
extern int JauTourFait;   ///< 1: the dial dialog is through

/// Empties all entries of Jauge and sets every variable above to 0.
void VideJauges();
