#pragma once
// The descriptions of the module's classes and members, registered when the module starts.
#include <span>

#include "platform/persist/cls_Description.h"

std::span<const cls_ClassDescription> kbpC_DescriptionsTable();
void kbpC_RegisterDescriptions();
void kbpC_UnregisterDescriptions();
