#pragma once
// A shortcut to a container of materials.
#include "kma/kmaC_MaterialContainerIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kmaC_MaterialContainerShortcut : public ddr_Shortcut<kmaC_MaterialContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kmaC_MaterialContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 98); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kmaC_MaterialContainerShortcut Ctor(const cls_ReadVisitor& r);
};
