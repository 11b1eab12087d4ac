#pragma once
// A geometric restriction by name inside the container of its task.
#include "framework/fw_Field.h"
#include "kop/kopC_GeometricRestrictionContainerShortcut.h"
#include "kop/kopC_GeometricRestrictionIMPLSC.h"
#include "kop/kopC_GeometricRestrictionContainerInModelShortcut.h"
#include "kop/kopC_TaskInTaskContainerShortcut.h"
#include "kop/kopC_TaskShortcut.h"
#include "platform/model/ddr_SequenceShortcut.h"

class kopC_GeometricRestrictionInGeometricRestrictionContainerShortcut : public ddr_SequenceShortcut<kopC_GeometricRestrictionInGeometricRestrictionContainerShortcut, kopC_GeometricRestrictionIMPLSC, kopC_GeometricRestrictionContainerShortcut> {
 public:
  static constexpr const char* kClassName = "kopC_GeometricRestrictionInGeometricRestrictionContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 76); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The geometric restriction of that name in the named task of the model's container.
  kopC_GeometricRestrictionInGeometricRestrictionContainerShortcut(const cow_String& task, const cow_String& name)
      : ddr_SequenceShortcut(kopC_GeometricRestrictionContainerInModelShortcut(kopC_TaskShortcut(kopC_TaskInTaskContainerShortcut(task))), name) {}
};
