#include "kbp/kbpC_BeamProfileShortcut.h"

#include "kbp/kbpC_BeamProfileInBeamProfileContainerShortcut.h"

kbpC_BeamProfileShortcut kbpC_BeamProfileShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kbpC_BeamProfileShortcut, kbpC_BeamProfileInBeamProfileContainerShortcut>(r);
}
