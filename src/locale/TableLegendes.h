#pragma once

#include <span>

// The captions that change with the language, window by window. French is not here: the windows are made in French.

enum class Endroit {
    Titre, ///< what the control bears: caption, entry, window title
    Bulle, ///< its tool tip
    Nom    ///< its name for an assistive program, where it bears nothing
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
