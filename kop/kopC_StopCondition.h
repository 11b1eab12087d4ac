#pragma once
// A stop condition of a task, kept by name.
#include <cstdint>
#include <tuple>

#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kopC_StopCondition : public mem_Allocated {
 public:
  using RootClass = kopC_StopCondition;
  static constexpr const char* kClassName = "kopC_StopCondition";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 50); }

  virtual ~kopC_StopCondition() = default;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  // A copy of the most derived object; each class's DoCopy makes it.
  kopC_StopCondition* Copy() const { return DoCopy(); }
  virtual kopC_StopCondition* DoCopy() const = 0;
  virtual void AssertValid() const = 0;
  // The type id of the object's own class.
  virtual unsigned ClassTypeId() const = 0;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  // Same class, then same uid and fields.
  bool operator==(const kopC_StopCondition& o) const { return ClassTypeId() == o.ClassTypeId() && SameAs(o); }
  bool operator!=(const kopC_StopCondition& o) const { return !(*this == o); }
  const cls_Uid& GetUid() const { return uid; }

 protected:
  kopC_StopCondition() = default;
  kopC_StopCondition(const kopC_StopCondition&) = default;
  kopC_StopCondition& operator=(const kopC_StopCondition&) = default;
  explicit kopC_StopCondition(const cls_ReadVisitor& r);
  // Called only with an object of the same class.
  virtual bool SameAs(const kopC_StopCondition& o) const = 0;

 protected:
  cls_Uid uid;
};
