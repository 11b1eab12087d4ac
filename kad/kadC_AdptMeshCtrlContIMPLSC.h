#pragma once
// The implementation base of every shortcut to a container of adaptive mesh controls.
#include "framework/fw_Field.h"
#include "kad/kadC_AdptMeshCtrlCont.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kadC_AdptMeshCtrlContIMPLSC : public ddr_ShortcutIMPL<kadC_AdptMeshCtrlCont> {
 public:
  static constexpr const char* kClassName = "kadC_AdptMeshCtrlContIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(616, 8); }
};
