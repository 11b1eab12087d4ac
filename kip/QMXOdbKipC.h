#pragma once
// Start and stop of the empty module (counted): it has no classes, only its
// architecture-compatibility entry.
#include "platform/base/typ_ArchCompTable.h"

void QMXOdbKipC_initialize(int& tally);
void QMXOdbKipC_finalize(int& tally);
void kipC_formalize();
typ_ArchCompEntry kipC_ArchEntry();
// The number of outstanding initializations of the module.
int QMXOdbKipC_count();
