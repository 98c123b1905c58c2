#pragma once

#include "locale/Langue.h"

// Status texts that the three ways of receiving share.

inline constexpr Texte3 EnAttente{u"En attente de réception", u"On standby of receiving", u"En espera de recepción"};
inline constexpr Texte3 FinDetectee{u"Fin de transfert détectée !", u"End of transfer detected !",
                                    u"Final de transferencia detectado !"};
inline constexpr Texte3 Reussi{u"Transfert réalisé avec succès !", u"Transfer carried out successfully !",
                               u"Transferencia realizada con éxito !"};
