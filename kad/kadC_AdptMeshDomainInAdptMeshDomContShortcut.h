#pragma once
// An adaptive mesh domain by name inside a domain container, wherever its owner placed that.
#include "framework/fw_Field.h"
#include "kad/kadC_AdptMeshDomContShortcut.h"
#include "kad/kadC_AdptMeshDomainIMPLSC.h"
#include "platform/model/ddr_SequenceShortcut.h"

class kadC_AdptMeshDomainInAdptMeshDomContShortcut
    : public ddr_SequenceShortcut<kadC_AdptMeshDomainInAdptMeshDomContShortcut, kadC_AdptMeshDomainIMPLSC,
                                  kadC_AdptMeshDomContShortcut> {
 public:
  static constexpr const char* kClassName = "kadC_AdptMeshDomainInAdptMeshDomContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(616, 12); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
};
