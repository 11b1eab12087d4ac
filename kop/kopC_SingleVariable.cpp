#include "kop/kopC_SingleVariable.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_SingleVariable::kopC_SingleVariable(const cls_ReadVisitor& reader) : kopC_Variable(reader) { fw_ReadFields(*this, reader); }
void kopC_SingleVariable::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_SingleVariable* kopC_SingleVariable::Copy() const { return new kopC_SingleVariable(*this); }
bool kopC_SingleVariable::operator==(const kopC_SingleVariable& o) const { return fw_EqualFields(*this, o); }
bool kopC_SingleVariable::SameAs(const kopC_Variable& o) const { return *this == static_cast<const kopC_SingleVariable&>(o); }
void kopC_SingleVariable::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_SingleVariable>(r); }
void kopC_SingleVariable::CowDtor(void* p) { fw_CowDtor<kopC_SingleVariable>(p); }

void kopC_SingleVariable::AssertValid() const {
  kopC_Assert(!identifier.empty(), kopC_IdentifierMissing);
}
