#pragma once

#include "Operateur.h"
#include "Poste.h"

#include <QDir>

/// A workstation with its operator, for the configurations.
struct Etabli : Poste, Operateur
{
    explicit Etabli(int langue = 0)
        : Poste(langue)
    {
    }

    /// Makes folders in the application folder.
    void Cree(const QStringList &dossiers) const
    {
        for (const QString &dossier : dossiers)
            QDir(Dossier()).mkpath(dossier);
    }

    /// The operator chooses this file and is told that its form is an older one.
    void ChoisitAncien(const QString &chemin)
    {
        Choisit(chemin);
        Repond("Fichier de configuration erroné ou de version antérieure !",
               "Fichier de configuration de version antérieure !\rModifier et enregistrer de nouveau.",
               Boite::Exclamation, QMessageBox::Ok);
    }

    /// A configuration in which every field has a value of its own.
    const QString complet = QString::fromUtf16(DONNEES) + QStringLiteral("/Complet.par");
};
