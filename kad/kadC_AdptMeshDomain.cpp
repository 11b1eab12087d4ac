#include "kad/kadC_AdptMeshDomain.h"

#include "framework/fw_FieldTable.h"
#include "kad/kadC_assert.h"

kadC_AdptMeshDomain::kadC_AdptMeshDomain(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }
void kadC_AdptMeshDomain::DBWrite(const cls_WriteVisitor& w) const { fw_WriteFields(*this, w); }
kadC_AdptMeshDomain* kadC_AdptMeshDomain::Copy() const { return new kadC_AdptMeshDomain(*this); }
bool kadC_AdptMeshDomain::operator==(const kadC_AdptMeshDomain& o) const { return fw_EqualFields(*this, o); }
void kadC_AdptMeshDomain::InitializeMetadata(cls_ClassRegistrar& r) { fw_InitializeMetadata<kadC_AdptMeshDomain>(r); }
void kadC_AdptMeshDomain::CowDtor(void* p) { fw_CowDtor<kadC_AdptMeshDomain>(p); }

// Zero initial sweeps pass although the message says "greater than zero": only the sign is
// tested. A domain without a region passes.
void kadC_AdptMeshDomain::AssertValid() const {
  kadC_Assert(frequency > 0, kadC_FrequencyNotPositive);
  kadC_Assert(initialRemeshingSweeps >= 0, kadC_InitialSweepsNegative);
  kadC_Assert(sweepsPerIncrement > 0, kadC_SweepsPerIncrementNotPositive);
}
