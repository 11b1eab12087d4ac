#include "kfd/kfdC_OdbMeshRegionData.h"

#include "framework/fw_FieldTable.h"

kfdC_OdbMeshRegionData::kfdC_OdbMeshRegionData(const cls_ReadVisitor& reader) : uid(reader.GetUid()) { fw_ReadFields(*this, reader); }
void kfdC_OdbMeshRegionData::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kfdC_OdbMeshRegionData* kfdC_OdbMeshRegionData::Copy() const { return new kfdC_OdbMeshRegionData(*this); }
bool kfdC_OdbMeshRegionData::operator==(const kfdC_OdbMeshRegionData& o) const { return fw_EqualFields(*this, o); }
void kfdC_OdbMeshRegionData::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kfdC_OdbMeshRegionData>(r); }
void kfdC_OdbMeshRegionData::CowDtor(void* p) { fw_CowDtor<kfdC_OdbMeshRegionData>(p); }

void kfdC_OdbMeshRegionData::AssertValid() const {
  // The host checks the results source against the output database when it maps; a stored
  // source carries nothing that can be checked without it.
}
