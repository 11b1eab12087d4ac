#pragma once
// A shortcut to a container of constraints.
#include "framework/fw_Field.h"
#include "kop/kopC_ConstraintContainerIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_ConstraintContainerShortcut : public ddr_Shortcut<kopC_ConstraintContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_ConstraintContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 48); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_ConstraintContainerShortcut Ctor(const cls_ReadVisitor& r);
};
