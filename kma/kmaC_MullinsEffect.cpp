#include "kma/kmaC_MullinsEffect.h"

#include "framework/fw_PersistentClassImpl.h"

#include "kma/kmaC_OptionListTraits.h"
#include "kma/kmaC_assert.h"

kmaC_MullinsEffect::kmaC_MullinsEffect(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

const kmaC_MaterialOptionList* kmaC_MullinsEffect::OptionList(std::string_view member) const {
  if (member == "uniaxialTests") return &uniaxialTests.List();
  if (member == "biaxialTests") return &biaxialTests.List();
  if (member == "planarTests") return &planarTests.List();
  return nullptr;
}

kmaC_MaterialOptionList* kmaC_MullinsEffect::ModifyOptionList(std::string_view member) {
  if (member == "uniaxialTests") return &uniaxialTests.List();
  if (member == "biaxialTests") return &biaxialTests.List();
  if (member == "planarTests") return &planarTests.List();
  return nullptr;
}

// The order: dependencies; the lists hold only their own test data (a list filled through its
// shortcut is not checked on the way in); then the rules of the definition. The constants are
// checked row by row in column order (r, m, beta), then m and beta together.
void kmaC_MullinsEffect::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  kmaC_Assert(uniaxialTests.ElementsFit() && biaxialTests.ElementsFit() && planarTests.ElementsFit(),
              kmaC_NoSuchSubOption);
  const std::size_t extra = (temperatureDependency ? 1u : 0u) + static_cast<std::size_t>(dependencies);
  switch (definition) {
    case DefinitionEnm::CONSTANTS:
      kmaC_Assert(table.Rows() >= 1 && table.Columns() >= 3 + extra, kmaC_MullinsConstantsIncomplete);
      table.AssertValid();
      for (std::size_t r = 0; r < table.Rows(); ++r) {
        const double rr = table(r, 0), m = table(r, 1), beta = table(r, 2);
        kmaC_Assert(rr > 1.0, kmaC_RNotAboveOne);
        kmaC_Assert(m >= 0.0, kmaC_MNegative);
        kmaC_Assert(beta >= 0.0, kmaC_BetaNegative);
        kmaC_Assert(m != 0.0 || beta != 0.0, kmaC_BetaAndMBothZero);
      }
      break;
    case DefinitionEnm::USER:
      kmaC_Assert(properties >= 0, kmaC_PropertiesNegative);
      // An empty table leaves the constants to the subroutine.
      kmaC_Assert(table.Columns() == 0 || table.Columns() == static_cast<std::size_t>(properties) + extra, kmaC_PropertiesMismatchData);
      table.AssertValid();
      break;
    case DefinitionEnm::TEST_DATA:
      kmaC_Assert(!uniaxialTests.empty() || !biaxialTests.empty() || !planarTests.empty(), kmaC_NoTestData);
      for (const kmaC_MaterialOptionList* list : {&uniaxialTests.List(), &biaxialTests.List(), &planarTests.List()})
        for (const kmaC_OptionHandle& h : *list) h->AssertValid();
      break;
  }
}

template class fw_PersistentClass<kmaC_MullinsEffect, kmaC_MaterialOption>;
