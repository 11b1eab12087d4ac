#pragma once
// Adaptive mesh controls by name ("adaptiveMeshControls").
#include "framework/fw_Field.h"
#include "kad/kadC_AdptMeshCtrl.h"
#include "platform/model/mdl_MapString2ObjCow.h"

template <>
struct mdl_MapTraits<kadC_AdptMeshCtrl> {
  static constexpr const char* kClassName = "kadC_AdptMeshCtrlCont";
  static constexpr const char* kRepositoryName = "adaptiveMeshControls";
  static constexpr int kVersion = 302;
  static constexpr unsigned TypeId() { return fw_TypeId(616, 4); }
};

using kadC_AdptMeshCtrlCont = mdl_MapString2ObjCow<kadC_AdptMeshCtrl>;
