#pragma once
// The engineering feature module's advice: the connector sections that point fasteners name.
// Registered when the module starts, removed when it stops.
void kefC_RegisterAdvice();
void kefC_UnregisterAdvice();
