#include "kco/kcoC_ConstraintInConstraintContainerShortcut.h"

#include "kco/kcoC_assert.h"
#include "platform/base/nex_Exception.h"

void kcoC_RefuseMissingConstraint(std::size_t count) {
  kcoC_Assert(count != 0, kcoC_ContainerEmpty);
  kcoC_Assert(false, kcoC_ConstraintMissing);
  nex_ThrowCmd("unreachable");  // kcoC_Assert(false, ...) always throws
}
