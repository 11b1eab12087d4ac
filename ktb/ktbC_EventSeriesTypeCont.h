#pragma once
// Event series types by name ("eventSeriesTypes").
#include "framework/fw_Field.h"
#include "ktb/ktbC_EventSeriesType.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<ktbC_EventSeriesType> {
  static constexpr const char* kClassName = "ktbC_EventSeriesTypeCont";
  static constexpr const char* kRepositoryName = "eventSeriesTypes";
  static constexpr int kVersion = ktbC_EventSeriesType::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 17); }
};

using ktbC_EventSeriesTypeCont = mdl_MapString2ObjCow<ktbC_EventSeriesType>;
