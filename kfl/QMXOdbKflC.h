#pragma once
// Start and stop of the filter module (counted).
#include "platform/base/typ_ArchCompTable.h"

void QMXOdbKflC_initialize(int& tally);
void QMXOdbKflC_finalize(int& tally);
void kflC_formalize();
typ_ArchCompEntry kflC_ArchEntry();
// The number of outstanding initializations of the module.
int QMXOdbKflC_count();
