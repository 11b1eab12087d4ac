#pragma once
// The implementation base of every shortcut to an adaptive mesh domain.
#include "framework/fw_Field.h"
#include "kad/kadC_AdptMeshDomain.h"
#include "platform/model/ddr_ShortcutIMPL.h"

class kadC_AdptMeshDomainIMPLSC : public ddr_ShortcutIMPL<kadC_AdptMeshDomain> {
 public:
  static constexpr const char* kClassName = "kadC_AdptMeshDomainIMPLSC";
  static constexpr unsigned TypeId() { return fw_TypeId(616, 10); }
};
