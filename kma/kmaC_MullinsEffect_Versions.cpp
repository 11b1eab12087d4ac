#include "kma/kmaC_MullinsEffect_Versions.h"

#include <vector>

void* kmaC_MullinsEffect_Upgrade_850_1106(const dbc_Row&, dbc_Row& newRow, int) {
  for (const char* list : {"uniaxialTests", "biaxialTests", "planarTests"})
    newRow.Set(rfm_FieldHandle(list, -1), std::vector<cls_RecordPtr>());
  return nullptr;
}
