#pragma once
// Start and stop of the beam profile module (counted).
#include "platform/base/typ_ArchCompTable.h"

void QMXOdbKbpC_initialize(int& tally);
void QMXOdbKbpC_finalize(int& tally);
void kbpC_formalize();
typ_ArchCompEntry kbpC_ArchEntry();
// The number of outstanding initializations of the module.
int QMXOdbKbpC_count();
