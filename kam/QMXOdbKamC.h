#pragma once
// Start and stop of the amplitude module (counted).
#include "platform/base/typ_ArchCompTable.h"

void QMXOdbKamC_initialize(int& tally);
void QMXOdbKamC_finalize(int& tally);
void kamC_formalize();
typ_ArchCompEntry kamC_ArchEntry();
// The number of outstanding initializations of the module.
int QMXOdbKamC_count();
