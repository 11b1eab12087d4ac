#include "kop/kopC_SingleTermDesignResponse.h"

#include "framework/fw_FieldTable.h"
#include "kop/kopC_assert.h"

kopC_SingleTermDesignResponse::kopC_SingleTermDesignResponse(const cls_ReadVisitor& reader) : kopC_OrimDesignResponse(reader) { fw_ReadFields(*this, reader); }
void kopC_SingleTermDesignResponse::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kopC_SingleTermDesignResponse* kopC_SingleTermDesignResponse::Copy() const { return new kopC_SingleTermDesignResponse(*this); }
bool kopC_SingleTermDesignResponse::operator==(const kopC_SingleTermDesignResponse& o) const { return fw_EqualFields(*this, o); }
bool kopC_SingleTermDesignResponse::SameAs(const kopC_DesignResponse& o) const { return *this == static_cast<const kopC_SingleTermDesignResponse&>(o); }
void kopC_SingleTermDesignResponse::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kopC_SingleTermDesignResponse>(r); }
void kopC_SingleTermDesignResponse::CowDtor(void* p) { fw_CowDtor<kopC_SingleTermDesignResponse>(p); }

void kopC_SingleTermDesignResponse::AssertValid() const {
  request.AssertValid();
}
