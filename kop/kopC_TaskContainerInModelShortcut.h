#pragma once
// The model's container of optimization tasks ("optimizationTasks").
#include "framework/fw_Field.h"
#include "kop/kopC_TaskContainerIMPLSC.h"
#include "platform/model/ddr_RepositoryShortcut.h"

class kopC_TaskContainerInModelShortcut
    : public ddr_RepositoryShortcut<kopC_TaskContainerInModelShortcut, kopC_TaskContainerIMPLSC> {
 public:
  static constexpr const char* kClassName = "kopC_TaskContainerInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 15); }
};
