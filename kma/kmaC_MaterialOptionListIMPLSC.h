#pragma once
// The implementation base of every shortcut to a list member of an option.
#include "kma/kmaC_MaterialOptionList.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kmaC_MaterialOptionListIMPLSC : public ddr_ShortcutIMPL<kmaC_MaterialOptionList> {
 public:
  static constexpr const char* kClassName = "kmaC_MaterialOptionListIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 105); }
};
