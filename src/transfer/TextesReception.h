#pragma once

#include "locale/Langue.h"

// Texts that the receptions share.

/// The way of receiving, by TypeRecep.
inline constexpr Texte3 GenresReception[] = {
    {u"Réception par ligne", u"Receiving by line", u"Recepción por línea"},
    {u"Réception caractère par caractère", u"Receiving character by character", u"Recepción carácter por carácter"},
    {u"Réception jusqu'à réception de fin de fichier", u"Receiving until receiving of end of file",
     u"Recepción hasta recepción de final de fichero"}};

/// What the operator does at the bench for each tool.
inline constexpr Texte3 TouchesBanc{
    u"Appuyer sur la touche < PRINT >\rEntrez le Numéro de correcteur\rAppuyer sur la touche < ENTREE >",
    u"Press on the key < PRINT >\rEnter the Number of corrector\rPress on the key < ENTREE >",
    u"Apoyar en la tecla < PRINT >\rEntre el Número de corrector\rApoyar en la tecla < ENTREE >"};
