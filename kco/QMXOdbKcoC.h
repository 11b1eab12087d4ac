#pragma once
// Start and stop of the constraint module (counted).
#include "platform/base/typ_ArchCompTable.h"

void QMXOdbKcoC_initialize(int& tally);
void QMXOdbKcoC_finalize(int& tally);
void kcoC_formalize();
typ_ArchCompEntry kcoC_ArchEntry();
// The number of outstanding initializations of the module.
int QMXOdbKcoC_count();
