#pragma once
// The implementation base of every shortcut to a container of materials.
#include "kma/kmaC_MaterialContainer.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kmaC_MaterialContainerIMPLSC : public ddr_ShortcutIMPL<kmaC_MaterialContainer> {
 public:
  static constexpr const char* kClassName = "kmaC_MaterialContainerIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 97); }
};
