#include "kfd/kfdC_Advice.h"

#include "command/cmd_Advice.h"

void kfdC_RegisterAdvice() { cmd_RegisterReference("kfd", "kfdC_DiscreteField", "analyticFieldName", "analyticalFields"); }
void kfdC_UnregisterAdvice() { cmd_UnregisterAdvisors("kfd"); }
