#pragma once
// Start and stop of the remeshing rule module (counted).
#include "platform/base/typ_ArchCompTable.h"

void QMXOdbKarC_initialize(int& tally);
void QMXOdbKarC_finalize(int& tally);
void karC_formalize();
typ_ArchCompEntry karC_ArchEntry();
// The number of outstanding initializations of the module.
int QMXOdbKarC_count();
