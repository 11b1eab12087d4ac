#pragma once
// An adaptive mesh control by name inside its container.
#include "framework/fw_Field.h"
#include "kad/kadC_AdptMeshCtrlContInModelShortcut.h"
#include "kad/kadC_AdptMeshCtrlContShortcut.h"
#include "kad/kadC_AdptMeshCtrlIMPLSC.h"
#include "platform/model/ddr_SequenceShortcut.h"

class kadC_AdptMeshCtrlInAdptMeshCtrlContShortcut
    : public ddr_SequenceShortcut<kadC_AdptMeshCtrlInAdptMeshCtrlContShortcut, kadC_AdptMeshCtrlIMPLSC,
                                  kadC_AdptMeshCtrlContShortcut> {
 public:
  static constexpr const char* kClassName = "kadC_AdptMeshCtrlInAdptMeshCtrlContShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(616, 7); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The control of that name in the model's own container.
  explicit kadC_AdptMeshCtrlInAdptMeshCtrlContShortcut(const cow_String& name)
      : ddr_SequenceShortcut(kadC_AdptMeshCtrlContInModelShortcut(), name) {}
};
