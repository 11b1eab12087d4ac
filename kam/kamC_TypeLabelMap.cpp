#include "kam/kamC_TypeLabelMap.h"

#include <map>
#include <memory>

#include "kam/kamC_ActuatorAmplitude.h"
#include "kam/kamC_Decay.h"
#include "kam/kamC_EquallySpaced.h"
#include "kam/kamC_Modulated.h"
#include "kam/kamC_Periodic.h"
#include "kam/kamC_PsdDefinition.h"
#include "kam/kamC_SmoothStep.h"
#include "kam/kamC_SolutionDependent.h"
#include "kam/kamC_Spectrum.h"
#include "kam/kamC_SpectrumAmplitude.h"
#include "kam/kamC_Tabular.h"

namespace {
std::unique_ptr<const std::map<unsigned, const char*>> labels;

// Both spectrum classes show as "Spectrum"; the user amplitude has no label.
const std::map<unsigned, const char*>& Labels() {
  if (!labels)
    labels = std::make_unique<const std::map<unsigned, const char*>>(std::map<unsigned, const char*>{
        {kamC_Tabular::TypeId(), "Tabular"},
        {kamC_SmoothStep::TypeId(), "Smooth Step"},
        {kamC_EquallySpaced::TypeId(), "Equally spaced"},
        {kamC_Periodic::TypeId(), "Periodic"},
        {kamC_Modulated::TypeId(), "Modulated"},
        {kamC_Decay::TypeId(), "Decay"},
        {kamC_SolutionDependent::TypeId(), "Solution dependent"},
        {kamC_ActuatorAmplitude::TypeId(), "Actuator"},
        {kamC_PsdDefinition::TypeId(), "PSD-Definition"},
        {kamC_SpectrumAmplitude::TypeId(), "Spectrum"},
        {kamC_Spectrum::TypeId(), "Spectrum"},
    });
  return *labels;
}
}  // namespace

const char* kamC_TypeLabelMap::Label(unsigned typeId) {
  const auto& map = Labels();
  auto it = map.find(typeId);
  return it == map.end() ? "" : it->second;
}

void kamC_TypeLabelMap::Release() { labels.reset(); }
