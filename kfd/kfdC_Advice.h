#pragma once
// The field module's advice: the analytical fields that discrete fields name.
// Registered when the module starts, removed when it stops.
void kfdC_RegisterAdvice();
void kfdC_UnregisterAdvice();
