#pragma once
// The model's container of load cases ("loadCases"). Load cases are reached only from the
// model's own container, so this shortcut is the load case shortcut's owner itself.
#include "framework/fw_Field.h"
#include "klc/klcC_LoadCaseContainer.h"
#include "platform/model/ddr_RepositoryShortcut.h"

class klcC_LoadCaseContainerInModelShortcut
    : public ddr_RepositoryShortcut<klcC_LoadCaseContainerInModelShortcut, ddr_ShortcutIMPL<klcC_LoadCaseContainer>> {
 public:
  static constexpr const char* kClassName = "klcC_LoadCaseContainerInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(732, 7); }
};
