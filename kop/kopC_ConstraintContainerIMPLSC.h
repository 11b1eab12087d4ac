#pragma once
// The implementation base of every shortcut to a container of constraints.
#include "framework/fw_Field.h"
#include "kop/kopC_ConstraintContainer.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kopC_ConstraintContainerIMPLSC : public ddr_ShortcutIMPL<kopC_ConstraintContainer> {
 public:
  static constexpr const char* kClassName = "kopC_ConstraintContainerIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 47); }
};
