#pragma once
// The implementation base of every shortcut to a container of filters.
#include "framework/fw_Field.h"
#include "kfl/kflC_FilterContainer.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kflC_FilterContainerIMPLSC : public ddr_ShortcutIMPL<kflC_FilterContainer> {
 public:
  static constexpr const char* kClassName = "kflC_FilterContainerIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(849, 10); }
};
