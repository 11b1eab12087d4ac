#include "kop/kopC_CombinedTermDesignResponse.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_CombinedTermDesignResponse::kopC_CombinedTermDesignResponse(const cls_ReadVisitor& reader) : kopC_OrimDesignResponse(reader) { fw_ReadFields(*this, reader); }
void kopC_CombinedTermDesignResponse::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_CombinedTermDesignResponse* kopC_CombinedTermDesignResponse::Copy() const { return new kopC_CombinedTermDesignResponse(*this); }
bool kopC_CombinedTermDesignResponse::operator==(const kopC_CombinedTermDesignResponse& o) const { return fw_EqualFields(*this, o); }
bool kopC_CombinedTermDesignResponse::SameAs(const kopC_DesignResponse& o) const { return *this == static_cast<const kopC_CombinedTermDesignResponse&>(o); }
void kopC_CombinedTermDesignResponse::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_CombinedTermDesignResponse>(r); }
void kopC_CombinedTermDesignResponse::CowDtor(void* p) { fw_CowDtor<kopC_CombinedTermDesignResponse>(p); }

void kopC_CombinedTermDesignResponse::AssertValid() const {
  request.AssertValid();
}
