#pragma once
// A shortcut to a load case.
#include "framework/fw_Field.h"
#include "klc/klcC_LoadCaseIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class klcC_LoadCaseShortcut : public ddr_Shortcut<klcC_LoadCaseIMPLSC> {
 public:
  static constexpr const char* kClassName = "klcC_LoadCaseShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(732, 5); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static klcC_LoadCaseShortcut Ctor(const cls_ReadVisitor& r);
};
