#pragma once
// A request of a design response: which result the optimizer evaluates and how.
#include <cstdint>
#include <tuple>

#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kopC_Request : public mem_Allocated {
 public:
  using RootClass = kopC_Request;
  static constexpr const char* kClassName = "kopC_Request";
  static constexpr int kVersion = 1554;
  static constexpr unsigned TypeId() { return fw_TypeId(932, 20); }

  virtual ~kopC_Request() = default;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  // A copy of the most derived object; each class's DoCopy makes it.
  kopC_Request* Copy() const { return DoCopy(); }
  virtual kopC_Request* DoCopy() const = 0;
  virtual void AssertValid() const = 0;
  // The type id of the object's own class.
  virtual unsigned ClassTypeId() const = 0;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);
  // Same class, then same uid and fields.
  bool operator==(const kopC_Request& o) const { return ClassTypeId() == o.ClassTypeId() && SameAs(o); }
  bool operator!=(const kopC_Request& o) const { return !(*this == o); }
  const cls_Uid& GetUid() const { return uid; }

 protected:
  kopC_Request() = default;
  kopC_Request(const kopC_Request&) = default;
  kopC_Request& operator=(const kopC_Request&) = default;
  explicit kopC_Request(const cls_ReadVisitor& r);
  // Called only with an object of the same class.
  virtual bool SameAs(const kopC_Request& o) const = 0;

 protected:
  cls_Uid uid;
};
