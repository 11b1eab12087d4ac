#pragma once
// The amplitude module's advice: where a time column starts, and times given twice, and the event amplitude a spectrum names.
// Registered when the module starts, removed when it stops.
void kamC_RegisterAdvice();
void kamC_UnregisterAdvice();
