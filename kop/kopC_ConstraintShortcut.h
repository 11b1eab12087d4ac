#pragma once
// A shortcut to a constraint of any kind.
#include "framework/fw_Field.h"
#include "kop/kopC_ConstraintIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_ConstraintShortcut : public ddr_Shortcut<kopC_ConstraintIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_ConstraintShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 45); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_ConstraintShortcut Ctor(const cls_ReadVisitor& r);
};
