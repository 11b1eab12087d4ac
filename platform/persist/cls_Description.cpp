#include "platform/persist/cls_Description.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/base/omi_Singleton.h"

namespace {
struct cls_DescriptionModule {
  std::vector<std::span<const cls_ClassDescription>> tables;
  cls_ErrorMessageFn messages = nullptr;
};

struct cls_DescriptionRegistry {
  std::map<std::string, cls_DescriptionModule, std::less<>> byModule;
};

cls_DescriptionRegistry& DescriptionRegistry() { return omi_Singleton<cls_DescriptionRegistry>::Instance(); }

// The description of the class and the module that registered it.
std::pair<const cls_ClassDescription*, const cls_DescriptionModule*> FindDescribed(std::string_view className) {
  // A few hundred classes over fourteen modules: a linear search is cheaper than keeping an
  // index in step with modules that start and stop.
  for (const auto& [name, module] : DescriptionRegistry().byModule)
    for (const auto& table : module.tables)
      for (const auto& d : table)
        if (className == d.className) return {&d, &module};
  return {nullptr, nullptr};
}

}  // namespace

void cls_RegisterDescriptions(std::string_view module, std::span<const cls_ClassDescription> table,
                              cls_ErrorMessageFn messages) {
  cls_DescriptionModule& m = DescriptionRegistry().byModule[std::string(module)];
  m.tables.push_back(table);
  if (messages) m.messages = messages;
}

void cls_UnregisterDescriptions(std::string_view module) {
  auto& byModule = DescriptionRegistry().byModule;
  if (auto it = byModule.find(module); it != byModule.end()) byModule.erase(it);
}

const cls_ClassDescription* cls_FindDescription(std::string_view className) {
  return FindDescribed(className).first;
}

const char* cls_FindErrorMessage(std::string_view className, int code) {
  const auto [d, module] = FindDescribed(className);
  const char* text = module && module->messages ? module->messages(code) : nullptr;
  return text ? text : "";
}

// Members that mean the same in every class that has them: a table names them only where its
// class means something else by them.
constexpr cls_MemberDescription kCommonMemberDescriptions[] = {
    {"table",
     "The data table: one row per data point, the data columns first, then "
     "the temperature and field-variable columns its dependencies add"},
    {"temperatureDependency",
     "Whether the data depend on temperature (a temperature column follows "
     "the data columns of the table)"},
    {"dependencies",
     "Number of field-variable dependencies (that many field-variable "
     "columns close each row of the table)"},
    {"csys", "The datum coordinate system of its directions (empty: the global system)"},
    {"suppress", "Whether it is suppressed (kept in the model but left out of the analysis)"},
    {"frequencyDependency",
     "Whether the data depend on frequency (a frequency column follows the "
     "data columns of the table)"},
};

const char* cls_FindMemberDescription(std::string_view className, std::string_view scriptName) {
  // Bounded: a base chain longer than this is a table that names itself as its own base.
  const cls_ClassDescription* d = cls_FindDescription(className);
  if (!d) return "";
  for (int depth = 0; d && depth < 16; ++depth) {
    for (const auto& m : d->members)
      if (scriptName == m.scriptName) return m.text;
    d = d->base ? cls_FindDescription(d->base) : nullptr;
  }
  for (const auto& m : kCommonMemberDescriptions)
    if (scriptName == m.scriptName) return m.text;
  return "";
}
