#pragma once
// Discrete fields by name ("discreteFields").
#include "framework/fw_Field.h"
#include "kfd/kfdC_DiscreteField.h"
#include "kfd/kfdC_FieldContainer.h"

template <>
struct mdl_MapTraits<kfdC_DiscreteField> {
  static constexpr const char* kClassName = "kfdC_DiscreteFieldContainer";
  static constexpr const char* kRepositoryName = "discreteFields";
  static constexpr int kVersion = 1104;
  static constexpr unsigned TypeId() { return fw_TypeId(858, 7); }
};

using kfdC_DiscreteFieldContainer = kfdC_FieldContainer<kfdC_DiscreteField>;

// The discrete field of that name; refuses (code 20) a name the container does not hold.
const kfdC_DiscreteField& kfdC_GetDiscreteField(const kfdC_DiscreteFieldContainer& fields, const cow_String& name);
