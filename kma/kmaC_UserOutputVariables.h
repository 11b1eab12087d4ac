#pragma once
// The number of output variables a user routine defines.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"

class kmaC_UserOutputVariables : public fw_PersistentClass<kmaC_UserOutputVariables, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_UserOutputVariables";
  static constexpr const char* kScriptName = "UserOutputVariables";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::UserOutputVariables); }

  static constexpr auto Fields() {
    using C = kmaC_UserOutputVariables;
    return std::tuple{
        fw_Field{"n", 0, "n", &C::n},
    };
  }

  kmaC_UserOutputVariables() = default;
  explicit kmaC_UserOutputVariables(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String nCmd() { return "n"; }
  static cow_String setValuesCmd() { return "setValues"; }

  std::int32_t GetN() const { return n; }
  void SetN(std::int32_t v) { n = v; }

 private:
  std::int32_t n = 0;
};

extern template class fw_PersistentClass<kmaC_UserOutputVariables, kmaC_MaterialOption>;
