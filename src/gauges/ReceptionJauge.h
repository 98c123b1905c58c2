#pragma once

class VueTransfert;

/// Takes measures from the presetting bench, one burst for each tool, while the operator is guided from tool to tool.
/// Each burst goes as it came into Lignes and, as a line of its own, into the file CheminRecep(). When the operator
/// ends it, that text stands in the program pane, and FiltreJauge() makes the gauge file of it. More tools than
/// NbCorrecteurs end it without a gauge file. Cancelled, it leaves the file with what had come. A failure ends in
/// ErreurPortCOM; when the disk does not hold what had come, the operator may then save it elsewhere.
///
/// It runs inside the dialog's activation; in its yields the buttons of the dialog run. Needs ParamMac and ParamCom.
///
/// vue: the controls that show the reception; they have to live until the routine returns.
void ReceptionJauge(VueTransfert &vue);
