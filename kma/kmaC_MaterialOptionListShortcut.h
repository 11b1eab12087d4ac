#pragma once
// A shortcut to a list member of an option.
#include "kma/kmaC_MaterialOptionListIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kmaC_MaterialOptionListShortcut : public ddr_Shortcut<kmaC_MaterialOptionListIMPLSC> {
 public:
  static constexpr const char* kClassName = "kmaC_MaterialOptionListShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 106); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kmaC_MaterialOptionListShortcut Ctor(const cls_ReadVisitor& r);
};
