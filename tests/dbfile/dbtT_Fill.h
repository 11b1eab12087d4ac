#pragma once
// Objects of any registered class, default or with every scripting field set away from its
// default, for the registry-driven round trips.
#include <string>

#include "platform/persist/cls_ClassMetadata.h"

// A constructible class that is `cls` or derives from it, or null.
const cls_ClassMetadata* dbtT_Constructible(const cls_ClassMetadata& cls);

// A new object of the class (from its metadata) with each scripting field set to a value that
// differs from the default where the field accepts it. `fields` counts the fields set.
void* dbtT_NewFilled(const cls_ClassMetadata& cls, int& fields);
