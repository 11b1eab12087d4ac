#include "platform/model/ddr_Shortcut.h"

#include <map>
#include <string>

#include "platform/persist/cls_ClassRegistrar.h"
#include "platform/persist/cls_Family.h"
#include "platform/persist/cls_Value.h"
#include "platform/model/ddr_MemberShortcut.h"
#include "platform/base/nex_Exception.h"

void ddr_RefuseShortcutRecord(const char* shortcutClass, unsigned storedTypeId) {
  nex_ThrowCmd("A record of type id " + std::to_string(storedTypeId) + " is not a shortcut that " +
               shortcutClass + " can hold");
}

void ddr_RefuseEmptyShortcut(const char* addressedClass) {
  nex_ThrowCmd(std::string("An empty shortcut to a ") + addressedClass + " addresses nothing");
}

void ddr_RefuseShortcutPath(const std::vector<cow_String>& path, const std::string& reason) {
  std::string text;
  for (const auto& step : path) text += (text.empty() ? "" : "/") + step.str();
  nex_ThrowCmd("The shortcut \"" + text + "\" addresses nothing: " + reason);
}

const cls_ScriptField& ddr_MemberField(const char* ownerClass, int number) {
  const cls_ClassMetadata& md = cls_MetadataOf(ownerClass);
  for (const auto& f : md.ScriptFields())
    if (f.number == number && f.type == cls_AttrObject) return f;
  nex_ThrowCmd(std::string("The class ") + ownerClass + " has no object member number " + std::to_string(number));
}

namespace {
std::map<unsigned, ddr_ShortcutReaders::ReadFn>& Readers() {
  static std::map<unsigned, ddr_ShortcutReaders::ReadFn> readers;
  return readers;
}
}  // namespace

void ddr_ShortcutReaders::Register(unsigned typeId, ReadFn fn) { Readers()[typeId] = fn; }

ddr_ShortcutReaders::ReadFn ddr_ShortcutReaders::Find(unsigned typeId) {
  auto it = Readers().find(typeId);
  return it == Readers().end() ? nullptr : it->second;
}
