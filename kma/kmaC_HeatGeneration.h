#pragma once
// Heat generation by a user routine; it has no data of its own.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"

class kmaC_HeatGeneration : public fw_PersistentClass<kmaC_HeatGeneration, kmaC_MaterialOption> {
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
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String setValuesCmd() { return "setValues"; }

 private:
};

extern template class fw_PersistentClass<kmaC_HeatGeneration, kmaC_MaterialOption>;
