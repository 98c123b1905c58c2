#pragma once

#include "ui_CadreExplorateur.h"

/// The explorer column of the main window, Frame1. FolderTreeview1: the tree of folders; File1: the files of its
/// selected folder that pass the filter Combo1, whose caption is Label7; Command1, Command2, Command4: create, delete,
/// rename a folder; Command3: close the column; CheckDOS: use the selected folder for opening and receiving programs.
class CadreExplorateur : public QGroupBox, public Ui::CadreExplorateur
{
    Q_OBJECT

public:
    explicit CadreExplorateur(QWidget *parent);
};
