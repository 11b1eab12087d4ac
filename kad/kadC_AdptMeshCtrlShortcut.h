#pragma once
// A shortcut to an adaptive mesh control.
#include "framework/fw_Field.h"
#include "kad/kadC_AdptMeshCtrlIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kadC_AdptMeshCtrlShortcut : public ddr_Shortcut<kadC_AdptMeshCtrlIMPLSC> {
 public:
  static constexpr const char* kClassName = "kadC_AdptMeshCtrlShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(616, 6); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kadC_AdptMeshCtrlShortcut Ctor(const cls_ReadVisitor& r);
};
