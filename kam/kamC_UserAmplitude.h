#pragma once
// An amplitude computed by a user subroutine with a number of solution-dependent variables.
#include "kam/kamC_Amplitude.h"

class kamC_UserAmplitude : public kamC_Amplitude {
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
  void DBWrite(const cls_WriteVisitor& w) const override;
  kamC_UserAmplitude* Copy() const override;
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  bool operator==(const kamC_UserAmplitude& o) const;
  bool operator!=(const kamC_UserAmplitude& o) const { return !(*this == o); }

  std::int32_t GetNumVariables() const { return numVariables; }
  void SetNumVariables(std::int32_t v) { numVariables = v; }

 protected:
  bool SameAs(const kamC_Amplitude& o) const override;

 private:
  std::int32_t numVariables = 0;
};
