#pragma once

#include "locale/Langue.h"

// Texts that the receptions share.

inline constexpr Texte3 EnAttente{u"En attente de réception", u"On standby of receiving", u"En espera de recepción"};
inline constexpr Texte3 FinDetectee{u"Fin de transfert détectée !", u"End of transfer detected !",
                                    u"Final de transferencia detectado !"};
inline constexpr Texte3 Reussi{u"Transfert réalisé avec succès !", u"Transfer carried out successfully !",
                               u"Transferencia realizada con éxito !"};

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
