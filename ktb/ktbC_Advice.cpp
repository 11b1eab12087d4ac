#include "ktb/ktbC_Advice.h"

#include "command/cmd_Advice.h"

void ktbC_RegisterAdvice() {
  cmd_RegisterReference("ktb", "ktbC_EventSeries", "eventSeriesType", "eventSeriesTypes");
  cmd_RegisterReference("ktb", "ktbC_PropertyTable", "parameterTable", "parameterTables");
}
void ktbC_UnregisterAdvice() { cmd_UnregisterAdvisors("ktb"); }
