#include "kbp/kbpC_ProfileLabels.h"

#include <map>
#include <memory>

#include "kbp/kbpC_ArbitraryProfile.h"
#include "kbp/kbpC_CbeamProfile.h"
#include "kbp/kbpC_CircularProfile.h"
#include "kbp/kbpC_GeneralizedProfile.h"
#include "kbp/kbpC_HexagonalProfile.h"
#include "kbp/kbpC_RectangularProfile.h"
#include "kbp/kbpC_TrapezoidalProfile.h"

namespace {
std::unique_ptr<const std::map<unsigned, const char*>> labels;

const std::map<unsigned, const char*>& Labels() {
  if (!labels)
    labels = std::make_unique<const std::map<unsigned, const char*>>(std::map<unsigned, const char*>{
        {kbpC_GeneralizedProfile::TypeId(), "Generalized"},
        {kbpC_ArbitraryProfile::TypeId(), "Arbitrary"},
        {kbpC_CircularProfile::TypeId(), "Circular"},
        {kbpC_HexagonalProfile::TypeId(), "Hexagonal"},
        {kbpC_RectangularProfile::TypeId(), "Rectangular"},
        {kbpC_TrapezoidalProfile::TypeId(), "Trapezoidal"},
        {kbpC_CbeamProfile::TypeId(), "Channel"},
    });
  return *labels;
}
}  // namespace

const char* kbpC_DisplayLabel(unsigned typeId) {
  const auto& map = Labels();
  auto it = map.find(typeId);
  return it == map.end() ? "" : it->second;
}

void kbpC_ReleaseDisplayLabels() { labels.reset(); }
