#pragma once
// A shortcut to a filter of any kind.
#include "framework/fw_Field.h"
#include "kfl/kflC_FilterIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kflC_FilterShortcut : public ddr_Shortcut<kflC_FilterIMPLSC> {
 public:
  static constexpr const char* kClassName = "kflC_FilterShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(849, 8); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kflC_FilterShortcut Ctor(const cls_ReadVisitor& r);
};
