#pragma once
// The implementation base of every shortcut to an adaptive mesh control.
#include "framework/fw_Field.h"
#include "kad/kadC_AdptMeshCtrl.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kadC_AdptMeshCtrlIMPLSC : public ddr_ShortcutIMPL<kadC_AdptMeshCtrl> {
 public:
  static constexpr const char* kClassName = "kadC_AdptMeshCtrlIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(616, 5); }
};
