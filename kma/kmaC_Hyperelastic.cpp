#include "kma/kmaC_Hyperelastic.h"

#include "framework/fw_PersistentClassImpl.h"

#include "kma/kmaC_OptionListTraits.h"
#include "kma/kmaC_assert.h"

kmaC_Hyperelastic::kmaC_Hyperelastic(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_Hyperelastic::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  // Without test data the potential must be named.
  kmaC_Assert(testData || type != TypeEnm::UNKNOWN, kmaC_InvalidPotentialType);
  kmaC_Assert(n >= 1, kmaC_NBelowMinimum);
  kmaC_Assert(n <= 6, kmaC_NAboveMaximum);
  kmaC_Assert(!(testData && type == TypeEnm::POLYNOMIAL && n > 2), kmaC_PolynomialOrderWithTestData);
  kmaC_Assert(poissonRatio >= -1.0, kmaC_PoissonBelowMinimum);
  kmaC_Assert(poissonRatio <= 0.5, kmaC_PoissonAboveMaximum);
  table.AssertValid();
  // The test data count only when the fit uses them.
  kmaC_Assert(uniaxialTests.ElementsFit() && biaxialTests.ElementsFit() && planarTests.ElementsFit() &&
                  volumetricTests.ElementsFit(),
              kmaC_NoSuchSubOption);
  if (testData)
    for (const kmaC_MaterialOptionList* list :
         {&uniaxialTests.List(), &biaxialTests.List(), &planarTests.List(), &volumetricTests.List()})
      for (const kmaC_OptionHandle& h : *list) h->AssertValid();
}

template class fw_PersistentClass<kmaC_Hyperelastic, kmaC_MaterialOption>;
