#pragma once
// A variable of a task: a named quantity that design responses and stop conditions may read.
#include <cstdint>
#include <tuple>

#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kopC_Variable : public mem_Allocated {
 public:
  using RootClass = kopC_Variable;
  static constexpr const char* kClassName = "kopC_Variable";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 60); }

  virtual ~kopC_Variable() = default;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  // A copy of the most derived object; each class's DoCopy makes it.
  kopC_Variable* Copy() const { return DoCopy(); }
  virtual kopC_Variable* DoCopy() const = 0;
  virtual void AssertValid() const = 0;
  // The type id of the object's own class.
  virtual unsigned ClassTypeId() const = 0;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  // Same class, then same uid and fields.
  bool operator==(const kopC_Variable& o) const { return ClassTypeId() == o.ClassTypeId() && SameAs(o); }
  bool operator!=(const kopC_Variable& o) const { return !(*this == o); }
  const cls_Uid& GetUid() const { return uid; }

 protected:
  kopC_Variable() = default;
  kopC_Variable(const kopC_Variable&) = default;
  kopC_Variable& operator=(const kopC_Variable&) = default;
  explicit kopC_Variable(const cls_ReadVisitor& r);
  // Called only with an object of the same class.
  virtual bool SameAs(const kopC_Variable& o) const = 0;

 protected:
  cls_Uid uid;
};
