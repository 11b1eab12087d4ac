#include "kma/kmaC_HeatGeneration.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_HeatGeneration::kmaC_HeatGeneration(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_HeatGeneration* kmaC_HeatGeneration::Copy() const { return mem_New<kmaC_HeatGeneration>(*this); }
void kmaC_HeatGeneration::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_HeatGeneration::operator==(const kmaC_HeatGeneration& o) const { return fw_EqualFields(*this, o); }
bool kmaC_HeatGeneration::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_HeatGeneration&>(o); }
void kmaC_HeatGeneration::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_HeatGeneration>(r); }
void kmaC_HeatGeneration::CowDtor(void* p) { fw_CowDtor<kmaC_HeatGeneration>(p); }

void kmaC_HeatGeneration::AssertValid() const {
}
