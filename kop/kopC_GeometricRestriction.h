#pragma once
// A geometric restriction of a task: a limit on how the design may change, kept by name.
#include <cstdint>
#include <tuple>

#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kopC_GeometricRestriction : public mem_Allocated {
 public:
  using RootClass = kopC_GeometricRestriction;
  static constexpr const char* kClassName = "kopC_GeometricRestriction";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 72); }

  virtual ~kopC_GeometricRestriction() = default;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  // A copy of the most derived object; each class's DoCopy makes it.
  kopC_GeometricRestriction* Copy() const { return DoCopy(); }
  virtual kopC_GeometricRestriction* DoCopy() const = 0;
  virtual void AssertValid() const = 0;
  // The type id of the object's own class.
  virtual unsigned ClassTypeId() const = 0;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  // Same class, then same uid and fields.
  bool operator==(const kopC_GeometricRestriction& o) const { return ClassTypeId() == o.ClassTypeId() && SameAs(o); }
  bool operator!=(const kopC_GeometricRestriction& o) const { return !(*this == o); }
  const cls_Uid& GetUid() const { return uid; }

 protected:
  kopC_GeometricRestriction() = default;
  kopC_GeometricRestriction(const kopC_GeometricRestriction&) = default;
  kopC_GeometricRestriction& operator=(const kopC_GeometricRestriction&) = default;
  explicit kopC_GeometricRestriction(const cls_ReadVisitor& r);
  // Called only with an object of the same class.
  virtual bool SameAs(const kopC_GeometricRestriction& o) const = 0;

 protected:
  cls_Uid uid;
};
