#pragma once
// Heat generation by a user routine; it has no data of its own.
#include "kma/kmaC_MaterialOption.h"

class kmaC_HeatGeneration : public kmaC_MaterialOption {
 public:

  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_HeatGeneration";
  static constexpr const char* kScriptName = "HeatGeneration";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::HeatGeneration); }

  static constexpr auto Fields() {
    return std::tuple{
    };
  }

  kmaC_HeatGeneration() = default;
  explicit kmaC_HeatGeneration(const cls_ReadVisitor& r);
  kmaC_HeatGeneration* Copy() const override;
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }
  void DBWrite(const cls_WriteVisitor& w) const override;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  bool operator==(const kmaC_HeatGeneration& o) const;
  bool operator!=(const kmaC_HeatGeneration& o) const { return !(*this == o); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String setValuesCmd() { return "setValues"; }


 protected:
  bool SameAs(const kmaC_MaterialOption& o) const override;

 private:
};
