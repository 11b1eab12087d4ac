#include "kef/kefC_PointMassInertia.h"

#include <cmath>

#include "framework/fw_PersistentClassImpl.h"
#include "kef/kefC_assert.h"

kefC_PointMassInertia::kefC_PointMassInertia(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kefC_PointMassInertia::AssertValid() const {
  if (suppress) return;  // a suppressed feature is not validated
  const bool anisotropic = mass1 != 0 || mass2 != 0 || mass3 != 0;
  const bool rotary = i11 != 0 || i22 != 0 || i33 != 0 || i12 != 0 || i13 != 0 || i23 != 0;
  // A value that is not a number (an unset stored value reads back as one) is no data at all.
  const bool numbers = !std::isnan(mass) && !std::isnan(mass1) && !std::isnan(mass2) && !std::isnan(mass3) &&
                       !std::isnan(i11) && !std::isnan(i22) && !std::isnan(i33) && !std::isnan(i12) &&
                       !std::isnan(i13) && !std::isnan(i23);
  kefC_Assert(numbers && (mass != 0 || anisotropic || rotary), kefC_NoMassOrInertia);
  kefC_Assert(i11 >= 0 && i22 >= 0 && i33 >= 0, kefC_NegativeDiagonalInertia);
  kefC_Assert(mass == 0 || !anisotropic, kefC_IsotropicAndAnisotropicMass);
}

template class fw_PersistentClass<kefC_PointMassInertia, kefC_Inertia>;
