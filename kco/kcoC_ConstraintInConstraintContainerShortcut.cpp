#include "kco/kcoC_ConstraintInConstraintContainerShortcut.h"

#include "kco/kcoC_assert.h"

kcoC_Constraint& kcoC_ConstraintInConstraintContainerShortcut::Get(ddr_Model& model) const {
  if (const kcoC_ConstraintContainer* c = Owner().ConstGet(model)) {
    kcoC_Assert(c->Size() != 0, kcoC_ContainerEmpty);
    kcoC_Assert(c->Has(GetKey()), kcoC_ConstraintMissing);
  }
  return ddr_SequenceShortcut::Get(model);  // refuses a model without the container
}
