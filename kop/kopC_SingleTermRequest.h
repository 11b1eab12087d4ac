#pragma once
// The request of a single-term design response: one identifier over a region and steps.
#include <cstdint>
#include <tuple>

#include "framework/fw_PersistentClass.h"
#include "kop/kopC_Request.h"
#include "kop/kopC_Enums.h"
#include "platform/model/rgnC_Region.h"
#include "platform/base/cow_String.h"
#include "platform/base/cow_List.h"
#include "kop/kopC_StepOption.h"
#include "platform/base/cow_COW.h"

class kopC_SingleTermRequest : public fw_PersistentClass<kopC_SingleTermRequest, kopC_Request> {
 public:
  using BaseClass = kopC_Request;
  using RootClass = kopC_Request;
  static constexpr const char* kClassName = "kopC_SingleTermRequest";
  static constexpr const char* kScriptName = "SingleTermRequest";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 21); }
  // Persistent fields in write order.
  static constexpr auto Fields() {
    using C = kopC_SingleTermRequest;
    return std::tuple{
        fw_Field{"identifier", 0, "identifier", &C::identifier},
        fw_Field{"operation", 1, "operation", &C::operation},
        fw_Field{"drivingRegion", 2, "drivingRegion", &C::drivingRegion},
        fw_Field{"secondaryRegion", 3, "secondaryRegion", &C::secondaryRegion},
        fw_Field{"stepOperation", 4, "stepOperation", &C::stepOperation},
        fw_Field{"stepOptions", 5, "stepOptions", &C::stepOptions},
        fw_Field{"shellLayer", 6, "shellLayer", &C::shellLayer},
        fw_Field{"outputFormat", 7, "outputFormat", &C::outputFormat},
        fw_Field{"deviationReference", 8, "deviationReferenceVariable", &C::deviationReference},
        fw_Field{"deviationReferenceValue", 9, "deviationReferenceValue", &C::deviationReferenceValue},
    };
  }

  kopC_SingleTermRequest() = default;
  explicit kopC_SingleTermRequest(const cls_ReadVisitor& reader);
  void AssertValid() const override;
  unsigned ClassTypeId() const override { return TypeId(); }
  using StepOptionHandle = cow_COW<kopC_StepOption, cow_Virtual<kopC_StepOption>>;

  const cow_String& GetIdentifier() const { return identifier; }
  void SetIdentifier(const cow_String& v) { identifier = v; }
  kopC_VariableOperationEnm GetOperation() const { return operation; }
  void SetOperation(kopC_VariableOperationEnm v) { operation = v; }
  const rgnC_Region& GetDrivingRegion() const { return drivingRegion; }
  void SetDrivingRegion(const rgnC_Region& v) { drivingRegion = v; }
  const rgnC_Region& GetSecondaryRegion() const { return secondaryRegion; }
  void SetSecondaryRegion(const rgnC_Region& v) { secondaryRegion = v; }
  kopC_VariableOperationEnm GetStepOperation() const { return stepOperation; }
  void SetStepOperation(kopC_VariableOperationEnm v) { stepOperation = v; }
  const cow_List<StepOptionHandle>& GetStepOptions() const { return stepOptions; }
  void SetStepOptions(const cow_List<StepOptionHandle>& v) { stepOptions = v; }
  kopC_ShellLayerEnm GetShellLayer() const { return shellLayer; }
  void SetShellLayer(kopC_ShellLayerEnm v) { shellLayer = v; }
  kopC_OutputFormatEnm GetOutputFormat() const { return outputFormat; }
  void SetOutputFormat(kopC_OutputFormatEnm v) { outputFormat = v; }
  kopC_DeviationReferenceEnm GetDeviationReference() const { return deviationReference; }
  void SetDeviationReference(kopC_DeviationReferenceEnm v) { deviationReference = v; }
  double GetDeviationReferenceValue() const { return deviationReferenceValue; }
  void SetDeviationReferenceValue(double v) { deviationReferenceValue = v; }

 private:
  cow_String identifier;
  kopC_VariableOperationEnm operation = kopC_VariableOperationEnm::SUM;
  rgnC_Region drivingRegion;
  rgnC_Region secondaryRegion;
  kopC_VariableOperationEnm stepOperation = kopC_VariableOperationEnm::SUM;
  cow_List<StepOptionHandle> stepOptions;
  kopC_ShellLayerEnm shellLayer = kopC_ShellLayerEnm::NONE;
  kopC_OutputFormatEnm outputFormat = kopC_OutputFormatEnm::VALUES;
  kopC_DeviationReferenceEnm deviationReference = kopC_DeviationReferenceEnm::DEVIATION_FROM_MAXIMUM;
  double deviationReferenceValue = kopC_kUnset;
};

extern template class fw_PersistentClass<kopC_SingleTermRequest, kopC_Request>;
