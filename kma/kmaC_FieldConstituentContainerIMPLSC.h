#pragma once
// The implementation base of every shortcut to a container of mean-field constituents.
#include "kma/kmaC_FieldConstituentContainer.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kmaC_FieldConstituentContainerIMPLSC : public ddr_ShortcutIMPL<kmaC_FieldConstituentContainer> {
 public:
  static constexpr const char* kClassName = "kmaC_FieldConstituentContainerIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 145); }
};
