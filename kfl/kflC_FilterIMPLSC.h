#pragma once
// The implementation base of every shortcut to a filter.
#include "framework/fw_Field.h"
#include "kfl/kflC_Filter.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kflC_FilterIMPLSC : public ddr_ShortcutIMPL<kflC_Filter> {
 public:
  static constexpr const char* kClassName = "kflC_FilterIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(849, 7); }
};
