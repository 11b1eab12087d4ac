#include "kma/kmaC_Electrode.h"

#include "framework/fw_PersistentClassImpl.h"

#include <utility>

#include "kma/kmaC_OptionListTraits.h"
#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_Electrode::kmaC_Electrode(const cls_ReadVisitor& r) : fw_PersistentClass(r) { fw_ReadFields(*this, r); }

void kmaC_Electrode::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  if (const kmaC_MaterialOption* sub = electricalConductivity.ConstGet()) sub->AssertValid();
  for (const kmaC_MaterialOptionList* list : {&electrodeParticleList.List(), &electrodeParticleLayerList.List()})
    for (const kmaC_OptionHandle& h : *list)
      if (!h.IsNull()) h->AssertValid();
  table.AssertValid();
}

const kmaC_MaterialOptionList* kmaC_Electrode::OptionList(std::string_view member) const {
  if (member == "ElectrodeParticleList" || member == "electrodeParticleList") return &electrodeParticleList.List();
  if (member == "ElectrodeParticleLayerList" || member == "electrodeParticleLayerList")
    return &electrodeParticleLayerList.List();
  return nullptr;
}

kmaC_MaterialOptionList* kmaC_Electrode::ModifyOptionList(std::string_view member) {
  return const_cast<kmaC_MaterialOptionList*>(std::as_const(*this).OptionList(member));
}

template class fw_PersistentClass<kmaC_Electrode, kmaC_MaterialOption>;
