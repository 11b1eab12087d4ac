#pragma once
// The request of a combined-term design response: other design responses combined by a method.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_Request.h"
#include "kop/kopC_Enums.h"
#include "platform/base/cow_String.h"
#include "platform/base/cow_List.h"

class kopC_CombinedTermRequest : public fw_PersistentClass<kopC_CombinedTermRequest, kopC_Request> {
 public:
  using BaseClass = kopC_Request;
  using RootClass = kopC_Request;
  static constexpr const char* kClassName = "kopC_CombinedTermRequest";
  static constexpr const char* kScriptName = "CombinedTermRequest";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 22); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_CombinedTermRequest;
    return std::tuple{
        fw_Field{"terms", 0, "terms", &C::terms},
        fw_Field{"weights", 1, "weights", &C::weights},
        fw_Field{"method", 2, "method", &C::method},
        fw_Field{"useVariableTerms", 3, "useVariableTerms", &C::useVariableTerms},
        fw_Field{"filterMaxRadius", 4, "filterMaxRadius", &C::filterMaxRadius},
        fw_Field{"filterExponent", 5, "filterExponent", &C::filterExponent},
        fw_Field{"filterRadiusReduction", 6, "filterRadiusReduction", &C::filterRadiusReduction},
        fw_Field{"lowCutOff", 7, "lowCutOff", &C::lowCutOff},
        fw_Field{"highCutOff", 8, "highCutOff", &C::highCutOff},
    };
  }

  kopC_CombinedTermRequest() = default;
  explicit kopC_CombinedTermRequest(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }

  const cow_List<cow_String>& GetTerms() const { return terms; }
  void SetTerms(const cow_List<cow_String>& v) { terms = v; }
  const cow_List<double>& GetWeights() const { return weights; }
  void SetWeights(const cow_List<double>& v) { weights = v; }
  kopC_CombinedTermRequestMethodEnm GetMethod() const { return method; }
  void SetMethod(kopC_CombinedTermRequestMethodEnm v) { method = v; }
  bool GetUseVariableTerms() const { return useVariableTerms; }
  void SetUseVariableTerms(bool v) { useVariableTerms = v; }
  double GetFilterMaxRadius() const { return filterMaxRadius; }
  void SetFilterMaxRadius(double v) { filterMaxRadius = v; }
  double GetFilterExponent() const { return filterExponent; }
  void SetFilterExponent(double v) { filterExponent = v; }
  double GetFilterRadiusReduction() const { return filterRadiusReduction; }
  void SetFilterRadiusReduction(double v) { filterRadiusReduction = v; }
  double GetLowCutOff() const { return lowCutOff; }
  void SetLowCutOff(double v) { lowCutOff = v; }
  double GetHighCutOff() const { return highCutOff; }
  void SetHighCutOff(double v) { highCutOff = v; }

 private:
  cow_List<cow_String> terms;
  cow_List<double> weights;
  kopC_CombinedTermRequestMethodEnm method = kopC_CombinedTermRequestMethodEnm::ADD;
  bool useVariableTerms = false;
  double filterMaxRadius = kopC_kUnset;
  double filterExponent = kopC_kUnset;
  double filterRadiusReduction = kopC_kUnset;
  double lowCutOff = 0.0;
  double highCutOff = kopC_kUnset;
};

extern template class fw_PersistentClass<kopC_CombinedTermRequest, kopC_Request>;
