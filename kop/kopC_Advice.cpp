#include "kop/kopC_Advice.h"

#include <string>

#include "command/cmd_Advice.h"
#include "kop/kopC_Objective.h"
#include "kop/kopC_OrimObjectiveFunction.h"

namespace {

// The entries of an objective list are held in the function, not in a repository of their own:
// each is named by its position.
void kopAdvice_ObjectiveFunction(const kopC_OrimObjectiveFunction& f, cmd_AdviceContext& ctx) {
  std::size_t i = 0;
  for (const auto& objective : f.GetObjectives()) {
    ctx.Reference({"objectives", std::to_string(i)}, "designResponse", "designResponses",
                  objective.ConstGet().GetDesignResponse());
    ++i;
  }
}

}  // namespace

void kopC_RegisterAdvice() {
  cmd_RegisterAdvisorOf<kopC_OrimObjectiveFunction, kopAdvice_ObjectiveFunction>("kop");
  cmd_RegisterReference("kop", "kopC_OrimConstraint", "designResponse", "designResponses");
  cmd_RegisterReference("kop", "kopC_OrimStopCondition", "designResponse", "designResponses");
  cmd_RegisterReference("kop", "kopC_CombinedTermRequest", "terms", "designResponses");
}

void kopC_UnregisterAdvice() { cmd_UnregisterAdvisors("kop"); }
