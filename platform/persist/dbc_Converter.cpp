#include "platform/persist/dbc_Converter.h"

#include "platform/base/nex_Exception.h"
#include "platform/base/omi_Singleton.h"

// --- rows -------------------------------------------------------------------------------------

const cls_Value& dbc_Row::Get(const rfm_FieldHandle& h) const {
  const cls_Value* v = const_->Find(h.Name());
  if (!v) nex_ThrowCmd("The stored row has no field \"" + h.Name() + "\"");
  return *v;
}

namespace {
template <class T>
const T& As(const cls_Value& v, const std::string& name, const char* kind) {
  const T* t = std::get_if<T>(&v);
  if (!t)
    nex_ThrowCmd("The field \"" + name + "\" of the stored row holds " + cls_WithArticle(cls_ValueKindName(v)) + ", not " + cls_WithArticle(kind));
  return *t;
}
}  // namespace

std::int32_t dbc_Row::GetInt(const rfm_FieldHandle& h) const { return As<std::int32_t>(Get(h), h.Name(), "int"); }
double dbc_Row::GetDouble(const rfm_FieldHandle& h) const { return As<double>(Get(h), h.Name(), "double"); }
bool dbc_Row::GetBool(const rfm_FieldHandle& h) const { return As<bool>(Get(h), h.Name(), "bool"); }
cow_String dbc_Row::GetString(const rfm_FieldHandle& h) const { return As<cow_String>(Get(h), h.Name(), "string"); }

void dbc_Row::Set(const rfm_FieldHandle& h, cls_Value v) {
  if (!rec_) nex_ThrowCmd("The old row of a conversion cannot be changed (field \"" + h.Name() + "\")");
  rec_->Set(h.Name(), std::move(v));
}

void dbc_Row::Remove(const rfm_FieldHandle& h) {
  if (!rec_) nex_ThrowCmd("The old row of a conversion cannot be changed (field \"" + h.Name() + "\")");
  rec_->Remove(h.Name());
}

// --- registrations ----------------------------------------------------------------------------

void dbc_OldClassRegistrar::Register(const cow_CountedHld<dbc_OldClassVersion>& holder, int kind) {
  entries_.push_back(Entry{holder, kind});
}

dbc_ClassConverter& dbc_Converter::Upgrade(const char* className, unsigned typeId, int fromVersion) {
  steps_.push_back(std::make_unique<dbc_ClassConverter>(className, typeId, fromVersion, target_));
  return *steps_.back();
}

dbc_ClassRename& dbc_Converter::Rename(const char* oldName, int fromVersion, const char* newName, unsigned newTypeId) {
  renames_.push_back(std::make_unique<dbc_ClassRename>(oldName, fromVersion, newName, newTypeId, target_));
  return *renames_.back();
}

void dbc_Converter::Part(const char* oldName, int fromVersion) {
  renames_.push_back(std::make_unique<dbc_ClassRename>(oldName, fromVersion, std::string(), 0u, target_));
}

dbc_Converter& dbc_DatabaseConverter::GetConverter(int target) {
  auto& slot = converters_[target];
  if (!slot) slot = std::make_unique<dbc_Converter>(target);
  return *slot;
}

void dbc_DatabaseConverter::CollectRegistered(dbc_DatabaseConverter& into) {
  for (const auto& e : omi_Singleton<dbc_OldClassRegistrar>::Instance().Entries())
    if (!e.holder.IsNull()) e.holder->SchemaChanges(into);
}

// --- the driver -------------------------------------------------------------------------------

dbc_UpgradeDriver::dbc_UpgradeDriver() {
  dbc_DatabaseConverter::CollectRegistered(own_);
  Load(own_);
}

dbc_UpgradeDriver::dbc_UpgradeDriver(const dbc_DatabaseConverter& steps) { Load(steps); }

void dbc_UpgradeDriver::Load(const dbc_DatabaseConverter& steps) {
  for (const auto& [target, conv] : steps.Converters()) {
    for (const auto& step : conv->Steps()) {
      auto& byFrom = steps_[step->ClassName()];
      auto [it, fresh] = byFrom.emplace(step->From(), step.get());
      // A module started again registers its descriptors again: the same step twice is one step.
      bool same = it->second->Target() == step->Target() && it->second->Function() == step->Function();
      if (!fresh && !same)
        nex_ThrowCmd("Two upgrade steps of class " + step->ClassName() + " start at version " +
                     std::to_string(step->From()) + " (to " + std::to_string(it->second->Target()) + " and " +
                     std::to_string(step->Target()) + ")");
    }
    for (const auto& r : conv->Renames()) renames_.emplace(std::pair{r->OldName(), r->From()}, r.get());
  }
}

const dbc_ClassRename* dbc_UpgradeDriver::RenameOf(const std::string& oldName, int storedVersion) const {
  auto it = renames_.find({oldName, storedVersion});
  return it == renames_.end() ? nullptr : it->second;
}

bool dbc_UpgradeDriver::HasPath(const std::string& className, int v, int current) const {
  auto cls = steps_.find(className);
  while (v < current) {
    if (cls == steps_.end()) return false;
    auto it = cls->second.find(v);
    if (it == cls->second.end() || it->second->Target() <= v) return false;
    v = it->second->Target();
  }
  return v == current;
}

void dbc_UpgradeDriver::Upgrade(const std::string& className, int stored, int current, cls_Record& row) const {
  if (stored > current)
    nex_ThrowCmd("Class " + className + " is stored at version " + std::to_string(stored) +
                 ", newer than this library's version " + std::to_string(current));
  if (!HasPath(className, stored, current))
    nex_ThrowCmd("Class " + className + " is stored at version " + std::to_string(stored) +
                 ", from which no chain of upgrade steps reaches its current version " + std::to_string(current));
  const auto& byFrom = steps_.at(className);
  int v = stored;
  while (v != current) {
    const dbc_ClassConverter* step = byFrom.at(v);
    if (dbc_ConversionFn fn = step->Function()) {
      cls_Record next = row;  // the new row starts as the old one; the function changes it
      const cls_Record& old = row;
      dbc_Row oldRow(old);
      dbc_Row newRow(next);
      fn(oldRow, newRow, step->Arg());
      row = std::move(next);
    }
    v = step->Target();
  }
}
