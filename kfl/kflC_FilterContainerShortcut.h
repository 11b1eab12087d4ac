#pragma once
// A shortcut to a container of filters.
#include "framework/fw_Field.h"
#include "kfl/kflC_FilterContainerIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kflC_FilterContainerShortcut : public ddr_Shortcut<kflC_FilterContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kflC_FilterContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(849, 11); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kflC_FilterContainerShortcut Ctor(const cls_ReadVisitor& r);
};
