#pragma once

#include "donnees/TableNumerotee.h"

#include <QChar>

/// The measure of one tool.
struct JaugeOutil
{
    int NumCorr = 0;         ///< corrector number, entered on the bench; 16 bits
    float JaugeZ = 0;        ///< length, mm: Z on a lathe, L on a mill
    float JaugeX = 0;        ///< mm: X on a lathe, radius or diameter of the tool on a mill
    float Rayon = 0;         ///< radius of the tool's nose, mm; lathe only
    int Localisateur = 0;    ///< quadrant in which the nose cuts, 0 to 8; lathe only
    QChar ModeMesure = u' '; ///< 'R': the bench gave JaugeX as a radius, 'D': as a diameter
    int NonLuesAvant = 0;    ///< bursts without a measure that came before it in this reception
};

constexpr int CapaciteJauges = 300; ///< measures that one reception can hold, and the highest corrector number

/// The measures from the bench, and how far their reception has come.
struct EtatJauges
{
    TableNumerotee<JaugeOutil> Jauge = TableNumerotee<JaugeOutil>(CapaciteJauges); ///< of the last reception
    int NbJauges = 0;           ///< number of the tool being taken, from 1; at the end the number of measures
    bool JaugeSuivante = false; ///< the operator asks for the next tool
    bool FinJauges = false;     ///< the operator has ended the reception
};

extern EtatJauges Jauges; ///< the one bench
