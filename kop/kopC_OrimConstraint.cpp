#include "kop/kopC_OrimConstraint.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_OrimConstraint::kopC_OrimConstraint(const cls_ReadVisitor& reader) : kopC_Constraint(reader) { fw_ReadFields(*this, reader); }
void kopC_OrimConstraint::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_OrimConstraint* kopC_OrimConstraint::Copy() const { return new kopC_OrimConstraint(*this); }
bool kopC_OrimConstraint::operator==(const kopC_OrimConstraint& o) const { return fw_EqualFields(*this, o); }
bool kopC_OrimConstraint::SameAs(const kopC_Constraint& o) const { return *this == static_cast<const kopC_OrimConstraint&>(o); }
void kopC_OrimConstraint::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_OrimConstraint>(r); }
void kopC_OrimConstraint::CowDtor(void* p) { fw_CowDtor<kopC_OrimConstraint>(p); }

// A constraint names its design response; whether the task holds it is the task's test.
void kopC_OrimConstraint::AssertValid() const {
  kopC_Assert(!designResponse.empty(), kopC_ResponseNotUsableWithConstraint);
}
