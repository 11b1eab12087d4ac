#pragma once
// The registry of every persistent class, by name and by type id, in registration order.
#include <map>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/persist/cls_ClassMetadata.h"

class cls_ClassRegistrar {
 public:
  static cls_ClassRegistrar& Instance();

  // Takes ownership. A second registration of a name already known is kept alive (its caller may
  // still be filling it in) but does not replace the first.
  void AddClassMD(cls_ClassMetadata* md);

  const cls_ClassMetadata* ByName(std::string_view name) const;
  const cls_ClassMetadata* ByTypeId(unsigned typeId) const;
  const cls_ClassMetadata* ByScriptName(std::string_view scriptName) const;
  const std::vector<const cls_ClassMetadata*>& All() const noexcept { return order_; }

 private:
  std::vector<std::unique_ptr<cls_ClassMetadata>> owned_;
  std::vector<const cls_ClassMetadata*> order_;
  std::map<std::string, const cls_ClassMetadata*, std::less<>> byName_;
  std::map<unsigned, const cls_ClassMetadata*> byType_;
  // Scripting names and constructor variants, each to the first class in order that answers to
  // it: a script's every "create" looks its constructor up.
  std::map<std::string, const cls_ClassMetadata*, std::less<>> byScriptName_;
};

// Hands class metadata functions to the framework with their group, remembering both.
class cls_MetadataRegistrar {
 public:
  using InitFn = void (*)(cls_ClassRegistrar&);
  struct Entry {
    InitFn fn;
    unsigned group;
  };
  // Calls fn once with the class registrar; a function already handed in is remembered again but
  // not called twice.
  void initClassMetadata(InitFn fn, unsigned group);
  const std::vector<Entry>& Entries() const noexcept { return entries_; }

 private:
  std::vector<Entry> entries_;
};
