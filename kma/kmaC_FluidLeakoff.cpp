#include "kma/kmaC_FluidLeakoff.h"

#include "framework/fw_FieldTable.h"
#include "kma/kmaC_assert.h"

kmaC_FluidLeakoff::kmaC_FluidLeakoff(const cls_ReadVisitor& r) : kmaC_MaterialOption(r) { fw_ReadFields(*this, r); }
kmaC_FluidLeakoff* kmaC_FluidLeakoff::Copy() const { return mem_New<kmaC_FluidLeakoff>(*this); }
void kmaC_FluidLeakoff::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
bool kmaC_FluidLeakoff::operator==(const kmaC_FluidLeakoff& o) const { return fw_EqualFields(*this, o); }
bool kmaC_FluidLeakoff::SameAs(const kmaC_MaterialOption& o) const { return *this == static_cast<const kmaC_FluidLeakoff&>(o); }
void kmaC_FluidLeakoff::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kmaC_FluidLeakoff>(r); }
void kmaC_FluidLeakoff::CowDtor(void* p) { fw_CowDtor<kmaC_FluidLeakoff>(p); }

void kmaC_FluidLeakoff::AssertValid() const {
  kmaC_Assert(dependencies >= 0, kmaC_DependenciesBelowMinimum);
  table.AssertValid();
}
