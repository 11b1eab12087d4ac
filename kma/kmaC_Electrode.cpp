#include "kma/kmaC_Electrode.h"

#include <utility>

#include "kma/kmaC_OptionListTraits.h"
#include "kma/kmaC_OptionSlotTraits.h"
#include "kma/kmaC_assert.h"

kmaC_Electrode::kmaC_Electrode(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_Electrode* kmaC_Electrode::Copy() const { return mem_New<kmaC_Electrode>(*this); }
void kmaC_Electrode::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_Electrode::operator==(const kmaC_Electrode& o) const { return fw_EqualFields(*this, o); }
bool kmaC_Electrode::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_Electrode&>(o); }
void kmaC_Electrode::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_Electrode>(r); }
void kmaC_Electrode::CowDtor(void* p) { fw_CowDtor<kmaC_Electrode>(p); }

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
