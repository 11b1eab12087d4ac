#include "kam/kamC_Periodic.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kam/kamC_assert.h"

kamC_Periodic::kamC_Periodic(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kamC_Periodic::AssertValid() const {
  kamC_Assert(!data.empty(), kamC_NoFourierCoefficients);  // rows without a cell hold no pair
  kamC_Assert(data.Columns() <= 2, kamC_TooManyColumns);
}

template class fw_PersistentClass<kamC_Periodic, kamC_Amplitude>;
