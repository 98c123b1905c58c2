#pragma once

#include <QtGlobal>

/// Resources that the process holds at one moment.
struct Ressources
{
    int descripteurs = 0;
    int objets = 0; ///< living QObjects
    int fenetres = 0;
};

/// Starts counting QObjects. To be called before the first one of interest is made.
void CompteObjets();

/// Counts the resources, after all deferred deletions have been done.
Ressources CompteRessources();

/// Heap memory in use, in kB.
qint64 Tas();

/// Resident memory in kB; includes what the allocator keeps for later.
qint64 Pages();
