#pragma once
// A constraint of a model: the abstract root of the constraint family. Repositories and readers
// hold constraints through this class; each kind writes, copies, validates and compares itself.
#include <cstdint>

#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kcoC_Constraint : public mem_Allocated {
 public:
  using RootClass = kcoC_Constraint;
  static constexpr const char* kClassName = "kcoC_Constraint";
  static constexpr int kVersion = 840;
  static constexpr unsigned TypeId() { return fw_TypeId(720, 1); }

  virtual ~kcoC_Constraint() = default;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  // A copy of the most derived object; each class's DoCopy makes it.
  kcoC_Constraint* Copy() const { return DoCopy(); }
  virtual kcoC_Constraint* DoCopy() const = 0;
  virtual void AssertValid() const = 0;
  // The type id of the object's own class.
  virtual unsigned ClassTypeId() const = 0;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  // Same class, then same uid and fields.
  bool operator==(const kcoC_Constraint& o) const { return ClassTypeId() == o.ClassTypeId() && SameAs(o); }
  bool operator!=(const kcoC_Constraint& o) const { return !(*this == o); }

  const cls_Uid& GetUid() const { return uid; }
  // The kind's display label ("Tie"); empty for kinds that have none.
  const char* DisplayLabel() const;
  bool GetSuppress() const { return suppress; }
  void SetSuppress(bool v) { suppress = v; }

 protected:
  kcoC_Constraint() = default;
  kcoC_Constraint(const kcoC_Constraint&) = default;
  kcoC_Constraint& operator=(const kcoC_Constraint&) = default;
  explicit kcoC_Constraint(const cls_ReadVisitor& r);
  // Called only with an object of the same class.
  virtual bool SameAs(const kcoC_Constraint& o) const = 0;

  // Members of every kind of the family; each kind lists them in its field table.
  bool suppress = false;  // switched off: not validated, not used

 private:
  cls_Uid uid;
};
