#pragma once
// A shortcut to a mean-field constituent.
#include "kma/kmaC_FieldConstituentIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kmaC_FieldConstituentShortcut : public ddr_Shortcut<kmaC_FieldConstituentIMPLSC> {
 public:
  static constexpr const char* kClassName = "kmaC_FieldConstituentShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 143); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kmaC_FieldConstituentShortcut Ctor(const cls_ReadVisitor& r);
};
