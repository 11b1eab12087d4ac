#pragma once
// An object stored under a name in a database file (a "root"), as it is given to a save and as it
// comes back from an open.
#include <utility>

#include "platform/base/cow_String.h"
#include "platform/persist/cls_ClassMetadata.h"

struct dbf_Root {
  cow_String name;
  const cls_ClassMetadata* cls;  // the object's own class
  const void* object;            // as the class's metadata hands objects out (family root)
};

// An object read from a file, released through its class's metadata.
class dbf_OwnedObject {
 public:
  dbf_OwnedObject(const cls_ClassMetadata* cls, void* object) noexcept : cls_(cls), object_(object) {}
  dbf_OwnedObject(dbf_OwnedObject&& o) noexcept
      : cls_(o.cls_), object_(std::exchange(o.object_, nullptr)) {}
  dbf_OwnedObject& operator=(dbf_OwnedObject&& o) noexcept {
    std::swap(cls_, o.cls_);
    std::swap(object_, o.object_);
    return *this;
  }
  ~dbf_OwnedObject() {
    if (object_) cls_->Destroy(object_);
  }
  const cls_ClassMetadata& Class() const noexcept { return *cls_; }
  const void* Get() const noexcept { return object_; }
  // Gives up ownership.
  void* Release() noexcept { return std::exchange(object_, nullptr); }

 private:
  const cls_ClassMetadata* cls_;
  void* object_;
};

struct dbf_LoadedRoot {
  cow_String name;
  dbf_OwnedObject object;
};
