#pragma once
// The implementation base of every shortcut to a material.
#include "kma/kmaC_Material.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kmaC_MaterialIMPLSC : public ddr_ShortcutIMPL<kmaC_Material> {
 public:
  static constexpr const char* kClassName = "kmaC_MaterialIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 94); }
};
