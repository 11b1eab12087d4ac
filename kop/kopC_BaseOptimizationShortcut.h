#pragma once
// A shortcut to an optimization task object; the concrete shortcuts under it are registered readers.
#include "framework/fw_Field.h"
#include "kop/kopC_BaseOptimizationIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_BaseOptimizationShortcut : public ddr_Shortcut<kopC_BaseOptimizationIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_BaseOptimizationShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 11); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_BaseOptimizationShortcut Ctor(const cls_ReadVisitor& r);
};
