#include "kma/kmaC_AnnealTemperature.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_AnnealTemperature::kmaC_AnnealTemperature(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_AnnealTemperature* kmaC_AnnealTemperature::Copy() const { return mem_New<kmaC_AnnealTemperature>(*this); }
void kmaC_AnnealTemperature::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_AnnealTemperature::operator==(const kmaC_AnnealTemperature& o) const { return fw_EqualFields(*this, o); }
bool kmaC_AnnealTemperature::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_AnnealTemperature&>(o); }
void kmaC_AnnealTemperature::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_AnnealTemperature>(r); }
void kmaC_AnnealTemperature::CowDtor(void* p) { fw_CowDtor<kmaC_AnnealTemperature>(p); }

void kmaC_AnnealTemperature::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
