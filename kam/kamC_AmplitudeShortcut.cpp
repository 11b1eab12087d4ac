#include "kam/kamC_AmplitudeShortcut.h"

#include "kam/kamC_AmplitudeInAmplitudeContainerShortcut.h"
#include "kam/kamC_assert.h"

void kamC_RefuseMissingAmplitude(std::size_t count) { kamC_Assert(count != 0, kamC_ContainerEmpty); }

kamC_AmplitudeShortcut kamC_AmplitudeShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kamC_AmplitudeShortcut, kamC_AmplitudeInAmplitudeContainerShortcut>(r);
}
