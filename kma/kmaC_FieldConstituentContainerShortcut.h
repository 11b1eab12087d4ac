#pragma once
// A shortcut to a container of mean-field constituents.
#include "kma/kmaC_FieldConstituentContainerIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kmaC_FieldConstituentContainerShortcut : public ddr_Shortcut<kmaC_FieldConstituentContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kmaC_FieldConstituentContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 146); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kmaC_FieldConstituentContainerShortcut Ctor(const cls_ReadVisitor& r);
};
