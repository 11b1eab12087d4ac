#pragma once
// The number of output variables a user routine defines.
#include "kma/kmaC_MaterialOption.h"

class kmaC_UserOutputVariables : public kmaC_MaterialOption {
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
  kmaC_UserOutputVariables* Copy() const override;
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  void DBWrite(const cls_WriteVisitor& w) const override;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  bool operator==(const kmaC_UserOutputVariables& o) const;
  bool operator!=(const kmaC_UserOutputVariables& o) const { return !(*this == o); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String nCmd() { return "n"; }
  static cow_String setValuesCmd() { return "setValues"; }

  std::int32_t GetN() const { return n; }
  void SetN(std::int32_t v) { n = v; }

 protected:
  bool SameAs(const kmaC_MaterialOption& o) const override;

 private:
  std::int32_t n = 0;
};
