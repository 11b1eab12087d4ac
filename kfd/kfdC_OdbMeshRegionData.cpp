#include "kfd/kfdC_OdbMeshRegionData.h"

#include "framework/fw_PersistentClassImpl.h"

kfdC_OdbMeshRegionData::kfdC_OdbMeshRegionData(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }

void kfdC_OdbMeshRegionData::AssertValid() const {
  // The host checks the results source against the output database when it maps; a stored
  // source carries nothing that can be checked without it.
}

template class fw_PersistentClass<kfdC_OdbMeshRegionData, mem_Allocated>;
