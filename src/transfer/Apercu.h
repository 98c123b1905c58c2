#pragma once

class VueTransfert;

// What the line Bilan of the transfer dialog says before a transfer of the mode TypeTransfert. Before a sending it says
// what will go out. Before any transfer it warns of a configuration that is not what it seems. Each call looks at the
// text and at the configuration anew.

void MontreApercu(VueTransfert &vue);

/// Shows it. If it warns of an empty text, of more lines than the sending line by line takes, or of a configuration
/// that is incomplete or was not applied, the operator is asked whether to go on; the default is No. Returns true if
/// the transfer may go on.
bool ConfirmeApercu(VueTransfert &vue);
