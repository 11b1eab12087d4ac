#pragma once
// A shortcut to a container of adaptive mesh domains. The module offers no concrete one: the domain container is not a model extension, so only an owner outside this module can place it.
#include "framework/fw_Field.h"
#include "kad/kadC_AdptMeshDomContIMPLSC.h"
#include "platform/model/ddr_Shortcut.h"

class kadC_AdptMeshDomContShortcut : public ddr_Shortcut<kadC_AdptMeshDomContIMPLSC> {
 public:
  static constexpr const char* kClassName = "kadC_AdptMeshDomContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(616, 14); }
  using ddr_Shortcut::ddr_Shortcut;
  // Rebuilds the concrete shortcut a record names.
  static kadC_AdptMeshDomContShortcut Ctor(const cls_ReadVisitor& r);
};
