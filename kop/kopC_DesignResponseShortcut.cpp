#include "kop/kopC_DesignResponseShortcut.h"

#include "kop/kopC_DesignResponseInDesignResponseContainerShortcut.h"

kopC_DesignResponseShortcut kopC_DesignResponseShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kopC_DesignResponseShortcut, kopC_DesignResponseInDesignResponseContainerShortcut>(r);
}
