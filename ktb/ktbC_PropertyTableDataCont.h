#pragma once
// The data of a property table by name ("propertyTableDatas").
#include "framework/fw_Field.h"
#include "ktb/ktbC_PropertyTableData.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<ktbC_PropertyTableData> {
  static constexpr const char* kClassName = "ktbC_PropertyTableDataCont";
  static constexpr const char* kRepositoryName = "propertyTableDatas";
  static constexpr int kVersion = ktbC_PropertyTableData::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 16); }
};

using ktbC_PropertyTableDataCont = mdl_MapString2ObjCow<ktbC_PropertyTableData>;
