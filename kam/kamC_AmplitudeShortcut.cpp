#include "kam/kamC_AmplitudeShortcut.h"

#include "kam/kamC_AmplitudeInAmplitudeContainerShortcut.h"

kamC_AmplitudeShortcut kamC_AmplitudeShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kamC_AmplitudeShortcut, kamC_AmplitudeInAmplitudeContainerShortcut>(r);
}
