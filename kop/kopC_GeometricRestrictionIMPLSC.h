#pragma once
// The implementation base of every shortcut to a geometric restriction of a task.
#include "framework/fw_Field.h"
#include "kop/kopC_GeometricRestriction.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kopC_GeometricRestrictionIMPLSC : public ddr_ShortcutIMPL<kopC_GeometricRestriction> {
 public:
  static constexpr const char* kClassName = "kopC_GeometricRestrictionIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 74); }
};
