#pragma once
// The descriptions of the module's classes and members, registered when the module starts.
#include <span>

#include "platform/persist/cls_Description.h"

std::span<const cls_ClassDescription> kopC_Descriptions1Table();
std::span<const cls_ClassDescription> kopC_Descriptions2Table();
void kopC_RegisterDescriptions();
void kopC_UnregisterDescriptions();
