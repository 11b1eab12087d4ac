#include "platform/persist/dbc_Converter.h"

#include <algorithm>
#include <mutex>
#include <utility>

#include "platform/base/nex_Exception.h"
#include "platform/persist/cls_ClassMetadata.h"
#include "platform/persist/cls_ClassRegistrar.h"
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

std::shared_ptr<const dbc_UpgradeDriver> dbc_UpgradeDriver::Registered() {
  // Versions only ever register (a module started again registers its own again), so their
  // count tells whether the driver made last still holds every step.
  static std::mutex mutex;
  static std::shared_ptr<const dbc_UpgradeDriver> driver;
  static std::size_t versions = 0;
  std::lock_guard<std::mutex> lock(mutex);
  const std::size_t now = omi_Singleton<dbc_OldClassRegistrar>::Instance().Entries().size();
  if (!driver || now != versions) {
    driver = std::make_shared<const dbc_UpgradeDriver>();  // a refusal leaves the last one in place
    versions = now;
  }
  return driver;
}

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

// The classes with steps that the class derives from, bases first (a class derives from more of
// the others the deeper it sits).
namespace {
std::vector<std::string> BasesWithSteps(const std::string& className,
                                        const std::map<std::string, std::map<int, const dbc_ClassConverter*>>& steps) {
  const cls_ClassRegistrar& registrar = cls_ClassRegistrar::Instance();
  const cls_ClassMetadata* cls = registrar.ByName(className);
  std::vector<std::pair<int, std::string>> bases;
  if (!cls) return {};
  for (const auto& [name, byFrom] : steps) {
    if (name == className) continue;
    const cls_ClassMetadata* base = registrar.ByName(name);
    if (!base || !cls->IsA(*base)) continue;
    int depth = 0;
    for (const auto& [other, unused] : steps)
      if (const cls_ClassMetadata* o = registrar.ByName(other); o && other != name && base->IsA(*o)) ++depth;
    bases.emplace_back(depth, name);
  }
  std::sort(bases.begin(), bases.end());
  std::vector<std::string> out;
  for (auto& b : bases) out.push_back(std::move(b.second));
  return out;
}
}  // namespace

bool dbc_UpgradeDriver::Plan(const std::string& className, int stored, int current,
                             std::vector<const dbc_ClassConverter*>& out) const {
  out.clear();
  std::vector<std::string> parts = BasesWithSteps(className, steps_);
  auto own = steps_.find(className);
  if (parts.empty()) {
    // One part: the chain starts exactly at the stored version.
    int v = stored;
    while (v < current) {
      if (own == steps_.end()) return false;
      auto it = own->second.find(v);
      if (it == own->second.end() || it->second->Target() <= v) return false;
      out.push_back(it->second);
      v = it->second->Target();
    }
    return v == current;
  }
  if (own != steps_.end()) parts.push_back(className);
  // rank of the part (bases first) for steps that share a target
  std::vector<std::pair<std::pair<int, std::size_t>, const dbc_ClassConverter*>> planned;
  for (std::size_t rank = 0; rank < parts.size(); ++rank) {
    const auto& byFrom = steps_.at(parts[rank]);
    // the part's layout at the stored version: the last of its versions not above it
    auto it = byFrom.upper_bound(stored);
    int lastTarget = byFrom.rbegin()->second->Target();
    if (stored >= lastTarget) continue;  // the part is at its current layout already
    if (it == byFrom.begin()) return false;  // older than every layout of the part
    --it;
    if (it->second->Target() <= stored) return false;  // between two layouts without a step
    int v = it->first;
    while (v < lastTarget) {
      auto step = byFrom.find(v);
      if (step == byFrom.end() || step->second->Target() <= v || step->second->Target() > current) return false;
      planned.push_back({{step->second->Target(), rank}, step->second});
      v = step->second->Target();
    }
  }
  std::stable_sort(planned.begin(), planned.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  for (const auto& p : planned) out.push_back(p.second);
  return stored <= current;
}

bool dbc_UpgradeDriver::HasPath(const std::string& className, int v, int current) const {
  std::vector<const dbc_ClassConverter*> plan;
  return Plan(className, v, current, plan);
}

void dbc_UpgradeDriver::Upgrade(const std::string& className, int stored, int current, cls_Record& row) const {
  cls_Record scratch;
  Run(StepsFor(className, stored, current), row, scratch);
}

dbc_UpgradeDriver::Steps dbc_UpgradeDriver::StepsFor(const std::string& className, int stored, int current) const {
  if (stored > current)
    nex_ThrowCmd("Class " + className + " is stored at version " + std::to_string(stored) +
                 ", newer than this library's version " + std::to_string(current));
  Steps plan;
  if (!Plan(className, stored, current, plan))
    nex_ThrowCmd("Class " + className + " is stored at version " + std::to_string(stored) +
                 ", from which no chain of upgrade steps reaches its current version " + std::to_string(current));
  return plan;
}

void dbc_UpgradeDriver::Run(const Steps& steps, cls_Record& row, cls_Record& scratch) {
  for (const dbc_ClassConverter* step : steps) {
    if (dbc_ConversionFn fn = step->Function()) {
      scratch = row;  // the new row starts as the old one; the function changes it
      const cls_Record& old = row;
      dbc_Row oldRow(old);
      dbc_Row newRow(scratch);
      fn(oldRow, newRow, step->Arg());
      std::swap(row, scratch);
    }
  }
}
