#pragma once
// Table collections by name ("tableCollections").
#include "framework/fw_Field.h"
#include "ktb/ktbC_TableCollection.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<ktbC_TableCollection> {
  static constexpr const char* kClassName = "ktbC_TableCollContainer";
  static constexpr const char* kRepositoryName = "tableCollections";
  static constexpr int kVersion = ktbC_TableCollection::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 12); }
};

using ktbC_TableCollContainer = mdl_MapString2ObjCow<ktbC_TableCollection>;
