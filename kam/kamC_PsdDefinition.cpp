#include "kam/kamC_PsdDefinition.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kam/kamC_assert.h"

kamC_PsdDefinition::kamC_PsdDefinition(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// In the stated order; written so that a NaN reference fails. Band numbers are checked as numbers
// (a fraction inside 1 to 15 passes).
void kamC_PsdDefinition::AssertValid() const {
  kamC_Assert(referenceGravityAcceleration >= 0, kamC_ReferenceGravityNegative);
  kamC_Assert(referencePower >= 0, kamC_ReferencePowerNegative);
  const bool db = unitType == PsdTypeEnm::DB;
  kamC_Assert(!(userSubroutine && db), kamC_UserSubroutineWithDb);
  if (userSubroutine) {
    kamC_Assert(data.empty(), kamC_UserSubroutineWithData);  // no cell, whatever its shape
    return;
  }
  kamC_Assert(data.Columns() == 3, kamC_NotThreeColumns);
  if (!db) return;
  for (std::size_t r = 0; r < data.Rows(); ++r) kamC_Assert(data(r, 0) >= 1 && data(r, 0) <= 15, kamC_BandNumberOutOfRange);
}

template class fw_PersistentClass<kamC_PsdDefinition, kamC_Amplitude>;
