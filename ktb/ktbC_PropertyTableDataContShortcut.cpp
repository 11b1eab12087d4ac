#include "ktb/ktbC_PropertyTableDataContShortcut.h"

ktbC_PropertyTableDataContShortcut ktbC_PropertyTableDataContShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_PropertyTableDataContShortcut, ktbC_PropertyTableDataContInPropertyTableShortcut>(r);
}

ktbC_PropertyTableDataShortcut ktbC_PropertyTableDataShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_PropertyTableDataShortcut, ktbC_PropertyTableDataInPropertyTableDataContShortcut>(r);
}
