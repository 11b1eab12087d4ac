#pragma once
// A geometric imperfection: the abstract root of the imperfections read from a results file, an
// input file or given as data.
#include <cstdint>

#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"
#include "kef/kefC_Enums.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kefC_Imperfection : public mem_Allocated {
 public:
  using RootClass = kefC_Imperfection;
  static constexpr const char* kClassName = "kefC_Imperfection";
  static constexpr int kVersion = 844;
  static constexpr unsigned TypeId() { return fw_TypeId(844, 22); }

  virtual ~kefC_Imperfection() = default;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  // A copy of the most derived object; each class's DoCopy makes it.
  kefC_Imperfection* Copy() const { return DoCopy(); }
  virtual kefC_Imperfection* DoCopy() const = 0;
  virtual void AssertValid() const = 0;
  // The type id of the object's own class.
  virtual unsigned ClassTypeId() const = 0;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  // Same class, then same uid and fields.
  bool operator==(const kefC_Imperfection& o) const { return ClassTypeId() == o.ClassTypeId() && SameAs(o); }
  bool operator!=(const kefC_Imperfection& o) const { return !(*this == o); }

  const cls_Uid& GetUid() const { return uid; }
  // The kind's display label ("Point mass/inertia"); empty for kinds that have none.
  const char* DisplayLabel() const;
  bool GetSuppress() const { return suppress; }
  void SetSuppress(bool v) { suppress = v; }

 protected:
  kefC_Imperfection() = default;
  kefC_Imperfection(const kefC_Imperfection&) = default;
  kefC_Imperfection& operator=(const kefC_Imperfection&) = default;
  explicit kefC_Imperfection(const cls_ReadVisitor& r);
  // Called only with an object of the same class.
  virtual bool SameAs(const kefC_Imperfection& o) const = 0;

  // Members of every kind of the family; each kind lists them in its field table.
  bool suppress = false;

 private:
  cls_Uid uid;
};
