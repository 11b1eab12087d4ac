#include "kma/kmaC_FieldConstituent.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kma/kmaC_assert.h"

kmaC_FieldConstituent::kmaC_FieldConstituent(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }

int kmaC_FieldConstituent::OrientationColumns(OrientationEnm o) {
  switch (o) {
    case OrientationEnm::RANDOM_3D: return 0;
    case OrientationEnm::RANDOM_2D: return 3;
    case OrientationEnm::FIXED: return 3;
    case OrientationEnm::ORIENTATION_TENSOR: return 6;
  }
  return 0;
}

// The matrix has no shape or orientation of its own: those rules apply to inclusions only. A
// sphere's aspect ratio is one by definition, so a blank or an explicit 1 both pass; a cylinder
// is infinitely long and takes none; oblate and penny-shaped inclusions need a ratio below one,
// prolate ones above one (a blank ratio fails these, as it says nothing).
void kmaC_FieldConstituent::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (volumeFraction != kBlank) kmaC_Assert(volumeFraction > 0.0 && volumeFraction < 1.0, kmaC_VolumeFractionOutOfRange);
  if (isotropizationCoefficient != kBlank) kmaC_Assert(isotropizationCoefficient >= 1.0, kmaC_IsotropizationBelowOne);
  if (type == TypeEnm::INCLUSION) {
    const bool blank = aspectRatio == kBlank;
    switch (shape) {
      case ShapeEnm::CYLINDER: kmaC_Assert(blank, kmaC_AspectRatioNotBlank); break;
      case ShapeEnm::SPHERE: kmaC_Assert(blank || aspectRatio == 1.0, kmaC_AspectRatioNotOne); break;
      case ShapeEnm::OBLATE:
      case ShapeEnm::PENNY: kmaC_Assert(!blank && aspectRatio < 1.0, kmaC_AspectRatioNotBelowOne); break;
      case ShapeEnm::PROLATE: kmaC_Assert(!blank && aspectRatio > 1.0, kmaC_AspectRatioNotAboveOne); break;
    }
    const int columns = OrientationColumns(orientation);
    if (columns > 0) kmaC_Assert(table.Rows() >= 1 && table.Columns() >= static_cast<std::size_t>(columns), kmaC_ConstituentTableIncomplete);
  }
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_FieldConstituent, mem_Allocated>;
