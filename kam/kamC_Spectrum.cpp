#include "kam/kamC_Spectrum.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kam/kamC_assert.h"

kamC_Spectrum::kamC_Spectrum(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// Written so that a NaN gravity fails.
void kamC_Spectrum::AssertValid() const {
  kamC_Assert(gravity >= 0, kamC_ReferenceGravityNegative);
  kamC_Assert(data.Columns() == 3, kamC_NotThreeColumns);
}

template class fw_PersistentClass<kamC_Spectrum, kamC_Amplitude>;
