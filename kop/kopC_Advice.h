#pragma once
// The optimization module's advice: the design responses that objectives, constraints, stop conditions and combined terms name.
// Registered when the module starts, removed when it stops.
void kopC_RegisterAdvice();
void kopC_UnregisterAdvice();
