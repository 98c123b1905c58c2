#include "transfer/Transfert.h"

int TypeTransfert = 0;
int FinTransfert = 0;
int AnnuleRECEPT = 0;
