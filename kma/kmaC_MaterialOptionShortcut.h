#pragma once
// A shortcut to a material option of any kind: a slot of a material or a sub-option of an option.
#include "kma/kmaC_MaterialOptionIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kmaC_MaterialOptionShortcut : public ddr_Shortcut<kmaC_MaterialOptionIMPLSC> {
 public:
  static constexpr const char* kClassName = "kmaC_MaterialOptionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 101); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kmaC_MaterialOptionShortcut Ctor(const cls_ReadVisitor& r);
};
