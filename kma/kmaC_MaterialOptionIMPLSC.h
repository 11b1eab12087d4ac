#pragma once
// The implementation base of every shortcut to a material option.
#include "kma/kmaC_MaterialOption.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kmaC_MaterialOptionIMPLSC : public ddr_ShortcutIMPL<kmaC_MaterialOption> {
 public:
  static constexpr const char* kClassName = "kmaC_MaterialOptionIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 100); }
};
