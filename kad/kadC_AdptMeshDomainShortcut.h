#pragma once
// A shortcut to an adaptive mesh domain.
#include "framework/fw_Field.h"
#include "kad/kadC_AdptMeshDomainIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kadC_AdptMeshDomainShortcut : public ddr_Shortcut<kadC_AdptMeshDomainIMPLSC> {
 public:
  static constexpr const char* kClassName = "kadC_AdptMeshDomainShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(616, 11); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kadC_AdptMeshDomainShortcut Ctor(const cls_ReadVisitor& r);
};
