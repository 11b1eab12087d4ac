#pragma once
// The material module's advice: plausibility of material data, the table layouts the options
// leave to their consumers, and how damage initiations fit the material that holds them.
// Registered when the module starts, removed when it stops.
void kmaC_RegisterAdvice();
void kmaC_UnregisterAdvice();
