#pragma once
// The fields of a model by name, analytical and discrete together ("allFields"): what other model
// attributes look a field name up in.
#include <memory>
#include <utility>
#include <vector>

#include "kfd/kfdC_Field.h"
#include "platform/base/cow_String.h"

class ddr_Model;
class mdl_Repository;

// Every field of the model, the analytical ones first, each repository in its key order.
std::vector<std::pair<cow_String, const kfdC_Field*>> kfdC_AllFields(const ddr_Model& model);
// The field of that name in either repository; null when the model has none.
const kfdC_Field* kfdC_FindField(const ddr_Model& model, const cow_String& name);
// The read-only repository "allFields" over the model: each name once, with the field that
// kfdC_FindField finds for it; every change is refused, naming the repositories that take it.
std::unique_ptr<mdl_Repository> kfdC_AllFieldsView(const ddr_Model& model);
