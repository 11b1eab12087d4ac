#pragma once
// A design response by name inside the container of its task.
#include "framework/fw_Field.h"
#include "kop/kopC_DesignResponseContainerShortcut.h"
#include "kop/kopC_DesignResponseIMPLSC.h"
#include "kop/kopC_DesignResponseContainerInModelShortcut.h"
#include "kop/kopC_TaskInTaskContainerShortcut.h"
#include "kop/kopC_TaskShortcut.h"
#include "platform/model/ddr_SequenceShortcut.h"

class kopC_DesignResponseInDesignResponseContainerShortcut : public ddr_SequenceShortcut<kopC_DesignResponseInDesignResponseContainerShortcut, kopC_DesignResponseIMPLSC, kopC_DesignResponseContainerShortcut> {
 public:
  static constexpr const char* kClassName = "kopC_DesignResponseInDesignResponseContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 27); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The design response of that name in the named task of the model's container.
  kopC_DesignResponseInDesignResponseContainerShortcut(const cow_String& task, const cow_String& name)
      : ddr_SequenceShortcut(kopC_DesignResponseContainerInModelShortcut(kopC_TaskShortcut(kopC_TaskInTaskContainerShortcut(task))), name) {}
};
