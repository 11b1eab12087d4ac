#include "kam/kamC_TableChecks.h"

#include "kam/kamC_Amplitude.h"
#include "kam/kamC_assert.h"

void kamC_AssertTimeAmplitudeTable(const cow_2DArray<double>& data) {
  kamC_Assert(data.Columns() <= 2, kamC_TooManyColumns);
  // Rows without a single cell hold no time, so they are no rows of data.
  kamC_Assert(data.Columns() > 0 && data.Rows() >= 2, kamC_TooFewRows);
  // Written so that a NaN time fails.
  for (std::size_t r = 1; r < data.Rows(); ++r) kamC_Assert(data(r, 0) >= data(r - 1, 0), kamC_TimesNotIncreasing);
}

void kamC_AssertSmoothing(double smooth) {
  if (smooth == kamC_kUnspecified) return;
  kamC_Assert(smooth >= 0.0 && smooth <= 0.5, kamC_SmoothingOutOfRange);
}
