#pragma once
// The implementation base of every shortcut to a container of constraints.
#include "framework/fw_Field.h"
#include "kco/kcoC_ConstraintContainer.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kcoC_ConstraintContainerIMPLSC : public ddr_ShortcutIMPL<kcoC_ConstraintContainer> {
 public:
  static constexpr const char* kClassName = "kcoC_ConstraintContainerIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(720, 17); }
};
