#include "ktb/ktbC_EventSeriesContShortcut.h"

ktbC_EventSeriesContShortcut ktbC_EventSeriesContShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_EventSeriesContShortcut, ktbC_EventSeriesContInModelShortcut>(r);
}

ktbC_EventSeriesShortcut ktbC_EventSeriesShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<ktbC_EventSeriesShortcut, ktbC_EventSeriesInEventSeriesContShortcut>(r);
}
