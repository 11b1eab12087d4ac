#pragma once
// The descriptions of the module's classes and members, registered when the module starts.
#include <span>

#include "platform/persist/cls_Description.h"

std::span<const cls_ClassDescription> kmaC_Descriptions1Table();
std::span<const cls_ClassDescription> kmaC_Descriptions2Table();
std::span<const cls_ClassDescription> kmaC_Descriptions3Table();
std::span<const cls_ClassDescription> kmaC_Descriptions4Table();
std::span<const cls_ClassDescription> kmaC_Descriptions5Table();
void kmaC_RegisterDescriptions();
void kmaC_UnregisterDescriptions();
