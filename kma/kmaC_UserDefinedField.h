#pragma once
// Field variables defined by a user routine at each material point; no data of its own.
#include "kma/kmaC_MaterialOption.h"

class kmaC_UserDefinedField : public kmaC_MaterialOption {
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
  kmaC_UserDefinedField* Copy() const override;
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  void DBWrite(const cls_WriteVisitor& w) const override;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  bool operator==(const kmaC_UserDefinedField& o) const;
  bool operator!=(const kmaC_UserDefinedField& o) const { return !(*this == o); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String setValuesCmd() { return "setValues"; }


 protected:
  bool SameAs(const kmaC_MaterialOption& o) const override;

 private:
};
