#pragma once

#include "platform/dialogues/DialogueCentre.h"
#include "ui_Apropos.h"

/// The about window. Image1: picture; Label1: program and version; Label8, Label4 and Label5: links to the online
/// lessons, the maker's mail and the maker's site; Command1 closes it.
class Apropos : public DialogueCentre, public Ui::Apropos
{
    Q_OBJECT

public:
    explicit Apropos(QWidget *parent);

private:
    void Label4_Click();
    void Label5_Click();
};

/// Opens the about window.
void Mnu_Apropos();
