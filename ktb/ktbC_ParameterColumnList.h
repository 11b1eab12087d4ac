#pragma once
// The parameters of a parameter table in order ("parameters").
#include "framework/fw_Field.h"
#include "ktb/ktbC_ParameterColumn.h"
#include "platform/model/mdl_1DArrayList.h"

template <>
struct mdl_1DArrayListTraits<ktbC_ParameterColumn> {
  static constexpr const char* kClassName = "ktbC_ParameterColumnList";
  static constexpr const char* kRepositoryName = "parameters";
  static constexpr int kVersion = ktbC_ParameterColumn::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 74); }
};

using ktbC_ParameterColumnList = mdl_1DArrayList<ktbC_ParameterColumn>;
