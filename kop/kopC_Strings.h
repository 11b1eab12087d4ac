#pragma once
// Settings of the optimization items as display texts, and the algorithm a strategy implies.
#include "kop/kopC_Enums.h"
#include "platform/base/cow_String.h"

class kopC_OrimConstraint;
class kopC_OrimObjectiveFunction;

// "Minimize", "Maximize", "Minimize the maximum"; empty for any other value.
cow_String kopC_targetAsString(kopC_TargetEnm target);
// "Minimum", "Maximum", "Sum", "N/A" for 0, 1, 3, 5; empty for every other value (2 and 4 too).
cow_String kopC_operationAsString(kopC_VariableOperationEnm operation);
// "Add" ... "Normalize first" for 0 to 30; empty for any other value.
cow_String kopC_combinedTermRequestMethodAsString(kopC_CombinedTermRequestMethodEnm method);
// The operator of the restriction method, a blank and the value ("<= 12.5"); a relative value as
// a percentage ("<= 30 %").
cow_String kopC_constraintComparisonAsString(const kopC_OrimConstraint& constraint);
// The names of the unsuppressed objectives joined by ", ", cut to 39 characters and "..." when
// longer.
cow_String kopC_designResponseAsString(const kopC_OrimObjectiveFunction& function);

// The display label of an algorithm: "Condition-based" (0), "General" (1); empty for any other value.
cow_String kopC_algorithmAsString(kopC_AlgorithmEnm algorithm);

// The algorithm a strategy bit implies: condition-based for 1, 4, 16 and 64, general otherwise.
kopC_AlgorithmEnm kopC_getAlgorithmFromStrategy(int strategy);
