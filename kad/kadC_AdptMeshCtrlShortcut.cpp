#include "kad/kadC_AdptMeshCtrlShortcut.h"

#include "kad/kadC_AdptMeshCtrlInAdptMeshCtrlContShortcut.h"

kadC_AdptMeshCtrlShortcut kadC_AdptMeshCtrlShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kadC_AdptMeshCtrlShortcut, kadC_AdptMeshCtrlInAdptMeshCtrlContShortcut>(r);
}
