#pragma once
// A remeshing rule of adaptive meshing: for one step and one region, the error-indicator output
// variables that drive remeshing, how often they are evaluated, how the new element sizes are
// chosen and how many elements the new mesh may have.
#include <cstdint>
#include <limits>

#include "framework/fw_PersistentClass.h"
#include "framework/fw_Field.h"
#include "framework/fw_OrLiteral.h"
#include "platform/base/bas_Alloc.h"
#include "platform/base/cow_List.h"
#include "platform/base/cow_String.h"
#include "platform/base/omu_PrimEnum.h"
#include "platform/model/rgnC_Region.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

// A size or factor left to the solver.
inline constexpr double karC_kUnspecified = std::numeric_limits<double>::max();

class karC_RemeshingRule : public fw_PersistentClass<karC_RemeshingRule, mem_Allocated> {
 public:
  enum class OutputFrequencyEnm : std::int32_t { LAST_INCREMENT = 0, EVERY_N_INCREMENTS = 1 };
  enum class SizingMethodEnm : std::int32_t { DEFAULT = 0, UNIFORM_ERROR = 1, MINIMUM_MAXIMUM = 2 };
  // The one literal of the element count limit: no cap.
  enum class ElementCountLimitEnm : std::int32_t { UNLIMITED = 0 };

  static constexpr omu_EnumLiteral kOutputFrequencyLiterals[] = {
      {"LAST_INCREMENT", 0}, {"EVERY_N_INCREMENTS", 1}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kSizingMethodLiterals[] = {
      {"DEFAULT", 0}, {"UNIFORM_ERROR", 1}, {"MINIMUM_MAXIMUM", 2}, {nullptr, 0}};
  static constexpr omu_EnumLiteral kElementCountLimitLiterals[] = {{"UNLIMITED", 0}, {nullptr, 0}};
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(OutputFrequencyEnm) { return kOutputFrequencyLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(SizingMethodEnm) { return kSizingMethodLiterals; }
  friend constexpr const omu_EnumLiteral* omu_LiteralTable(ElementCountLimitEnm) { return kElementCountLimitLiterals; }

  using ElementCountLimit = fw_OrLiteral<std::int32_t, ElementCountLimitEnm>;

  static constexpr const char* kClassName = "karC_RemeshingRule";
  static constexpr const char* kScriptName = "RemeshingRule";
  static constexpr int kVersion = 1000;
  static constexpr unsigned TypeId() { return fw_TypeId(855, 1); }

  // Persistent fields in write order; the element count limit came last (version 1000).
  static constexpr auto Fields() {
    using C = karC_RemeshingRule;
    return std::tuple{
        fw_Field{"suppress", 0, "suppress", &C::suppress},
        fw_Field{"stepName", 1, "stepName", &C::stepName},
        fw_Field{"region", 2, "region", &C::region},
        fw_Field{"description", 3, "description", &C::description},
        fw_Field{"variables", 4, "variables", &C::variables},
        fw_Field{"outputFrequency", 5, "outputFrequency", &C::outputFrequency},
        fw_Field{"frequency", 6, "frequency", &C::frequency},
        fw_Field{"sizingMethod", 7, "sizingMethod", &C::sizingMethod},
        fw_Field{"errorTargets", 8, "errorTargets", &C::errorTargets},
        fw_Field{"refinementFactor", 9, "refinementFactor", &C::refinementFactor},
        fw_Field{"coarseningFactor", 10, "coarseningFactor", &C::coarseningFactor},
        fw_Field{"minElementSize", 11, "minElementSize", &C::minElementSize},
        fw_Field{"maxElementSize", 12, "maxElementSize", &C::maxElementSize},
        fw_Field{"elementCountLimit", 13, "elementCountLimit", &C::elementCountLimit},
    };
  }

  karC_RemeshingRule() = default;
  explicit karC_RemeshingRule(const cls_ReadVisitor& r);
  virtual ~karC_RemeshingRule() = default;
  virtual void AssertValid() const;

  const cls_Uid& GetUid() const { return uid; }
  bool GetSuppress() const { return suppress; }
  void SetSuppress(bool v) { suppress = v; }
  const cow_String& GetStepName() const { return stepName; }
  void SetStepName(const cow_String& v) { stepName = v; }
  const rgnC_Region& GetRegion() const { return region; }
  void SetRegion(const rgnC_Region& v) { region = v; }
  const cow_String& GetDescription() const { return description; }
  void SetDescription(const cow_String& v) { description = v; }
  const cow_List<cow_String>& GetVariables() const { return variables; }
  void SetVariables(const cow_List<cow_String>& v) { variables = v; }
  OutputFrequencyEnm GetOutputFrequency() const { return outputFrequency; }
  void SetOutputFrequency(OutputFrequencyEnm v) { outputFrequency = v; }
  std::int32_t GetFrequency() const { return frequency; }
  void SetFrequency(std::int32_t v) { frequency = v; }
  SizingMethodEnm GetSizingMethod() const { return sizingMethod; }
  void SetSizingMethod(SizingMethodEnm v) { sizingMethod = v; }
  const cow_List<double>& GetErrorTargets() const { return errorTargets; }
  void SetErrorTargets(const cow_List<double>& v) { errorTargets = v; }
  double GetRefinementFactor() const { return refinementFactor; }
  void SetRefinementFactor(double v) { refinementFactor = v; }
  double GetCoarseningFactor() const { return coarseningFactor; }
  void SetCoarseningFactor(double v) { coarseningFactor = v; }
  double GetMinElementSize() const { return minElementSize; }
  void SetMinElementSize(double v) { minElementSize = v; }
  double GetMaxElementSize() const { return maxElementSize; }
  void SetMaxElementSize(double v) { maxElementSize = v; }
  // The cap on the number of elements; 2147483647 ("UNLIMITED") for none.
  std::int32_t GetElementCountLimit() const { return elementCountLimit.value; }
  bool IsElementCountUnlimited() const { return elementCountLimit.IsLiteral(); }
  void SetElementCountLimit(std::int32_t v) { elementCountLimit = v; }
  void SetElementCountLimit(ElementCountLimitEnm v) { elementCountLimit = v; }

 private:
  bool suppress = false;
  cow_String stepName;
  rgnC_Region region;
  cow_String description;
  cow_List<cow_String> variables;  // error-indicator output variables, such as "MISESERI"
  OutputFrequencyEnm outputFrequency = OutputFrequencyEnm::LAST_INCREMENT;
  std::int32_t frequency = 1;  // every n increments, with EVERY_N_INCREMENTS
  SizingMethodEnm sizingMethod = SizingMethodEnm::DEFAULT;
  cow_List<double> errorTargets;  // one per variable, or none for the solver's targets
  double refinementFactor = karC_kUnspecified;
  double coarseningFactor = karC_kUnspecified;
  double minElementSize = karC_kUnspecified;
  double maxElementSize = karC_kUnspecified;
  ElementCountLimit elementCountLimit;  // "UNLIMITED"
  cls_Uid uid;
};

extern template class fw_PersistentClass<karC_RemeshingRule, mem_Allocated>;
