#pragma once
// What the model holds as an extension: registered as a prototype by a module at start, copied
// into every new model. An extension is either a repository (a wrapped container) or one object
// whose members may be repositories; its scripting name addresses it in a model.
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_WriteVisitor;
class cls_ClassMetadata;
class mdl_Repository;

class mdl_Extension : public mem_Allocated {
 public:
  using RootClass = mdl_Extension;
  static constexpr const char* kClassName = "mdl_Extension";
  virtual ~mdl_Extension() = default;
  virtual mdl_Extension* Copy() const = 0;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  virtual unsigned ClassTypeId() const = 0;
  // The repository the extension holds, or null for an extension that is one object.
  virtual mdl_Repository* Repository() = 0;
  virtual const mdl_Repository* Repository() const = 0;
  // The name that addresses the extension in a model (a repository's scripting name by default).
  virtual const char* ExtensionName() const;
  virtual bool Equals(const mdl_Extension& o) const = 0;
};
