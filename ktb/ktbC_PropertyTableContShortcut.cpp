#include "ktb/ktbC_PropertyTableContShortcut.h"

ktbC_PropertyTableContShortcut ktbC_PropertyTableContShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_PropertyTableContShortcut, ktbC_PropertyTableContInTableCollectionShortcut>(r);
}

ktbC_PropertyTableShortcut ktbC_PropertyTableShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_PropertyTableShortcut, ktbC_PropertyTableInPropertyTableContShortcut>(r);
}
