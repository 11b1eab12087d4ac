#include "kad/kadC_AdptMeshDomContShortcut.h"

// No concrete shortcut of this module places a domain container, so every record is refused.
kadC_AdptMeshDomContShortcut kadC_AdptMeshDomContShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kadC_AdptMeshDomContShortcut>(r);
}
