#include "kad/kadC_Advice.h"

#include "command/cmd_Advice.h"

void kadC_RegisterAdvice() { cmd_RegisterReference("kad", "kadC_AdptMeshDomain", "controls", "adaptiveMeshControls"); }
void kadC_UnregisterAdvice() { cmd_UnregisterAdvisors("kad"); }
