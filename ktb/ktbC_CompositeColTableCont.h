#pragma once
// Data tables of a table collection by name ("dataTables").
#include "framework/fw_Field.h"
#include "ktb/ktbC_CompositeColTable.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<ktbC_CompositeColTable> {
  static constexpr const char* kClassName = "ktbC_CompositeColTableCont";
  static constexpr const char* kRepositoryName = "dataTables";
  static constexpr int kVersion = ktbC_CompositeColTable::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 13); }
};

using ktbC_CompositeColTableCont = mdl_MapString2ObjCow<ktbC_CompositeColTable>;
