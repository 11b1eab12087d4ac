#pragma once
// A shortcut to a container of constraints.
#include "framework/fw_Field.h"
#include "kco/kcoC_ConstraintContainerIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kcoC_ConstraintContainerShortcut : public ddr_Shortcut<kcoC_ConstraintContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kcoC_ConstraintContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 18); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kcoC_ConstraintContainerShortcut Ctor(const cls_ReadVisitor& r);
};
