#pragma once
// A shortcut to a constraint of any kind.
#include "framework/fw_Field.h"
#include "kco/kcoC_ConstraintIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kcoC_ConstraintShortcut : public ddr_Shortcut<kcoC_ConstraintIMPLSC> {
 public:
  static constexpr const char* kClassName = "kcoC_ConstraintShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 15); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kcoC_ConstraintShortcut Ctor(const cls_ReadVisitor& r);
};
