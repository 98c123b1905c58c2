#pragma once

/// Opens or closes the explorer column; its menu entry and button 15 follow. It opens on DosDefaut.
void Mnu_AffichDOS();
