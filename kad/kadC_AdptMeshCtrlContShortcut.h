#pragma once
// A shortcut to a container of adaptive mesh controls.
#include "framework/fw_Field.h"
#include "kad/kadC_AdptMeshCtrlContIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kadC_AdptMeshCtrlContShortcut : public ddr_Shortcut<kadC_AdptMeshCtrlContIMPLSC> {
 public:
  static constexpr const char* kClassName = "kadC_AdptMeshCtrlContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(616, 9); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kadC_AdptMeshCtrlContShortcut Ctor(const cls_ReadVisitor& r);
};
