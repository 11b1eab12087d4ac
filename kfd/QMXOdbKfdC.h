#pragma once
// Start and stop of the field module (counted).
#include "platform/base/typ_ArchCompTable.h"

void QMXOdbKfdC_initialize(int& tally);
void QMXOdbKfdC_finalize(int& tally);
void kfdC_formalize();
typ_ArchCompEntry kfdC_ArchEntry();
// The number of outstanding initializations of the module.
int QMXOdbKfdC_count();
