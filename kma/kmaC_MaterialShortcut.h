#pragma once
// A shortcut to a material.
#include "kma/kmaC_MaterialIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kmaC_MaterialShortcut : public ddr_Shortcut<kmaC_MaterialIMPLSC> {
 public:
  static constexpr const char* kClassName = "kmaC_MaterialShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 95); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kmaC_MaterialShortcut Ctor(const cls_ReadVisitor& r);
};
