#pragma once
// Rules shared by the kinds that hold a (time, amplitude) table.
#include "platform/base/cow_2DArray.h"

// More than 2 columns (11); fewer than 2 rows, or rows without a cell (12); a time less than the one before it (0). Equal
// successive times are accepted.
void kamC_AssertTimeAmplitudeTable(const cow_2DArray<double>& data);
// A specified smoothing must lie in 0 to 0.5 inclusive (2).
void kamC_AssertSmoothing(double smooth);
