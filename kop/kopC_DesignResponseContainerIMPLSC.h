#pragma once
// The implementation base of every shortcut to a container of design responses.
#include "framework/fw_Field.h"
#include "kop/kopC_DesignResponseContainer.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kopC_DesignResponseContainerIMPLSC : public ddr_ShortcutIMPL<kopC_DesignResponseContainer> {
 public:
  static constexpr const char* kClassName = "kopC_DesignResponseContainerIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 28); }
};
