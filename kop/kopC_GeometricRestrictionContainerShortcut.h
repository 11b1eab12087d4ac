#pragma once
// A shortcut to a container of geometric restrictions.
#include "framework/fw_Field.h"
#include "kop/kopC_GeometricRestrictionContainerIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_GeometricRestrictionContainerShortcut : public ddr_Shortcut<kopC_GeometricRestrictionContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_GeometricRestrictionContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 78); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_GeometricRestrictionContainerShortcut Ctor(const cls_ReadVisitor& r);
};
