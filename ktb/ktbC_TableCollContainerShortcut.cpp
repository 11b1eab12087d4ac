#include "ktb/ktbC_TableCollContainerShortcut.h"

ktbC_TableCollContainerShortcut ktbC_TableCollContainerShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_TableCollContainerShortcut, ktbC_TableCollContainerInModelShortcut>(r);
}

ktbC_TableCollectionShortcut ktbC_TableCollectionShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_TableCollectionShortcut, ktbC_TableCollectionInTableCollContainerShortcut>(r);
}
