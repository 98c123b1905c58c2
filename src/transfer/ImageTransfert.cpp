#include "transfer/ImageTransfert.h"

#include "platform/controles/Icone.h"
#include "transfer/Transfert.h"

QPixmap ImageTransfert()
{
    constexpr int cote = 64; // pixels
    return Icone(QStringLiteral(":/icones/Mode_%1.svg").arg(TypeTransfert)).pixmap(cote);
}
