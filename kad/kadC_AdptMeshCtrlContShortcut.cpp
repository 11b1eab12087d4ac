#include "kad/kadC_AdptMeshCtrlContShortcut.h"

#include "kad/kadC_AdptMeshCtrlContInModelShortcut.h"

kadC_AdptMeshCtrlContShortcut kadC_AdptMeshCtrlContShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kadC_AdptMeshCtrlContShortcut, kadC_AdptMeshCtrlContInModelShortcut>(r);
}
