#pragma once
// The implementation base of every shortcut to a design response of a task.
#include "framework/fw_Field.h"
#include "kop/kopC_DesignResponse.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kopC_DesignResponseIMPLSC : public ddr_ShortcutIMPL<kopC_DesignResponse> {
 public:
  static constexpr const char* kClassName = "kopC_DesignResponseIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 25); }
};
