#pragma once
// The generic face of the database file: any registered objects stored under names ("roots")
// with everything they hold. A model database is a file whose roots are the models; the generic
// form also lets tools and tests store objects that no model container holds.
#include <string>
#include <utility>
#include <vector>

#include "platform/cls_ClassMetadata.h"
#include "platform/dbf_File.h"

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

// Saves the roots (names must be distinct and non-empty) atomically as a new file at path.
void dbf_SaveRoots(const std::vector<dbf_Root>& roots, const std::string& path, const dbf_SaveOptions& options = {});

// Opens a file and reads every root, upgrading stored rows with the driver's steps (the
// registered ones when null). When `required` is given, a root of any other class is refused.
std::vector<dbf_LoadedRoot> dbf_OpenRoots(const std::string& path, const dbc_UpgradeDriver* driver = nullptr,
                                          const cls_ClassMetadata* required = nullptr);
