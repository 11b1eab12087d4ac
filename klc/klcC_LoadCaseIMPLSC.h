#pragma once
// The implementation base of every shortcut to a load case.
#include "framework/fw_Field.h"
#include "klc/klcC_LoadCase.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class klcC_LoadCaseIMPLSC : public ddr_ShortcutIMPL<klcC_LoadCase> {
 public:
  static constexpr const char* kClassName = "klcC_LoadCaseIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(732, 4); }
};
