#pragma once
// The table module's advice: the event series types that event series name and the parameter tables that property tables name.
// Registered when the module starts, removed when it stops.
void ktbC_RegisterAdvice();
void ktbC_UnregisterAdvice();
