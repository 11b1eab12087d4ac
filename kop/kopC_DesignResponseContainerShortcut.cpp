#include "kop/kopC_DesignResponseContainerShortcut.h"

#include "kop/kopC_DesignResponseContainerInModelShortcut.h"

kopC_DesignResponseContainerShortcut kopC_DesignResponseContainerShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_DesignResponseContainerShortcut, kopC_DesignResponseContainerInModelShortcut>(r);
}
