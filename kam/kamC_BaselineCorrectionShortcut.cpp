#include "kam/kamC_BaselineCorrectionShortcut.h"

#include "kam/kamC_BaselineCorrectionInAmplitudeShortcut.h"
#include "kam/kamC_BaselineCorrectionInEquallySpacedShortcut.h"
#include "kam/kamC_BaselineCorrectionInTabularShortcut.h"

kamC_BaselineCorrectionShortcut kamC_BaselineCorrectionShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kamC_BaselineCorrectionShortcut, kamC_BaselineCorrectionInAmplitudeShortcut,
                          kamC_BaselineCorrectionInTabularShortcut, kamC_BaselineCorrectionInEquallySpacedShortcut>(r);
}
