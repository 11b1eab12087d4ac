#pragma once
// Parameter tables of a table collection by name ("parameterTables").
#include "framework/fw_Field.h"
#include "ktb/ktbC_ParameterTable.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<ktbC_ParameterTable> {
  static constexpr const char* kClassName = "ktbC_ParameterTableCont";
  static constexpr const char* kRepositoryName = "parameterTables";
  static constexpr int kVersion = ktbC_ParameterTable::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 14); }
};

using ktbC_ParameterTableCont = mdl_MapString2ObjCow<ktbC_ParameterTable>;
