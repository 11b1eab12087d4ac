#include "klc/klcC_LoadCaseTerm.h"

#include <cmath>

#include "framework/fw_FieldTable.h"
#include "klc/klcC_assert.h"

klcC_LoadCaseTerm::klcC_LoadCaseTerm(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
void klcC_LoadCaseTerm::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
klcC_LoadCaseTerm* klcC_LoadCaseTerm::Copy() const { return new klcC_LoadCaseTerm(*this); }
bool klcC_LoadCaseTerm::operator==(const klcC_LoadCaseTerm& o) const { return fw_EqualFields(*this, o); }
void klcC_LoadCaseTerm::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<klcC_LoadCaseTerm>(r); }
void klcC_LoadCaseTerm::CowDtor(void* p) { fw_CowDtor<klcC_LoadCaseTerm>(p); }

void klcC_LoadCaseTerm::AssertValid() const {
  klcC_Assert(!name.empty(), klcC_NameMissing);
  klcC_Assert(std::isfinite(scaleFactor), klcC_ScaleFactorNotFinite);
}
