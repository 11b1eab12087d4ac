#pragma once
// Start and stop of the material module (counted).
#include "platform/base/typ_ArchCompTable.h"

void QMXOdbKmaC_initialize(int& tally);
void QMXOdbKmaC_finalize(int& tally);
void kmaC_formalize();
typ_ArchCompEntry kmaC_ArchEntry();
// The number of outstanding initializations of the module.
int QMXOdbKmaC_count();
