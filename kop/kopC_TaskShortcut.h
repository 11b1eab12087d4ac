#pragma once
// A shortcut to a task of any kind.
#include "framework/fw_Field.h"
#include "kop/kopC_TaskIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kopC_TaskShortcut : public ddr_Shortcut<kopC_TaskIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_TaskShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 6); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kopC_TaskShortcut Ctor(const cls_ReadVisitor& r);
};
