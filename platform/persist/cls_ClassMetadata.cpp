#include "platform/persist/cls_ClassMetadata.h"

#include <string>

#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Description.h"
#include "platform/persist/cls_Family.h"
#include "platform/base/nex_Exception.h"
#include "platform/base/omi_Singleton.h"

cls_ClassMetadata::cls_ClassMetadata(const char* name, unsigned typeId, int version, FactoryFn factory, int flag)
    : name_(name), typeId_(typeId), version_(version), factory_(factory), flag_(flag) {}

cls_ClassMetadata::~cls_ClassMetadata() = default;

void cls_ClassMetadata::AddAttribute(const cls_FieldHandle& handle, int type, int count, int collection) {
  attributes_.push_back(cls_Attribute{handle, type, count, collection});
}

const cls_Attribute* cls_ClassMetadata::FindAttribute(std::string_view name) const noexcept {
  for (const auto& a : attributes_)
    if (a.handle.Name().view() == name) return &a;
  return nullptr;
}

const std::vector<cls_ScriptField>& cls_ClassMetadata::ScriptFields() const {
  static const std::vector<cls_ScriptField> kNone;
  return kNone;
}

const cls_ScriptField* cls_ClassMetadata::FindScriptField(std::string_view scriptName) const noexcept {
  for (const auto& f : ScriptFields())
    if (scriptName == f.scriptName) return &f;
  return nullptr;
}

const cls_ClassDescription* cls_ClassMetadata::Description() const { return cls_FindDescription(name_.view()); }

const char* cls_ClassMetadata::Summary() const {
  const cls_ClassDescription* d = cls_FindDescription(name_.view());
  return d && d->summary ? d->summary : "";
}

const char* cls_ClassMetadata::MemberDescription(std::string_view scriptName) const {
  return cls_FindMemberDescription(name_.view(), scriptName);
}

const std::vector<const cls_ScriptField*>& cls_ClassMetadata::ObjectFields() const {
  if (!objectFieldsFound_) {
    for (const auto& f : ScriptFields())
      if (f.type == cls_AttrObject && f.declared) objectFields_.push_back(&f);
    objectFieldsFound_ = true;
  }
  return objectFields_;
}

namespace {
[[noreturn]] void Unsupported(const cow_String& name, const char* what) {
  nex_ThrowCmd("The class " + name.str() + " cannot " + what);
}
}  // namespace

void* cls_ClassMetadata::NewDefault() const {
  if (factory_) return factory_();
  Unsupported(name_, "be constructed");
}
void* cls_ClassMetadata::NewFromRecord(const cls_ReadVisitor&) const { Unsupported(name_, "be read"); }
void* cls_ClassMetadata::Clone(const void*) const { Unsupported(name_, "be copied"); }
void cls_ClassMetadata::Write(const void*, const cls_WriteVisitor&) const { Unsupported(name_, "be written"); }
bool cls_ClassMetadata::Equal(const void*, const void*) const { Unsupported(name_, "be compared"); }
void cls_ClassMetadata::AssertValid(const void*) const {}
cls_Uid cls_ClassMetadata::UidOf(const void*) const { return cls_Uid::Null(); }
const cls_ClassMetadata& cls_ClassMetadata::ClassOf(const void*) const { return *this; }
mdl_Repository* cls_ClassMetadata::AsRepository(void*) const { return nullptr; }
const mdl_Repository* cls_ClassMetadata::AsRepository(const void*) const { return nullptr; }
void cls_ClassMetadata::RefuseUnknownStep(const void*, std::string_view) const {}

void cls_ClassMetadata::Destroy(void* obj) const {
  if (!obj) return;
  if (!dtor_) Unsupported(name_, "be destroyed");
  dtor_(obj);
}

// --- registrars -------------------------------------------------------------------------------

cls_ClassRegistrar& cls_ClassRegistrar::Instance() { return omi_Singleton<cls_ClassRegistrar>::Instance(); }

void cls_ClassRegistrar::AddClassMD(cls_ClassMetadata* md) {
  owned_.emplace_back(md);
  if (byName_.count(md->Name().str())) return;
  if (byType_.count(md->TypeId()))
    nex_ThrowCmd("Class " + md->Name().str() + " takes type id " + std::to_string(md->TypeId()) +
                 ", already registered for " + byType_[md->TypeId()]->Name().str());
  byName_.emplace(md->Name().str(), md);
  byType_.emplace(md->TypeId(), md);
  order_.push_back(md);
  // A class's constructor names are its own constants, known as it is registered.
  if (const char* script = md->ScriptName(); *script) byScriptName_.emplace(script, md);
  for (const char* variant : md->ScriptVariants()) byScriptName_.emplace(variant, md);
}

const cls_ClassMetadata* cls_ClassRegistrar::ByName(std::string_view name) const {
  auto it = byName_.find(name);
  return it == byName_.end() ? nullptr : it->second;
}

const cls_ClassMetadata* cls_ClassRegistrar::ByTypeId(unsigned typeId) const {
  auto it = byType_.find(typeId);
  return it == byType_.end() ? nullptr : it->second;
}

const cls_ClassMetadata* cls_ClassRegistrar::ByScriptName(std::string_view scriptName) const {
  auto it = byScriptName_.find(scriptName);
  return it == byScriptName_.end() ? nullptr : it->second;
}

void cls_MetadataRegistrar::initClassMetadata(InitFn fn, unsigned group) {
  bool seen = false;
  for (const auto& e : entries_) seen = seen || e.fn == fn;
  entries_.push_back(Entry{fn, group});
  if (!seen) fn(cls_ClassRegistrar::Instance());
}

const cls_ClassMetadata& cls_MetadataOf(const char* className) {
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByName(className);
  if (!md) nex_ThrowCmd(std::string("The class ") + className + " is not registered");
  return *md;
}

const cls_ClassMetadata& cls_MetadataOf(unsigned typeId) {
  const cls_ClassMetadata* md = cls_ClassRegistrar::Instance().ByTypeId(typeId);
  if (!md) nex_ThrowCmd("No class is registered with type id " + std::to_string(typeId));
  return *md;
}
