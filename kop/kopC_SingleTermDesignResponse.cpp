#include "kop/kopC_SingleTermDesignResponse.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_SingleTermDesignResponse::kopC_SingleTermDesignResponse(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_SingleTermDesignResponse::AssertValid() const {
  request.AssertValid();
}

template class fw_PersistentClass<kopC_SingleTermDesignResponse, kopC_OrimDesignResponse>;
