#pragma once
// The columns of a data table in order ("columns").
#include "framework/fw_Field.h"
#include "ktb/ktbC_DataColumn.h"
#include "platform/model/mdl_1DArrayList.h"

template <>
struct mdl_1DArrayListTraits<ktbC_DataColumn> {
  static constexpr const char* kClassName = "ktbC_DataColumnList";
  static constexpr const char* kRepositoryName = "columns";
  static constexpr int kVersion = ktbC_DataColumn::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 73); }
};

using ktbC_DataColumnList = mdl_1DArrayList<ktbC_DataColumn>;
