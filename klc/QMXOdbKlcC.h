#pragma once
// Start and stop of the load case module (counted).
#include "platform/base/typ_ArchCompTable.h"

void QMXOdbKlcC_initialize(int& tally);
void QMXOdbKlcC_finalize(int& tally);
void klcC_formalize();
typ_ArchCompEntry klcC_ArchEntry();
// The number of outstanding initializations of the module.
int QMXOdbKlcC_count();
