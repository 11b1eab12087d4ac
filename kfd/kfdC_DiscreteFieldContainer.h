#pragma once
// Discrete fields by name ("discreteFields").
#include "framework/fw_Field.h"
#include "kfd/kfdC_DiscreteField.h"
#include "kfd/kfdC_FieldContainer.h"

// The refusal of a name the container does not hold (code 20), shared by every lookup by name.
[[noreturn]] void kfdC_RefuseMissingDiscreteField(std::size_t count);

template <>
struct mdl_MapTraits<kfdC_DiscreteField> {
  static constexpr const char* kClassName = "kfdC_DiscreteFieldContainer";
  static constexpr const char* kRepositoryName = "discreteFields";
  static constexpr int kVersion = 1104;
  static constexpr unsigned TypeId() { return fw_TypeId(858, 7); }
  static void RefuseMissing(std::size_t count) { kfdC_RefuseMissingDiscreteField(count); }
};

using kfdC_DiscreteFieldContainer = kfdC_FieldContainer<kfdC_DiscreteField>;

// The discrete field of that name; refuses (code 20) a name the container does not hold.
const kfdC_DiscreteField& kfdC_GetDiscreteField(const kfdC_DiscreteFieldContainer& fields, const cow_String& name);
