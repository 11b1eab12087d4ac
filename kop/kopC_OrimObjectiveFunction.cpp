#include "kop/kopC_OrimObjectiveFunction.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_OrimObjectiveFunction::kopC_OrimObjectiveFunction(const cls_ReadVisitor& reader) : kopC_ObjectiveFunction(reader) { fw_ReadFields(*this, reader); }
void kopC_OrimObjectiveFunction::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_OrimObjectiveFunction* kopC_OrimObjectiveFunction::Copy() const { return new kopC_OrimObjectiveFunction(*this); }
bool kopC_OrimObjectiveFunction::operator==(const kopC_OrimObjectiveFunction& o) const { return fw_EqualFields(*this, o); }
bool kopC_OrimObjectiveFunction::SameAs(const kopC_ObjectiveFunction& o) const { return *this == static_cast<const kopC_OrimObjectiveFunction&>(o); }
void kopC_OrimObjectiveFunction::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_OrimObjectiveFunction>(r); }
void kopC_OrimObjectiveFunction::CowDtor(void* p) { fw_CowDtor<kopC_OrimObjectiveFunction>(p); }

void kopC_OrimObjectiveFunction::AssertValid() const {
  kopC_Assert(UnsuppressedCount() >= 1, kopC_NoUnsuppressedObjective);
  for (const ObjectiveHandle& o : objectives)
    if (!o.IsNull() && !o->GetSuppressed()) o->AssertValid();
}

std::size_t kopC_OrimObjectiveFunction::UnsuppressedCount() const {
  std::size_t n = 0;
  for (const ObjectiveHandle& o : objectives)
    if (!o.IsNull() && !o->GetSuppressed()) ++n;
  return n;
}
