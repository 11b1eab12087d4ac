#pragma once
// An amplitude computed by a user subroutine with a number of solution-dependent variables.
#include "framework/fw_PersistentClass.h"
#include "kam/kamC_Amplitude.h"

class kamC_UserAmplitude : public fw_PersistentClass<kamC_UserAmplitude, kamC_Amplitude> {
 public:
  using BaseClass = kamC_Amplitude;
  using RootClass = kamC_Amplitude;
  static constexpr const char* kClassName = "kamC_UserAmplitude";
  static constexpr const char* kScriptName = "UserAmplitude";
  static constexpr int kVersion = 424;
  static constexpr unsigned TypeId() { return fw_TypeId(580, 10); }

  // Persistent fields in write order, after the time span of every amplitude.
  static constexpr auto Fields() {
    using C = kamC_UserAmplitude;
    return std::tuple_cat(kamC_Amplitude::Fields(), std::tuple{
                                                        fw_Field{"numVariables", 1, "numVariables", &C::numVariables},
                                                    });
  }

  kamC_UserAmplitude() = default;
  explicit kamC_UserAmplitude(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  std::int32_t GetNumVariables() const { return numVariables; }
  void SetNumVariables(std::int32_t v) { numVariables = v; }

 private:
  std::int32_t numVariables = 0;
};

extern template class fw_PersistentClass<kamC_UserAmplitude, kamC_Amplitude>;
