#include "kam/kamC_Amplitude.h"

#include "framework/fw_FieldTable.h"
#include "kam/kamC_TypeLabelMap.h"

kamC_Amplitude::kamC_Amplitude(const cls_ReadVisitor& r) : uid(r.GetUid()) {}

const char* kamC_Amplitude::DisplayLabel() const { return kamC_TypeLabelMap::Label(ClassTypeId()); }

const char* kamC_Amplitude::TimeSpanLabel(TimeSpanEnm v) {
  switch (v) {
    case TimeSpanEnm::STEP: return "Step Time";
    case TimeSpanEnm::TOTAL: return "Total Time";
  }
  return "";
}

void kamC_Amplitude::CowDtor(void* p) { cow_Destroy(static_cast<kamC_Amplitude*>(p)); }

// The root registers its own field so that the family's metadata says where the time span lives;
// the kinds repeat it at the head of their records.
void kamC_Amplitude::InitializeMetadata(cls_ClassRegistrar& registrar) {
  fw_InitializeMetadata<kamC_Amplitude>(registrar);
}
