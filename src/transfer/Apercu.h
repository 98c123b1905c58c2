#pragma once

class VueTransfert;

// What stands in the line Bilan of the transfer dialog before a transfer of the mode TypeTransfert: of a sending, what
// will go out; of any transfer, whether the configuration is one. It is looked at anew each time.

void MontreApercu(VueTransfert &vue);

/// Shows it, and asks the operator whether to go on where something in it is a warning: an empty text, more lines than
/// the sending line by line takes, a configuration in pieces. No is the default. True when he may go on.
bool ConfirmeApercu(VueTransfert &vue);
