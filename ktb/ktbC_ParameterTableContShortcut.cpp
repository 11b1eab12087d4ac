#include "ktb/ktbC_ParameterTableContShortcut.h"

ktbC_ParameterTableContShortcut ktbC_ParameterTableContShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_ParameterTableContShortcut, ktbC_ParameterTableContInTableCollectionShortcut>(r);
}

ktbC_ParameterTableShortcut ktbC_ParameterTableShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_ParameterTableShortcut, ktbC_ParameterTableInParameterTableContShortcut>(r);
}
