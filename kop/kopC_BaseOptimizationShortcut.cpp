#include "kop/kopC_BaseOptimizationShortcut.h"

kopC_BaseOptimizationShortcut kopC_BaseOptimizationShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_BaseOptimizationShortcut>(r);
}
