#pragma once
// The container of geometric restrictions of a task in the model, reached through the task's shortcut.
#include "framework/fw_Field.h"
#include "kop/kopC_GeometricRestrictionContainerIMPLSC.h"
#include "kop/kopC_TaskShortcut.h"
#include "platform/model/ddr_MemberShortcut.h"

class kopC_GeometricRestrictionContainerInModelShortcut : public ddr_MemberShortcut<kopC_GeometricRestrictionContainerInModelShortcut, kopC_GeometricRestrictionContainerIMPLSC, kopC_TaskShortcut, 4> {
 public:
  static constexpr const char* kClassName = "kopC_GeometricRestrictionContainerInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(932, 79); }
  using ddr_MemberShortcut::ddr_MemberShortcut;
};
