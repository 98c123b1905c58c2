#pragma once

#include "ui_CadreExplorateur.h"

/// The explorer column of the main window, Frame1: the tree of folders FolderTreeview1, the files File1 of its selected
/// folder that pass the filter Combo1 (captioned Label7), and the buttons that create (Command1), delete (Command2) and
/// rename (Command4) a folder and close the column (Command3). CheckDOS applies the selected folder to the opening and
/// the reception of programs.
class CadreExplorateur : public QGroupBox, public Ui::CadreExplorateur
{
    Q_OBJECT

public:
    explicit CadreExplorateur(QWidget *parent);
};
