#include "kop/kopC_SingleTermRequest.h"

#include "framework/fw_PersistentClassImpl.h"
#include "kop/kopC_assert.h"
#include "kop/kopC_Labels.h"

kopC_SingleTermRequest::kopC_SingleTermRequest(const cls_ReadVisitor& reader) : fw_PersistentClass(reader) { fw_ReadFields(*this, reader); }

// Identifier first, then its operation and region, deviation, shell layer and steps.
void kopC_SingleTermRequest::AssertValid() const {
  kopC_Assert(!identifier.empty(), kopC_IdentifierMissing);
  kopC_Assert(operation != kopC_VariableOperationEnm::AVERAGE, kopC_OperationAverage);
  const bool global = kopC_IsGlobalIdentifier(identifier);
  kopC_Assert(global || operation != kopC_VariableOperationEnm::NOT_APPLICABLE, kopC_OperationValueMissing);
  kopC_Assert(!global || operation != kopC_VariableOperationEnm::MINIMUM, kopC_MinimumNotAllowed);
  kopC_Assert(!global || operation != kopC_VariableOperationEnm::MAXIMUM, kopC_MaximumNotAllowed);
  // An empty driving region is the whole model: what the request alone decides of the region rules.
  const bool extreme = operation == kopC_VariableOperationEnm::MINIMUM || operation == kopC_VariableOperationEnm::MAXIMUM;
  kopC_Assert(!(extreme && drivingRegion.IsEmpty() && kopC_IsLayeredIdentifier(identifier)), kopC_RegionTooLarge);
  kopC_Assert(identifier != "ENERGY_STIFF_MEASURE" || drivingRegion.IsEmpty(), kopC_EnergyStiffnessWholeModel);
  kopC_Assert(deviationReference != kopC_DeviationReferenceEnm::DEVIATION_FROM_VARIABLE, kopC_DeviationFromVariable);
  kopC_Assert(deviationReferenceValue == kopC_kUnset || deviationReferenceValue > 0, kopC_DeviationReferenceNotPositive);
  kopC_Assert(shellLayer == kopC_ShellLayerEnm::NONE || kopC_IsLayeredIdentifier(identifier), kopC_ShellLayerInvalid);
  kopC_Assert(!kopC_IsStepFreeIdentifier(identifier) || stepOptions.empty(), kopC_IdentifierWithSteps);
  // A response that depends on a step is evaluated at one at least.
  kopC_Assert(kopC_IsStepFreeIdentifier(identifier) || !stepOptions.empty(), kopC_StepMissing);
  for (const StepOptionHandle& option : stepOptions)
    if (!option.IsNull()) option->AssertValid();
}

template class fw_PersistentClass<kopC_SingleTermRequest, kopC_Request>;
