#pragma once
// Constraints of every kind by name ("constraints").
#include "framework/fw_Field.h"
#include "kco/kcoC_Constraint.h"
#include "platform/model/mdl_MapString2ObjCow.h"

// The refusal of a constraint name the container does not hold, by the shortcuts' rule: an empty
// container first, then a missing constraint, each with the module's message.
[[noreturn]] void kcoC_RefuseMissingConstraint(std::size_t count);

template <>
struct mdl_MapTraits<kcoC_Constraint> {
  static constexpr const char* kClassName = "kcoC_ConstraintContainer";
  static constexpr const char* kRepositoryName = "constraints";
  static constexpr int kVersion = kcoC_Constraint::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(720, 13); }
  static void RefuseMissing(std::size_t count) { kcoC_RefuseMissingConstraint(count); }
};

using kcoC_ConstraintContainer = mdl_MapString2ObjCow<kcoC_Constraint>;
