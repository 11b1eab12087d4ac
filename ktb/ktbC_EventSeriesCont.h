#pragma once
// Event series by name ("eventSeriesDatas").
#include "framework/fw_Field.h"
#include "ktb/ktbC_EventSeries.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<ktbC_EventSeries> {
  static constexpr const char* kClassName = "ktbC_EventSeriesCont";
  static constexpr const char* kRepositoryName = "eventSeriesDatas";
  static constexpr int kVersion = ktbC_EventSeries::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(772, 18); }
};

using ktbC_EventSeriesCont = mdl_MapString2ObjCow<ktbC_EventSeries>;
