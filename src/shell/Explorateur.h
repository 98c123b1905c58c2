#pragma once

/// Opens the explorer column, or closes it when it is open; the menu entry and button 15 follow. It opens on DosDefaut.
void Mnu_AffichDOS();
