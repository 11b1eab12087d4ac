#pragma once
// An imperfection from the results of an earlier analysis: a step and increment, or mode shapes
// with scale factors.
#include <cstdint>

#include "framework/fw_PersistentClass.h"
#include "kef/kefC_Imperfection.h"
#include "kef/kefC_Enums.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/model/rgnC_Region.h"

class kefC_FileImperfection : public fw_PersistentClass<kefC_FileImperfection, kefC_Imperfection> {
 public:
  using BaseClass = kefC_Imperfection;
  using RootClass = kefC_Imperfection;
  static constexpr const char* kClassName = "kefC_FileImperfection";
  static constexpr const char* kScriptName = "FileImperfection";
  static constexpr unsigned TypeId() { return fw_TypeId(844, 23); }

  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kefC_FileImperfection;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"resultsFile", 1, "resultsFile", &C::resultsFile},
        fw_Field{"step", 2, "step", &C::step},
        fw_Field{"increment", 3, "increment", &C::increment},
        fw_Field{"imperfectionRegion", 4, "imperfectionRegion", &C::imperfectionRegion},
        fw_Field{"modeNumbers", 5, "modeNumbers", &C::modeNumbers},
        fw_Field{"scalingFactors", 6, "scalingFactors", &C::scalingFactors},
    };
  }

  kefC_FileImperfection() = default;
  explicit kefC_FileImperfection(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_String& GetResultsFile() const { return resultsFile; }
  void SetResultsFile(const cow_String& v) { resultsFile = v; }
  std::int32_t GetStep() const { return step; }
  void SetStep(std::int32_t v) { step = v; }
  std::int32_t GetIncrement() const { return increment; }
  void SetIncrement(std::int32_t v) { increment = v; }
  const rgnC_Region& GetImperfectionRegion() const { return imperfectionRegion; }
  void SetImperfectionRegion(const rgnC_Region& v) { imperfectionRegion = v; }
  const cow_List<std::int32_t>& GetModeNumbers() const { return modeNumbers; }
  void SetModeNumbers(const cow_List<std::int32_t>& v) { modeNumbers = v; }
  const cow_List<double>& GetScalingFactors() const { return scalingFactors; }
  void SetScalingFactors(const cow_List<double>& v) { scalingFactors = v; }

 private:
  cow_String resultsFile;
  std::int32_t step = 1;
  std::int32_t increment = 1;
  rgnC_Region imperfectionRegion;  // empty: the whole model
  cow_List<std::int32_t> modeNumbers;
  cow_List<double> scalingFactors;
};

extern template class fw_PersistentClass<kefC_FileImperfection, kefC_Imperfection>;
