#pragma once
// An amplitude whose values a co-simulated actuator supplies; it has no members of its own.
#include "framework/fw_PersistentClass.h"
#include "kam/kamC_Amplitude.h"

class kamC_ActuatorAmplitude : public fw_PersistentClass<kamC_ActuatorAmplitude, kamC_Amplitude> {
 public:
  using BaseClass = kamC_Amplitude;
  using RootClass = kamC_Amplitude;
  static constexpr const char* kClassName = "kamC_ActuatorAmplitude";
  static constexpr const char* kScriptName = "ActuatorAmplitude";
  static constexpr int kVersion = 424;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 9); }

  // The time span of every amplitude is its only persistent field.
  static constexpr auto Fields() {
    return kamC_Amplitude::Fields();
  }

  kamC_ActuatorAmplitude() = default;
  explicit kamC_ActuatorAmplitude(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

};

extern template class fw_PersistentClass<kamC_ActuatorAmplitude, kamC_Amplitude>;
