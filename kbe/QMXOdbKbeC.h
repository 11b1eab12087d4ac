#pragma once
// Start and stop of the connector behavior module (counted).
#include "platform/base/typ_ArchCompTable.h"

void QMXOdbKbeC_initialize(int& tally);
void QMXOdbKbeC_finalize(int& tally);
void kbeC_formalize();
typ_ArchCompEntry kbeC_ArchEntry();
// The number of outstanding initializations of the module.
int QMXOdbKbeC_count();
