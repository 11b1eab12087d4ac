#include "kop/kopC_CombinedTermDesignResponse.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"

kopC_CombinedTermDesignResponse::kopC_CombinedTermDesignResponse(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

void kopC_CombinedTermDesignResponse::AssertValid() const {
  request.AssertValid();
}

template class fw_PersistentClass<kopC_CombinedTermDesignResponse, kopC_OrimDesignResponse>;
