#pragma once
// The type-erased face of a repository, through which the command layer and the database file
// reach any container's elements without knowing the element class. Element pointers point at
// the root class of the element's family, as cls_ClassMetadata hands them out.
#include <cstddef>
#include <vector>

#include "platform/persist/cls_ClassMetadata.h"
#include "platform/base/cow_String.h"

class mdl_Repository {
 public:
  virtual ~mdl_Repository() = default;
  // The repository's scripting name ("adaptiveMeshControls").
  virtual const char* RepositoryName() const = 0;
  // The declared element class (may be the root of a polymorphic family).
  virtual const cls_ClassMetadata& ElementClass() const = 0;
  virtual std::vector<cow_String> Keys() const = 0;
  virtual bool Contains(const cow_String& key) const = 0;
  // The element and its class, or null when absent.
  virtual const void* Find(const cow_String& key, const cls_ClassMetadata** cls = nullptr) const = 0;
  // The element for modification: separated first, recorded as "Modify". Refuses a missing key.
  virtual void* Modify(const cow_String& key, const cls_ClassMetadata** cls = nullptr) = 0;
  // Visits every element in order with its key text and class, in one walk of the repository
  // rather than a search per key. The visitor is a plain function with a context, so that this
  // face drags no functional header into every class.
  using ElementVisitor = void (*)(void* context, const cow_String& key, const void* obj, const cls_ClassMetadata& cls);
  virtual void ForEachElement(ElementVisitor visit, void* context) const {
    for (const auto& key : Keys()) {
      const cls_ClassMetadata* cls = nullptr;
      const void* obj = Find(key, &cls);
      visit(context, key, obj, *cls);
    }
  }
  // Takes ownership of an element made by the element class's metadata; recorded as "Insert".
  virtual void InsertNew(const cow_String& key, void* owned) = 0;
  // Recorded as "Remove"; false when the key is absent.
  virtual bool RemoveKey(const cow_String& key) = 0;
  // Refuses a key the repository does not hold: with the owning module's own message when its
  // shortcuts have one (the repository's traits give it), else with the framework's. Every lookup
  // by key goes through here: the typed Get, the shortcuts and the command layer's paths.
  [[noreturn]] virtual void RefuseMissingKey(const cow_String& key) const;
  // The number of elements.
  virtual std::size_t Count() const { return Keys().size(); }
  // True for a list whose keys are positions: InsertNew then inserts before the element at the
  // key, where a keyed repository puts the element under the key.
  virtual bool Positional() const { return false; }
  // The face itself: the persistence layer reaches a repository class's face through this name
  // without knowing the class mdl_Repository (it sits in a lower layer).
  mdl_Repository* RepositoryFace() noexcept { return this; }
  const mdl_Repository* RepositoryFace() const noexcept { return this; }
};
