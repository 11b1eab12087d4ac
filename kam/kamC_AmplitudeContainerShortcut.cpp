#include "kam/kamC_AmplitudeContainerShortcut.h"

#include "kam/kamC_AmplitudeContainerInModelShortcut.h"

kamC_AmplitudeContainerShortcut kamC_AmplitudeContainerShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kamC_AmplitudeContainerShortcut, kamC_AmplitudeContainerInModelShortcut>(r);
}
