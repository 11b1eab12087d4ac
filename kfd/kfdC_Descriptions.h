#pragma once
// The descriptions of the module's classes and members, registered when the module starts.
#include <span>

#include "platform/persist/cls_Description.h"

std::span<const cls_ClassDescription> kfdC_DescriptionsTable();
void kfdC_RegisterDescriptions();
void kfdC_UnregisterDescriptions();
