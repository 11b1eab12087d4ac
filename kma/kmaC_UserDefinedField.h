#pragma once
// Field variables defined by a user routine at each material point; no data of its own.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"

class kmaC_UserDefinedField : public fw_PersistentClass<kmaC_UserDefinedField, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_UserDefinedField";
  static constexpr const char* kScriptName = "UserDefinedField";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::UserDefinedField); }

  static constexpr auto Fields() {
    return std::tuple{
    };
  }

  kmaC_UserDefinedField() = default;
  explicit kmaC_UserDefinedField(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String setValuesCmd() { return "setValues"; }

 private:
};

extern template class fw_PersistentClass<kmaC_UserDefinedField, kmaC_MaterialOption>;
