#pragma once

#include <QPixmap>

/// The picture of the transfer that TypeTransfert names, as both dialogs of a transfer show it.
QPixmap ImageTransfert();
