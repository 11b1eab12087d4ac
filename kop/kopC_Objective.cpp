#include "kop/kopC_Objective.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"
#include "kop/kopC_Enums.h"

kopC_Objective::kopC_Objective(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }
void kopC_Objective::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_Objective* kopC_Objective::Copy() const { return new kopC_Objective(*this); }
bool kopC_Objective::operator==(const kopC_Objective& o) const { return fw_EqualFields(*this, o); }
void kopC_Objective::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_Objective>(r); }
void kopC_Objective::CowDtor(void* p) { fw_CowDtor<kopC_Objective>(p); }

void kopC_Objective::AssertValid() const {
  kopC_Assert(referenceValueVariable.empty(), kopC_ReferenceValueVariable);
}
