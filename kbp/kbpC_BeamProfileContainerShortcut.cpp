#include "kbp/kbpC_BeamProfileContainerShortcut.h"

#include "kbp/kbpC_BeamProfileContainerInModelShortcut.h"

kbpC_BeamProfileContainerShortcut kbpC_BeamProfileContainerShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kbpC_BeamProfileContainerShortcut, kbpC_BeamProfileContainerInModelShortcut>(r);
}
