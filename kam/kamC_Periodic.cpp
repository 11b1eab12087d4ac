#include "kam/kamC_Periodic.h"

#include "framework/fw_FieldTable.h"
#include "kam/kamC_assert.h"

kamC_Periodic::kamC_Periodic(const cls_ReadVisitor& reader) : kamC_Amplitude(reader) { fw_ReadFields(*this, reader); }
void kamC_Periodic::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kamC_Periodic* kamC_Periodic::Copy() const { return new kamC_Periodic(*this); }
bool kamC_Periodic::operator==(const kamC_Periodic& o) const { return fw_EqualFields(*this, o); }
bool kamC_Periodic::SameAs(const kamC_Amplitude& o) const { return *this == static_cast<const kamC_Periodic&>(o); }
void kamC_Periodic::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kamC_Periodic>(r); }
void kamC_Periodic::CowDtor(void* p) { fw_CowDtor<kamC_Periodic>(p); }

void kamC_Periodic::AssertValid() const {
  kamC_Assert(!data.empty(), kamC_NoFourierCoefficients);  // rows without a cell hold no pair
  kamC_Assert(data.Columns() <= 2, kamC_TooManyColumns);
}
