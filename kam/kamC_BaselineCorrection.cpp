#include "kam/kamC_BaselineCorrection.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kam/kamC_assert.h"

kamC_BaselineCorrection::kamC_BaselineCorrection(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }

// Written so that a NaN end time fails.
void kamC_BaselineCorrection::AssertValid() const {
  for (std::size_t i = 0; i < intervals.size(); ++i) {
    const bool ok = i == 0 ? intervals[0] >= 0 : intervals[i] > intervals[i - 1];
    kamC_Assert(ok, kamC_InvalidBaselineCorrection);
  }
}

template class fw_PersistentClass<kamC_BaselineCorrection, mem_Allocated>;
