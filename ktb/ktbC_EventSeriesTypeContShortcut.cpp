#include "ktb/ktbC_EventSeriesTypeContShortcut.h"

ktbC_EventSeriesTypeContShortcut ktbC_EventSeriesTypeContShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_EventSeriesTypeContShortcut, ktbC_EventSeriesTypeContInModelShortcut>(r);
}

ktbC_EventSeriesTypeShortcut ktbC_EventSeriesTypeShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_EventSeriesTypeShortcut, ktbC_EventSeriesTypeInEventSeriesTypeContShortcut>(r);
}
