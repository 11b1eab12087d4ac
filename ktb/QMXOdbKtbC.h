#pragma once
// Start and stop of the table and event series module (counted).
#include "platform/base/typ_ArchCompTable.h"

void QMXOdbKtbC_initialize(int& tally);
void QMXOdbKtbC_finalize(int& tally);
void ktbC_formalize();
typ_ArchCompEntry ktbC_ArchEntry();
// The number of outstanding initializations of the module.
int QMXOdbKtbC_count();
