#include "kam/kamC_SolutionDependent.h"

#include "framework/fw_FieldTable.h"
#include "kam/kamC_assert.h"

kamC_SolutionDependent::kamC_SolutionDependent(const cls_ReadVisitor& reader) : kamC_Amplitude(reader) { fw_ReadFields(*this, reader); }
void kamC_SolutionDependent::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kamC_SolutionDependent* kamC_SolutionDependent::Copy() const { return new kamC_SolutionDependent(*this); }
bool kamC_SolutionDependent::operator==(const kamC_SolutionDependent& o) const { return fw_EqualFields(*this, o); }
bool kamC_SolutionDependent::SameAs(const kamC_Amplitude& o) const { return *this == static_cast<const kamC_SolutionDependent&>(o); }
void kamC_SolutionDependent::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kamC_SolutionDependent>(r); }
void kamC_SolutionDependent::CowDtor(void* p) { fw_CowDtor<kamC_SolutionDependent>(p); }

// An initial above the maximum has its own message; any other break of minimum <= initial <= maximum
// (a NaN included) reports the relation.
void kamC_SolutionDependent::AssertValid() const {
  kamC_Assert(!(initial > maximum), kamC_InitialAboveMaximum);
  kamC_Assert(minimum <= initial && initial <= maximum, kamC_InitialMinimumMaximumOrder);
}
