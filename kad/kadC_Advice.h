#pragma once
// The adaptive mesh module's advice: the controls that adaptive mesh domains name.
// Registered when the module starts, removed when it stops.
void kadC_RegisterAdvice();
void kadC_UnregisterAdvice();
