#pragma once
// A shortcut to a design response of any kind.
#include "framework/fw_Field.h"
#include "kop/kopC_DesignResponseIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_DesignResponseShortcut : public ddr_Shortcut<kopC_DesignResponseIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_DesignResponseShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 26); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_DesignResponseShortcut Ctor(const cls_ReadVisitor& r);
};
