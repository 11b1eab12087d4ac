#pragma once
// A mean-field constituent by name inside its container.
#include "kma/kmaC_FieldConstituentContainerInModelShortcut.h"
#include "kma/kmaC_FieldConstituentContainerShortcut.h"
#include "kma/kmaC_FieldConstituentIMPLSC.h"
#include "platform/model/ddr_SequenceShortcut.h"

class kmaC_FieldConstituentInFieldConstituentContainerShortcut
    : public ddr_SequenceShortcut<kmaC_FieldConstituentInFieldConstituentContainerShortcut, kmaC_FieldConstituentIMPLSC,
                                  kmaC_FieldConstituentContainerShortcut> {
 public:
  static constexpr const char* kClassName = "kmaC_FieldConstituentInFieldConstituentContainerShortcut";
  static constexpr unsigned TypeId() { return fw_TypeId(kmaC_kArchKey, 144); }
  using ddr_SequenceShortcut::ddr_SequenceShortcut;
  // The constituent of that name in the model's own container.
  explicit kmaC_FieldConstituentInFieldConstituentContainerShortcut(const cow_String& name)
      : ddr_SequenceShortcut(kmaC_FieldConstituentContainerInModelShortcut(), name) {}
};
