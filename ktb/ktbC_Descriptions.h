#pragma once
// The descriptions of the module's classes and members, registered when the module starts.
#include <span>

#include "platform/persist/cls_Description.h"

std::span<const cls_ClassDescription> ktbC_DescriptionsTable();
void ktbC_RegisterDescriptions();
void ktbC_UnregisterDescriptions();
