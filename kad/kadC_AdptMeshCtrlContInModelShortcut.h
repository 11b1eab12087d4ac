#pragma once
// The model's container of adaptive mesh controls ("adaptiveMeshControls").
#include "framework/fw_Field.h"
#include "kad/kadC_AdptMeshCtrlContIMPLSC.h"
#include "platform/model/ddr_RepositoryShortcut.h"

class kadC_AdptMeshCtrlContInModelShortcut
    : public ddr_RepositoryShortcut<kadC_AdptMeshCtrlContInModelShortcut, kadC_AdptMeshCtrlContIMPLSC> {
 public:
  static constexpr const char* kClassName = "kadC_AdptMeshCtrlContInModelShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(616, 15); }
};
