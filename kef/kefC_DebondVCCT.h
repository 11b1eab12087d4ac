#pragma once
// A debond by the virtual crack closure technique along a contact pair, from an initiation step.
// Whether the interaction is a contact pair and the step a general step is judged against the
// model (codes 39 and 40) by kefC_AssertInModel.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kef/kefC_Crack.h"
#include "kef/kefC_Enums.h"
#include "platform/base/cow_String.h"

class kefC_DebondVCCT : public fw_PersistentClass<kefC_DebondVCCT, kefC_Crack> {
 public:
  using BaseClass = kefC_Crack;
  using RootClass = kefC_Crack;
  static constexpr const char* kClassName = "kefC_DebondVCCT";
  static constexpr const char* kScriptName = "DebondVCCT";
  static constexpr unsigned TypeId() { return fw_TypeId(844, 14); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kefC_DebondVCCT;
    return std::tuple{
        fw_Field{"stepName", 1, "initiationStep", &C::stepName},
        fw_Field{"surfToSurfInteraction", 2, "surfToSurfInteraction", &C::surfToSurfInteraction},
        fw_Field{"debondingForceAmp", 3, "debondingForceAmplitude", &C::debondingForceAmp},
        fw_Field{"printFreqVal", 4, "printToDATFrequency", &C::printFreqVal},
        fw_Field{"suppress", 0, "suppress", &C::suppress},
    };
  }

  kefC_DebondVCCT() = default;
  explicit kefC_DebondVCCT(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_String& GetStepName() const { return stepName; }
  void SetStepName(const cow_String& v) { AssertEditable(); stepName = v; }
  const cow_String& GetSurfToSurfInteraction() const { return surfToSurfInteraction; }
  void SetSurfToSurfInteraction(const cow_String& v) { AssertEditable(); surfToSurfInteraction = v; }
  kefC_DebondAmplitudeEnm GetDebondingForceAmp() const { return debondingForceAmp; }
  void SetDebondingForceAmp(kefC_DebondAmplitudeEnm v) { AssertEditable(); debondingForceAmp = v; }
  std::int32_t GetPrintFreqVal() const { return printFreqVal; }
  void SetPrintFreqVal(std::int32_t v) { AssertEditable(); printFreqVal = v; }

 private:
  cow_String stepName;
  cow_String surfToSurfInteraction;
  kefC_DebondAmplitudeEnm debondingForceAmp = kefC_DebondAmplitudeEnm::STEP;
  std::int32_t printFreqVal = 1;
};

extern template class fw_PersistentClass<kefC_DebondVCCT, kefC_Crack>;
