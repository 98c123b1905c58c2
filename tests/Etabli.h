#pragma once

#include "Essais.h"
#include "pilote/Operateur.h"
#include "pilote/Poste.h"

#include "donnees/ParamCom.h"
#include "donnees/Reglages.h"
#include "shell/Document.h"
#include "shell/FrmPrinc.h"

#include <QDir>

/// A workstation with its operator; with it come the records and the window that nearly every test looks at.
struct Etabli : Poste, Operateur
{
    using Poste::Poste;

    /// A box that only tells something is read. icone: one of Boite.
    void Apprend(QAnyStringView titre, QAnyStringView texte, int icone = Boite::Exclamation, Lieu ou = Lieu::Ici())
    {
        Repond(titre, texte, icone, QMessageBox::Ok, ou);
    }
    /// A box whose text holds this is read.
    void ApprendQue(const QString &contient)
    {
        Fait("MsgBox", [contient](QWidget &boite) {
            QVERIFY(dynamic_cast<QMessageBox &>(boite).text().contains(contient));
            boite.close();
        });
    }
    /// The operator chooses this configuration and is told that its form is an older one.
    void ChoisitAncien(const QString &chemin)
    {
        Choisit(chemin);
        Apprend("Fichier de configuration erroné ou de version antérieure !",
                "Fichier de configuration de version antérieure !\rModifier et enregistrer de nouveau.");
    }
};
