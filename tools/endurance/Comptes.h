#pragma once

#include <QtGlobal>

/// What a process holds at one moment.
struct Comptes
{
    int descripteurs = 0;
    int objets = 0; ///< living QObjects
    int fenetres = 0;
};

/// Counts the QObjects from now on; to be called before the first one of interest.
void CompteObjets();

/// Everything that waits to be deleted is deleted first.
Comptes Compte();

/// Memory in kB that the process has asked for and not given back.
qint64 Tas();

/// Resident memory in kB: also what the allocator keeps for later.
qint64 Pages();
