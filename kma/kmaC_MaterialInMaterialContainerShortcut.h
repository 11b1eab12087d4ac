#pragma once
// A material by name inside its container.
#include "kma/kmaC_MaterialContainerInModelShortcut.h"
#include "kma/kmaC_MaterialContainerShortcut.h"
#include "kma/kmaC_MaterialIMPLSC.h"
#include "platform/model/ddr_SequenceShortcut.h"

class kmaC_MaterialInMaterialContainerShortcut
    : public ddr_SequenceShortcut<kmaC_MaterialInMaterialContainerShortcut, kmaC_MaterialIMPLSC,
                                  kmaC_MaterialContainerShortcut> {
 public:
  static constexpr const char* kClassName = "kmaC_MaterialInMaterialContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 96); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The material of that name in the model's own container.
  explicit kmaC_MaterialInMaterialContainerShortcut(const cow_String& name)
      : ddr_SequenceShortcut(kmaC_MaterialContainerInModelShortcut(), name) {}
};
