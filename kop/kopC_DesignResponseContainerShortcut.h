#pragma once
// A shortcut to a container of design responses.
#include "framework/fw_Field.h"
#include "kop/kopC_DesignResponseContainerIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_DesignResponseContainerShortcut : public ddr_Shortcut<kopC_DesignResponseContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_DesignResponseContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 29); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_DesignResponseContainerShortcut Ctor(const cls_ReadVisitor& r);
};
