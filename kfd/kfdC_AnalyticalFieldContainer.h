#pragma once
// Analytical fields of every kind by name ("analyticalFields").
#include "framework/fw_Field.h"
#include "kfd/kfdC_AnalyticalField.h"
#include "kfd/kfdC_FieldContainer.h"

template <>
struct mdl_MapTraits<kfdC_AnalyticalField> {
  static constexpr const char* kClassName = "kfdC_AnalyticalFieldContainer";
  static constexpr const char* kRepositoryName = "analyticalFields";
  static constexpr int kVersion = 810;
  static constexpr unsigned TypeId() { return fw_TypeId(858, 5); }
};

using kfdC_AnalyticalFieldContainer = kfdC_FieldContainer<kfdC_AnalyticalField>;
