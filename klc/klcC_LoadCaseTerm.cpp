#include "klc/klcC_LoadCaseTerm.h"

#include <cmath>

#include "framework/fw_PersistentClassImpl.h"
#include "klc/klcC_assert.h"

klcC_LoadCaseTerm::klcC_LoadCaseTerm(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }

void klcC_LoadCaseTerm::AssertValid() const {
  klcC_Assert(!name.empty(), klcC_NameMissing);
  klcC_Assert(std::isfinite(scaleFactor), klcC_ScaleFactorNotFinite);
}

template class fw_PersistentClass<klcC_LoadCaseTerm, mem_Allocated>;
