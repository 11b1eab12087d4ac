#include "klc/klcC_LoadCaseShortcut.h"

#include "klc/klcC_LoadCaseInLoadCaseContainerShortcut.h"

klcC_LoadCaseShortcut klcC_LoadCaseShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<klcC_LoadCaseShortcut, klcC_LoadCaseInLoadCaseContainerShortcut>(r);
}
