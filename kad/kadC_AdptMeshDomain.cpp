#include "kad/kadC_AdptMeshDomain.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kad/kadC_assert.h"

kadC_AdptMeshDomain::kadC_AdptMeshDomain(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }

// Zero initial sweeps pass although the message says "greater than zero": only the sign is
// tested. A domain without a region passes.
void kadC_AdptMeshDomain::AssertValid() const {
  kadC_Assert(frequency > 0, kadC_FrequencyNotPositive);
  kadC_Assert(initialRemeshingSweeps >= 0, kadC_InitialSweepsNegative);
  kadC_Assert(sweepsPerIncrement > 0, kadC_SweepsPerIncrementNotPositive);
}

template class fw_PersistentClass<kadC_AdptMeshDomain, mem_Allocated>;
