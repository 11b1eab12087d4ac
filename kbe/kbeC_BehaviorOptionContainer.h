#pragma once
// Behavior options of any kind kept under integer keys, for owners that address their options
// by number rather than by position.
#include "framework/fw_Field.h"
#include "kbe/kbeC_ConnectorBehaviorOption.h"
#include "platform/model/mdl_MapOfCowsRepository.h"

template <>
struct mdl_MapOfCowsTraits<kbeC_ConnectorBehaviorOption> {
  static constexpr const char* kClassName = "kbeC_BehaviorOptionContainer";
  static constexpr const char* kRepositoryName = "behaviorOptions";
  static constexpr int kVersion = kbeC_ConnectorBehaviorOption::kVersion;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 16); }
};

using kbeC_BehaviorOptionContainer = mdl_MapOfCowsRepository<kbeC_ConnectorBehaviorOption>;
