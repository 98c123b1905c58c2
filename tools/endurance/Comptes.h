#pragma once

#include <QtGlobal>

/// What a process holds at one moment.
struct Comptes
{
    qint64 memoire = 0; ///< resident, in kB
    int descripteurs = 0;
    int objets = 0; ///< living QObjects
    int fenetres = 0;
};

/// Counts the QObjects from now on; to be called before the first one of interest.
void CompteObjets();

/// Everything that waits to be deleted is deleted first.
Comptes Compte();

/// Resident memory in kB.
qint64 Memoire();
