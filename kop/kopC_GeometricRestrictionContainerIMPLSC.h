#pragma once
// The implementation base of every shortcut to a container of geometric restrictions.
#include "framework/fw_Field.h"
#include "kop/kopC_GeometricRestrictionContainer.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kopC_GeometricRestrictionContainerIMPLSC : public ddr_ShortcutIMPL<kopC_GeometricRestrictionContainer> {
 public:
  static constexpr const char* kClassName = "kopC_GeometricRestrictionContainerIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 77); }
};
