#include "kam/kamC_BaselineCorrection.h"

#include "framework/fw_FieldTable.h"
#include "kam/kamC_assert.h"

kamC_BaselineCorrection::kamC_BaselineCorrection(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
void kamC_BaselineCorrection::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kamC_BaselineCorrection* kamC_BaselineCorrection::Copy() const { return new kamC_BaselineCorrection(*this); }
bool kamC_BaselineCorrection::operator==(const kamC_BaselineCorrection& o) const { return fw_EqualFields(*this, o); }
void kamC_BaselineCorrection::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kamC_BaselineCorrection>(r); }
void kamC_BaselineCorrection::CowDtor(void* p) { fw_CowDtor<kamC_BaselineCorrection>(p); }

// Written so that a NaN end time fails.
void kamC_BaselineCorrection::AssertValid() const {
  for (std::size_t i = 0; i < intervals.size(); ++i) {
    const bool ok = i == 0 ? intervals[0] >= 0 : intervals[i] > intervals[i - 1];
    kamC_Assert(ok, kamC_InvalidBaselineCorrection);
  }
}
