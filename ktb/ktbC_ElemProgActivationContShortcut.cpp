#include "ktb/ktbC_ElemProgActivationContShortcut.h"

ktbC_ElemProgActivationContShortcut ktbC_ElemProgActivationContShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_ElemProgActivationContShortcut, ktbC_ElemProgActivationContInModelShortcut>(r);
}

ktbC_ElemProgressiveActivationShortcut ktbC_ElemProgressiveActivationShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_ElemProgressiveActivationShortcut, ktbC_ElemProgressiveActivationInElemProgActivationContShortcut>(r);
}
