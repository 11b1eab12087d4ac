#pragma once
// The implementation base of every shortcut to a mean-field constituent.
#include "kma/kmaC_FieldConstituent.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kmaC_FieldConstituentIMPLSC : public ddr_ShortcutIMPL<kmaC_FieldConstituent> {
 public:
  static constexpr const char* kClassName = "kmaC_FieldConstituentIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 142); }
};
