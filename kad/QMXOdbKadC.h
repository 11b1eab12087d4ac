#pragma once
// Start and stop of the adaptive mesh module (counted).
#include "platform/base/typ_ArchCompTable.h"

void QMXOdbKadC_initialize(int& tally);
void QMXOdbKadC_finalize(int& tally);
void kadC_formalize();
typ_ArchCompEntry kadC_ArchEntry();
// The number of outstanding initializations of the module.
int QMXOdbKadC_count();
