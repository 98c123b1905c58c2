#pragma once

#include <span>

// The English and Spanish captions, window by window. French is not here: windows are made with their French captions.

enum class Endroit {
    Titre, ///< caption of a control, text of a menu entry, title of a window
    Bulle, ///< tool tip
    Nom    ///< accessible name of a control without a caption
};

struct Legende
{
    const char *controle; ///< objectName of the control, "" for the window itself
    Endroit endroit;
    const char16_t *anglais;
    const char16_t *espagnol;
};

struct LegendesFenetre
{
    const char *fenetre; ///< objectName of the window
    std::span<const Legende> legendes;
};

extern const LegendesFenetre LegendesFrmPrinc, LegendesApropos;                      // TableShell.cpp
extern const LegendesFenetre LegendesEm_Rc, LegendesRc_Fic;                          // TableTransfer.cpp
extern const LegendesFenetre LegendesFrmCaract, LegendesDosProg, LegendesFrmConfDem, // TableComconfig.cpp
    LegendesProp;                                                                    // TableProp.cpp
extern const LegendesFenetre LegendesConfMac, LegendesJauTour;                       // TableGauges.cpp
