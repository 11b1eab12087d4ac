#pragma once
// Property tables of a table collection by name ("propertyTables").
#include "framework/fw_Field.h"
#include "ktb/ktbC_PropertyTable.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<ktbC_PropertyTable> {
  static constexpr const char* kClassName = "ktbC_PropertyTableCont";
  static constexpr const char* kRepositoryName = "propertyTables";
  static constexpr int kVersion = ktbC_PropertyTable::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 15); }
};

using ktbC_PropertyTableCont = mdl_MapString2ObjCow<ktbC_PropertyTable>;
