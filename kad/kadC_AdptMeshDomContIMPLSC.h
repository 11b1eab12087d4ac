#pragma once
// The implementation base of every shortcut to a container of adaptive mesh domains.
#include "framework/fw_Field.h"
#include "kad/kadC_AdptMeshDomCont.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kadC_AdptMeshDomContIMPLSC : public ddr_ShortcutIMPL<kadC_AdptMeshDomCont> {
 public:
  static constexpr const char* kClassName = "kadC_AdptMeshDomContIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(616, 13); }
};
