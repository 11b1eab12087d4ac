#include "kma/kmaC_Elastic.h"

#include "framework/fw_PersistentClassImpl.h"

#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_Elastic::kmaC_Elastic(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

const kmaC_FailStress& kmaC_Elastic::GetFailStress() const {
  if (failStress.IsNull()) nex_ThrowCmd("The elastic option has no failStress");
  return static_cast<const kmaC_FailStress&>(*failStress.ConstGet());
}

const kmaC_FailStrain& kmaC_Elastic::GetFailStrain() const {
  if (failStrain.IsNull()) nex_ThrowCmd("The elastic option has no failStrain");
  return static_cast<const kmaC_FailStrain&>(*failStrain.ConstGet());
}

// The width of the table is not checked against the type: its consumer decides the layout.
void kmaC_Elastic::AssertValid() const {
  kmaC_Assert(!(noCompression && noTension), kmaC_NoCompressionAndNoTension);
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (const kmaC_MaterialOption* strain = failStrain.ConstGet()) strain->AssertValid();
  if (const kmaC_MaterialOption* stress = failStress.ConstGet()) stress->AssertValid();
  table.AssertValid();
}

template class fw_PersistentClass<kmaC_Elastic, kmaC_MaterialOption>;
