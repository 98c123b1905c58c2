#pragma once

#include "platform/dialogues/DialogueCentre.h"
#include "ui_JauTour.h"

/// The dial of a lathe. For each measure, one after another, the operator gives what the bench cannot measure: the
/// radius of the tool's nose and the quadrant in which it works. JauTourFait becomes true after the last one. If the
/// operator closes it earlier, he is asked, and the measures that he has not validated stay as they were.
///
/// Frame1: the current measure, whose number is its place in the session; ValeursMesure: its X and Z as the bench gave
/// them, in mm, named by LabelMesure; Text1: radius, named by Label5; Text2: locator, named by Label6; Command1:
/// validate. Picture21, titled Label2: plates Picture22 to Picture27. Label7 names the turret of the dial that is
/// shown: Picture1 (back) or Picture11 (front); tool tiles Picture2 to Picture10 with their labels Label17 to Label25
/// on the first, Picture12 to Picture20 with Label8 to Label16 on the second.
class JauTour : public DialogueCentre, public Ui::JauTour
{
    Q_OBJECT

public:
    explicit JauTour(QWidget *parent);

    bool JauTourFait = false; ///< every tool has its radius and quadrant

    void reject() override;

protected:
    void keyPressEvent(QKeyEvent *touche) override;

private:
    void Form_Activate();
    void Command1_Click();

    void BrancheTuiles();
    void MontreMesure(const QString &intervalle);
    void DesigneTuiles();

    int OutilCadran = 1; ///< number of the current measure in Jauge, from 1
};
