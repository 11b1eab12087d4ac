#include "kam/kamC_CorrelationComponent.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kam/kamC_assert.h"

kamC_CorrelationComponent::kamC_CorrelationComponent(const cls_ReadVisitor& r) : uid(r.GetUid()) { fw_ReadFields(*this, r); }

// USER takes no data at all (28). Moving noise is refused as unsupported (26), but a list longer
// than it could ever take is reported first (29), so that each message can be met. Every other
// approach needs at least one value (30), and at most two (31).
void kamC_CorrelationComponent::AssertValid() const {
  using A = CorrelationApproachEnm;
  if (approach == A::USER) {
    kamC_Assert(dataList.empty(), kamC_DataWithUser);
    return;
  }
  if (approach == A::MOVING_NOISE) {
    kamC_Assert(dataList.size() <= 3, kamC_MovingNoiseDataTooLong);
    kamC_Assert(false, kamC_MovingNoiseUnsupported);
  }
  kamC_Assert(!dataList.empty(), kamC_NoDataValue);
  kamC_Assert(dataList.size() <= 2, kamC_CorrelatedDataTooLong);
}

template class fw_PersistentClass<kamC_CorrelationComponent, mem_Allocated>;
