#include "kam/kamC_SolutionDependent.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kam/kamC_assert.h"

kamC_SolutionDependent::kamC_SolutionDependent(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// An initial above the maximum has its own message; any other break of minimum <= initial <= maximum
// (a NaN included) reports the relation.
void kamC_SolutionDependent::AssertValid() const {
  kamC_Assert(!(initial > maximum), kamC_InitialAboveMaximum);
  kamC_Assert(minimum <= initial && initial <= maximum, kamC_InitialMinimumMaximumOrder);
}

template class fw_PersistentClass<kamC_SolutionDependent, kamC_Amplitude>;
