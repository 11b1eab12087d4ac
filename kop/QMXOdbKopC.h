#pragma once
// Start and stop of the optimization task module (counted).
#include "platform/base/typ_ArchCompTable.h"

void QMXOdbKopC_initialize(int& tally);
void QMXOdbKopC_finalize(int& tally);
void kopC_formalize();
typ_ArchCompEntry kopC_ArchEntry();
// The number of outstanding initializations of the module.
int QMXOdbKopC_count();
