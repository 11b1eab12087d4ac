#include "kop/kopC_OrimObjectiveFunction.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_OrimObjectiveFunction::kopC_OrimObjectiveFunction(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

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

template class fw_PersistentClass<kopC_OrimObjectiveFunction, kopC_ObjectiveFunction>;
