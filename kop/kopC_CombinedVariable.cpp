#include "kop/kopC_CombinedVariable.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_CombinedVariable::kopC_CombinedVariable(const cls_ReadVisitor& reader) : kopC_Variable(reader) { fw_ReadFields(*this, reader); }
void kopC_CombinedVariable::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_CombinedVariable* kopC_CombinedVariable::Copy() const { return new kopC_CombinedVariable(*this); }
bool kopC_CombinedVariable::operator==(const kopC_CombinedVariable& o) const { return fw_EqualFields(*this, o); }
bool kopC_CombinedVariable::SameAs(const kopC_Variable& o) const { return *this == static_cast<const kopC_CombinedVariable&>(o); }
void kopC_CombinedVariable::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_CombinedVariable>(r); }
void kopC_CombinedVariable::CowDtor(void* p) { fw_CowDtor<kopC_CombinedVariable>(p); }

void kopC_CombinedVariable::AssertValid() const {
  kopC_Assert(!terms.empty(), kopC_AtLeastOneTerm);
}
