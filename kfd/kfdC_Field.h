#pragma once
// A named spatial distribution that other model attributes refer to by name: the abstract root of
// the field family. Repositories and readers hold fields through this class.
#include <cstdint>

#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kfdC_Field : public mem_Allocated {
 public:
  using RootClass = kfdC_Field;
  static constexpr const char* kClassName = "kfdC_Field";
  static constexpr const char* kScriptName = "Field";
  // The collection of every field of a model, analytical and discrete together.
  static constexpr const char* kCollectionName = "allFields";
  static constexpr int kVersion = 700;
  static constexpr unsigned TypeId() { return fw_TypeId(858, 1); }

  virtual ~kfdC_Field() = default;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  // A copy of the most derived object; each class's DoCopy makes it.
  kfdC_Field* Copy() const { return DoCopy(); }
  virtual kfdC_Field* DoCopy() const = 0;
  virtual void AssertValid() const = 0;
  // The type id of the object's own class.
  virtual unsigned ClassTypeId() const = 0;
  unsigned DynTypeId() const { return ClassTypeId(); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  bool operator==(const kfdC_Field& o) const { return ClassTypeId() == o.ClassTypeId() && SameAs(o); }
  bool operator!=(const kfdC_Field& o) const { return !(*this == o); }
  const cls_Uid& GetUid() const { return uid; }

 protected:
  kfdC_Field() = default;
  kfdC_Field(const kfdC_Field&) = default;
  kfdC_Field& operator=(const kfdC_Field&) = default;
  explicit kfdC_Field(const cls_ReadVisitor& r);
  // Called only with an object of the same class.
  virtual bool SameAs(const kfdC_Field& o) const = 0;

 private:
  cls_Uid uid;
};
