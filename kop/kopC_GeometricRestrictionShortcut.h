#pragma once
// A shortcut to a geometric restriction of any kind.
#include "framework/fw_Field.h"
#include "kop/kopC_GeometricRestrictionIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_GeometricRestrictionShortcut : public ddr_Shortcut<kopC_GeometricRestrictionIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_GeometricRestrictionShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 75); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_GeometricRestrictionShortcut Ctor(const cls_ReadVisitor& r);
};
