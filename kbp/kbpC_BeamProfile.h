#pragma once
// The cross-section of a beam: the abstract root of the profile family. Handles, repositories
// and readers hold profiles through this class; each kind writes, copies, validates and compares
// itself.
#include <cstdint>

#include "framework/fw_Field.h"
#include "platform/base/bas_Alloc.h"
#include "platform/persist/cls_Uid.h"

class cls_ReadVisitor;
class cls_WriteVisitor;
class cls_ClassRegistrar;

class kbpC_BeamProfile : public mem_Allocated {
 public:
  using RootClass = kbpC_BeamProfile;
  static constexpr const char* kClassName = "kbpC_BeamProfile";
  static constexpr const char* kScriptName = "Profile";
  // The database version of the current layout of every profile class.
  static constexpr int kVersion = 1000;
  static constexpr unsigned TypeId() { return fw_TypeId(612, 1); }

  virtual ~kbpC_BeamProfile() = default;
  virtual void DBWrite(const cls_WriteVisitor& w) const = 0;
  // A copy of the most derived object; each class's DoCopy makes it.
  kbpC_BeamProfile* Copy() const { return DoCopy(); }
  virtual kbpC_BeamProfile* DoCopy() const = 0;
  virtual void AssertValid() const = 0;
  // The type id of the object's own class.
  virtual unsigned ClassTypeId() const = 0;
  static void InitializeMetadata(cls_ClassRegistrar& registrar);
  static void CowDtor(void* p);

  // Same class, then same uid and fields.
  bool operator==(const kbpC_BeamProfile& o) const { return ClassTypeId() == o.ClassTypeId() && SameAs(o); }
  bool operator!=(const kbpC_BeamProfile& o) const { return !(*this == o); }

  const cls_Uid& GetUid() const { return uid; }
  // The kind's display label ("Circular"); empty for kinds that have none.
  const char* DisplayLabel() const;

 protected:
  kbpC_BeamProfile() = default;
  kbpC_BeamProfile(const kbpC_BeamProfile&) = default;
  kbpC_BeamProfile& operator=(const kbpC_BeamProfile&) = default;
  explicit kbpC_BeamProfile(const cls_ReadVisitor& r);
  // Called only with an object of the same class.
  virtual bool SameAs(const kbpC_BeamProfile& o) const = 0;

 private:
  cls_Uid uid;
};
