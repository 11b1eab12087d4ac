#include "kef/kefC_Advice.h"

#include "command/cmd_Advice.h"

void kefC_RegisterAdvice() { cmd_RegisterReference("kef", "kefC_PointFastener", "sectionName", "connectorSections"); }
void kefC_UnregisterAdvice() { cmd_UnregisterAdvisors("kef"); }
