#pragma once
// A behavior option of a connector section: the abstract root of the family of elasticity,
// damping, plasticity, friction, damage, failure, lock and stop. Lists, repositories and readers
// hold options through this class; each kind writes, copies, validates and compares itself.
#include <cstdint>
#include <string_view>

#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kbeC_ConnectorBehaviorOption : public mem_Allocated {
 public:
  using RootClass = kbeC_ConnectorBehaviorOption;
  static constexpr const char* kClassName = "kbeC_ConnectorBehaviorOption";
  static constexpr const char* kScriptName = "ConnectorBehaviorOption";
  static constexpr int kVersion = 811;
  static constexpr unsigned TypeId() { return fw_TypeId(680, 1); }

  virtual ~kbeC_ConnectorBehaviorOption() = default;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  // A copy of the most derived object; each class's DoCopy makes it.
  kbeC_ConnectorBehaviorOption* Copy() const { return DoCopy(); }
  virtual kbeC_ConnectorBehaviorOption* DoCopy() const = 0;
  virtual void AssertValid() const = 0;
  // The member shortcuts' refusal of a step that names a member of other kinds of option
  // ("options" on a lock); returns for any other name.
  static void RefuseUnknownStep(const kbeC_ConnectorBehaviorOption& option, std::string_view step);
  // The type id of the object's own class.
  virtual unsigned ClassTypeId() const = 0;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  // Same class, then same uid and fields.
  bool operator==(const kbeC_ConnectorBehaviorOption& o) const { return ClassTypeId() == o.ClassTypeId() && SameAs(o); }
  bool operator!=(const kbeC_ConnectorBehaviorOption& o) const { return !(*this == o); }

  const cls_Uid& GetUid() const { return uid; }

 protected:
  kbeC_ConnectorBehaviorOption() = default;
  kbeC_ConnectorBehaviorOption(const kbeC_ConnectorBehaviorOption&) = default;
  kbeC_ConnectorBehaviorOption& operator=(const kbeC_ConnectorBehaviorOption&) = default;
  explicit kbeC_ConnectorBehaviorOption(const cls_ReadVisitor& r);
  // Called only with an object of the same class.
  virtual bool SameAs(const kbeC_ConnectorBehaviorOption& o) const = 0;

 private:
  cls_Uid uid;
};
