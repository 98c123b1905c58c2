#pragma once

class VueTransfert;

/// Takes measures from the presetting bench, one burst for each tool, while the operator is guided from tool to tool.
/// Each burst goes as it came into Lignes and, as a line of its own, into the file CheminRecep(). When the operator
/// ends the reception, that text stands in the program pane, and FiltreJauge() makes the gauge file of it. More tools
/// than NbCorrecteurs end the reception without a gauge file. A cancelled reception leaves the file with what had come.
/// A failure ends in ErreurPortCOM(). If the disk does not hold what had come, the operator may then save it elsewhere.
///
/// While it waits, the buttons of the dialog work. Needs ParamMac and ParamCom.
///
/// vue: what shows the reception; it has to live until the routine returns.
void ReceptionJauge(VueTransfert &vue);
