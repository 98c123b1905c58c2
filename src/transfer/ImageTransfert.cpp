#include "transfer/ImageTransfert.h"

#include "donnees/Transfert.h"
#include "platform/controles/Icone.h"

QPixmap ImageTransfert()
{
    constexpr int cote = 64; // pixels
    return Icone(QStringLiteral(":/icones/Mode_%1").arg(Transfert.TypeTransfert)).pixmap(cote);
}
