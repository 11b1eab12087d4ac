#pragma once
// Adaptive mesh domains by name ("adaptiveMeshDomains").
#include "framework/fw_Field.h"
#include "kad/kadC_AdptMeshDomain.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kadC_AdptMeshDomain> {
  static constexpr const char* kClassName = "kadC_AdptMeshDomCont";
  static constexpr const char* kRepositoryName = "adaptiveMeshDomains";
  static constexpr int kVersion = 302;
  static constexpr unsigned TypeId() { return fw_TypeId(616, 3); }
};

using kadC_AdptMeshDomCont = mdl_MapString2ObjCow<kadC_AdptMeshDomain>;
