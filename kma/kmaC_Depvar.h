#pragma once
// Solution-dependent state variables of a user material: their number and the one that deletes
// an element.
#include "framework/fw_PersistentClass.h"
#include "kma/kmaC_MaterialOption.h"

class kmaC_Depvar : public fw_PersistentClass<kmaC_Depvar, kmaC_MaterialOption> {
 public:
  using BaseClass = kmaC_MaterialOption;
  using RootClass = kmaC_MaterialOption;
  static constexpr const char* kClassName = "kmaC_Depvar";
  static constexpr const char* kScriptName = "Depvar";
  static constexpr int kVersion = 203;
  static constexpr unsigned TypeId() { return kmaC_OptionTypeId(kmaC_OptionClass::Depvar); }

  static constexpr auto Fields() {
    using C = kmaC_Depvar;
    return std::tuple{
        fw_Field{"n", 0, "n", &C::n},
        fw_Field{"deleteVar", 1, "deleteVar", &C::deleteVar},
    };
  }

  kmaC_Depvar() = default;
  explicit kmaC_Depvar(const cls_ReadVisitor& r);
  void AssertValid() const override;
  unsigned DynTypeId() const override { return TypeId(); }

  static cow_String constructorCmd() { return kScriptName; }
  static cow_String nCmd() { return "n"; }
  static cow_String deleteVarCmd() { return "deleteVar"; }
  static cow_String setValuesCmd() { return "setValues"; }

  std::int32_t GetN() const { return n; }
  void SetN(std::int32_t v) { n = v; }
  std::int32_t GetDeleteVar() const { return deleteVar; }
  void SetDeleteVar(std::int32_t v) { deleteVar = v; }

 private:
  std::int32_t n = 0;
  std::int32_t deleteVar = 0;
};

extern template class fw_PersistentClass<kmaC_Depvar, kmaC_MaterialOption>;
