#include "kad/kadC_AdptMeshDomainShortcut.h"

#include "kad/kadC_AdptMeshDomainInAdptMeshDomContShortcut.h"

kadC_AdptMeshDomainShortcut kadC_AdptMeshDomainShortcut::Ctor(const cls_ReadVisitor& r) {
  return ddr_ShortcutCtor<kadC_AdptMeshDomainShortcut, kadC_AdptMeshDomainInAdptMeshDomContShortcut>(r);
}
