#pragma once
// Start and stop of the engineering feature module (counted).
#include "platform/base/typ_ArchCompTable.h"

void QMXOdbKefC_initialize(int& tally);
void QMXOdbKefC_finalize(int& tally);
void kefC_formalize();
typ_ArchCompEntry kefC_ArchEntry();
// The number of outstanding initializations of the module.
int QMXOdbKefC_count();
