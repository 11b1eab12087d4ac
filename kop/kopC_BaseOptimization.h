#pragma once
// The root of every optimization task object: what the task container holds.
#include <cstdint>
#include <tuple>

#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kopC_BaseOptimization : public mem_Allocated {
 public:
  using RootClass = kopC_BaseOptimization;
  static constexpr const char* kClassName = "kopC_BaseOptimization";
  static constexpr int kVersion = 2204;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 1); }

  virtual ~kopC_BaseOptimization() = default;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  // A copy of the most derived object; each class's DoCopy makes it.
  kopC_BaseOptimization* Copy() const { return DoCopy(); }
  virtual kopC_BaseOptimization* DoCopy() const = 0;
  virtual void AssertValid() const = 0;
  // The type id of the object's own class.
  virtual unsigned ClassTypeId() const = 0;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  // Same class, then same uid and fields.
  bool operator==(const kopC_BaseOptimization& o) const { return ClassTypeId() == o.ClassTypeId() && SameAs(o); }
  bool operator!=(const kopC_BaseOptimization& o) const { return !(*this == o); }
  const cls_Uid& GetUid() const { return uid; }

 protected:
  kopC_BaseOptimization() = default;
  kopC_BaseOptimization(const kopC_BaseOptimization&) = default;
  kopC_BaseOptimization& operator=(const kopC_BaseOptimization&) = default;
  explicit kopC_BaseOptimization(const cls_ReadVisitor& r);
  // Called only with an object of the same class.
  virtual bool SameAs(const kopC_BaseOptimization& o) const = 0;

 protected:
  cls_Uid uid;
};
