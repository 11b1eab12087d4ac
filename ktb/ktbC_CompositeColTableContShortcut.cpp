#include "ktb/ktbC_CompositeColTableContShortcut.h"

ktbC_CompositeColTableContShortcut ktbC_CompositeColTableContShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_CompositeColTableContShortcut, ktbC_CompositeColTableContInTableCollectionShortcut>(r);
}

ktbC_CompositeColTableShortcut ktbC_CompositeColTableShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_CompositeColTableShortcut, ktbC_CompositeColTableInCompositeColTableContShortcut>(r);
}
